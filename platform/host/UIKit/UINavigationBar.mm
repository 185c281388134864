// Follows the UINavigationBar class reference. What the bar shows is read from the pages of its controller
// whenever it is looked at, so a change of an item shows at once.
#include "UIKit/UINavigationBar+Host.h"

#include "host/Retained.h"
#include "host/SystemText.h"
#include "host/Text.h"
#include "UIKit/TextElement.h"
#include "UIKit/UIBarButtonItem+Host.h"
#include "UIKit/UIFont+Host.h"
#include "UIKit/UINavigationController+Host.h"
#include "UIKit/UIView+Host.h"
#include "UIKit/UIViewController+Host.h"

#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>
#import <UIKit/UINavigationItem.h>

#include <algorithm>

struct UINavigationBarState {
    UINavigationController *controller = nil; ///< not retained: it retains the bar
    UIBarStyle style = UIBarStyleDefault;
    bool translucent = true;
    host::Retained<UIColor *> barTintColor;
    host::Retained<NSDictionary *> titleTextAttributes;
    host::Retained<NSMutableArray *> itemViews = [NSMutableArray array]; ///< of the items that are shown
};

namespace {

constexpr CGFloat sideMargin = 16, gap = 8;
constexpr CGFloat chevronRoom = 27; ///< the chevron of the back button, with the room around it
constexpr CGFloat titlePoints = 17;

CGFloat widthOf(NSString *text, UIFont *font) {
    return host::upToHalfPoint(host::textWidth(host::utf16(text), host::face(font)));
}

} // namespace

@implementation UINavigationBar

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _bar = new UINavigationBarState;
    return self;
}

- (void)dealloc {
    delete _bar;
    [super dealloc];
}

- (void)_hostSetController:(UINavigationController *)controller {
    _bar->controller = controller;
}

- (UIBarStyle)barStyle {
    return _bar->style;
}

- (void)setBarStyle:(UIBarStyle)style {
    _bar->style = style;
}

- (BOOL)isTranslucent {
    return _bar->translucent;
}

- (void)setTranslucent:(BOOL)translucent {
    _bar->translucent = translucent;
}

- (UIColor *)barTintColor {
    return _bar->barTintColor;
}

- (void)setBarTintColor:(UIColor *)color {
    _bar->barTintColor = color;
}

- (NSDictionary *)titleTextAttributes {
    return _bar->titleTextAttributes;
}

- (void)setTitleTextAttributes:(NSDictionary *)attributes {
    _bar->titleTextAttributes = [[attributes copy] autorelease];
}

- (NSArray *)items {
    NSMutableArray *items = [NSMutableArray array];
    for (UIViewController *page in [_bar->controller viewControllers])
        [items addObject:[page navigationItem]];
    return items;
}

- (UINavigationItem *)topItem {
    return [[_bar->controller topViewController] navigationItem];
}

- (UINavigationItem *)backItem {
    NSArray *items = [self items];
    return [items count] < 2 ? nil : [items objectAtIndex:[items count] - 2];
}

/// Items with views of their own, from the left and from the right, and the title view. A view that stays is
/// not taken out and put in again: it may have the keyboard.
- (void)_hostArrange {
    NSMutableArray *shown = [NSMutableArray array];
    const auto show = ^(UIBarButtonItem *item, CGRect place) {
        [self _hostShow:[item customView] at:place in:shown];
    };
    [self _hostEachItem:[[self topItem] leftBarButtonItems] fromLeft:YES do:show];
    [self _hostEachItem:[[self topItem] rightBarButtonItems] fromLeft:NO do:show];
    UIView *title = [[self topItem] titleView];
    [self _hostShow:title at:[self _hostTitlePlace:[title frame].size.width] in:shown];
    for (UIView *view in _bar->itemViews.get()) {
        if ([shown indexOfObjectIdenticalTo:view] == NSNotFound && [view superview] == self)
            [view removeFromSuperview];
    }
    _bar->itemViews = shown;
}

/// In the middle of `room`, in its own size.
- (void)_hostShow:(UIView *)view at:(CGRect)room in:(NSMutableArray *)shown {
    if (!view)
        return;
    const CGSize size = [view frame].size;
    [view setFrame:CGRectMake(CGRectGetMidX(room) - size.width / 2, CGRectGetMidY(room) - size.height / 2,
                              size.width, size.height)];
    if ([view superview] != self)
        [self addSubview:view];
    [shown addObject:view];
}

- (void)layoutIfNeeded {
    [self _hostArrange];
    [super layoutIfNeeded];
}

/// In the middle of the bar, or where the items leave room.
- (CGRect)_hostTitlePlace:(CGFloat)width {
    const CGSize bar = [self bounds].size;
    __block CGFloat left =
        [_bar->controller _hostHasBackButton] ? CGRectGetMaxX([self _hostBackPlace]) + gap : sideMargin;
    __block CGFloat right = bar.width - sideMargin;
    [self _hostEachItem:[[self topItem] leftBarButtonItems]
               fromLeft:YES
                     do:^(UIBarButtonItem *item, CGRect place) {
                         left = CGRectGetMaxX(place) + gap;
                     }];
    [self _hostEachItem:[[self topItem] rightBarButtonItems]
               fromLeft:NO
                     do:^(UIBarButtonItem *item, CGRect place) {
                         right = CGRectGetMinX(place) - gap;
                     }];
    width = std::max<CGFloat>(0, std::min(width, right - left));
    const CGFloat x = std::clamp((bar.width - width) / 2, left, std::max(left, right - width));
    return CGRectMake(x, 0, width, bar.height);
}

- (void)_hostEachItem:(NSArray *)items fromLeft:(BOOL)fromLeft do:(void (^)(UIBarButtonItem *, CGRect))act {
    const CGSize room = [self bounds].size;
    CGFloat taken = sideMargin;
    if (fromLeft && [_bar->controller _hostHasBackButton])
        taken = CGRectGetMaxX([self _hostBackPlace]) + gap;
    for (UIBarButtonItem *item in items) {
        const CGFloat width = [item _hostWidth];
        act(item, CGRectMake(fromLeft ? taken : room.width - taken - width, 0, width, room.height));
        taken += width + ([item _hostIsSpace] ? 0 : gap);
    }
}

- (UIFont *)_hostTitleFont {
    return [UIFont boldSystemFontOfSize:titlePoints];
}

/// The title of the page that the back button leads to, "Back" where that has no room, or nothing.
- (NSString *)_hostBackTitle {
    UINavigationItem *back = [self backItem];
    NSString *title = [[back backBarButtonItem] title];
    if (!title)
        title = [back title];
    NSString *shorter = host::string(host::systemText("Back"));
    if ([title length] == 0)
        title = shorter;
    for (NSString *each in @[ title, shorter ]) {
        if ([self _hostHasRoomForBack:each])
            return each;
    }
    return @"";
}

- (BOOL)_hostHasRoomForBack:(NSString *)back {
    CGFloat needed = chevronRoom + widthOf(back, [UIFont systemFontOfSize:titlePoints]) + gap;
    needed += widthOf([[self topItem] title], [self _hostTitleFont]) + gap;
    for (UIBarButtonItem *item in [[self topItem] rightBarButtonItems])
        needed += [item _hostWidth] + gap;
    return needed <= [self bounds].size.width;
}

- (CGRect)_hostBackPlace {
    const CGFloat width = chevronRoom + widthOf([self _hostBackTitle], [UIFont systemFontOfSize:titlePoints]);
    return CGRectMake(0, 0, width, [self bounds].size.height);
}

- (UIColor *)_hostTitleColor {
    return _bar->style == UIBarStyleBlack ? [UIColor whiteColor] : [UIColor blackColor];
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = "NavigationBar";
    element.label = host::utf8([[self topItem] title]);
    element.attributes["page"] = double([[_bar->controller topViewController] _hostNumber]);
    if ([_bar->controller _hostHasBackButton])
        [self _hostDescribeBack:element];
    [self _hostDescribe:[[self topItem] leftBarButtonItems] fromLeft:YES into:element];
    if (![[self topItem] titleView])
        [self _hostDescribeTitle:element];
    [self _hostDescribe:[[self topItem] rightBarButtonItems] fromLeft:NO into:element];
    return YES;
}

/// `place`, which is in the bar, as a rectangle of the window.
- (host::Rect)_hostInWindow:(CGRect)place of:(const host::Element &)bar {
    return {bar.rect.x + place.origin.x, bar.rect.y + place.origin.y, place.size.width, place.size.height};
}

/// The label tells the way back also where the title has no room.
- (void)_hostDescribeBack:(host::Element &)bar {
    host::Element button{.type = "Button", .label = host::utf8([self _hostBackTitle])};
    button.attributes["iconOnly"] = button.label.empty();
    if (button.label.empty())
        button.label = host::systemText("Back");
    button.number = bar.number;
    button.part = "back";
    button.rect = [self _hostInWindow:[self _hostBackPlace] of:bar];
    button.attributes["role"] = std::string("back");
    button.attributes["style"] = std::string("plain");
    host::describeText(button, [UIFont systemFontOfSize:titlePoints], [self tintColor], NSTextAlignmentLeft);
    bar.children.push_back(std::move(button));
}

- (void)_hostDescribe:(NSArray *)items fromLeft:(BOOL)fromLeft into:(host::Element &)bar {
    host::Element *target = &bar;
    [self _hostEachItem:items
               fromLeft:fromLeft
                     do:^(UIBarButtonItem *item, CGRect place) {
                         if ([item customView] || [item _hostIsSpace])
                             return;
                         host::Element button = [item _hostElementWithTint:[self tintColor]];
                         button.rect = [self _hostInWindow:place of:*target];
                         button.attributes["role"] = std::string(fromLeft ? "left" : "right");
                         target->children.push_back(std::move(button));
                     }];
}

- (void)_hostDescribeTitle:(host::Element &)bar {
    NSString *title = [[self topItem] title];
    if ([title length] == 0)
        return;
    host::Element text{.type = "StaticText", .label = host::utf8(title)};
    text.rect = [self _hostInWindow:[self _hostTitlePlace:widthOf(title, [self _hostTitleFont])] of:bar];
    text.attributes["role"] = std::string("title");
    host::describeText(text, [self _hostTitleFont], [self _hostTitleColor], NSTextAlignmentCenter);
    bar.children.push_back(std::move(text));
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    const bool back = gesture.kind == host::GestureKind::tap && gesture.part == "back";
    return back && [_bar->controller _hostGoBack] ? host::Outcome::done : host::Outcome::disabled;
}

@end
