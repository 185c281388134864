// Follows the UIBarButtonItem class reference. System items have the system's own texts or drawings.
#import <UIKit/UIBarButtonItem.h>

#import <UIKit/UIApplication.h>
#import <UIKit/UIFont.h>
#import <UIKit/UIImage.h>
#import <UIKit/UIView.h>

#include "host/Numbers.h"
#include "host/Retained.h"
#include "host/SystemText.h"
#include "host/Text.h"
#include "UIKit/TextElement.h"
#include "UIKit/UIBarButtonItem+Host.h"
#include "UIKit/UIFont+Host.h"
#include "UIKit/UIImage+Host.h"

#include <algorithm>

struct UIBarButtonItemState {
    UIBarButtonItemStyle style = UIBarButtonItemStylePlain;
    CGFloat width = 0;
    id target = nil; ///< not retained
    SEL action = nullptr;
    host::Retained<UIView *> customView;
    host::Retained<UIColor *> tintColor;
    bool space = false;
    const char *glyph = "";      ///< the drawing of a system item without text
    const char *spokenName = ""; ///< English, for a system item without text
    std::uint64_t number = 0;
};

namespace {

constexpr CGFloat titlePoints = 17;
constexpr CGFloat leastWidth = 44; ///< so that also an empty item can be hit

/// What a system item looks like: a text of the system, or a drawing that has a name to be spoken.
struct SystemLook {
    const char *text;
    const char *glyph;
    const char *spokenName;
};

// In the order of UIBarButtonSystemItem.
constexpr SystemLook systemLooks[] = {
    {"Done", "", ""},
    {"Cancel", "", ""},
    {"Edit", "", ""},
    {"Save", "", ""},
    {"", "add", "Add"},
    {"", "", ""},
    {"", "", ""},
    {"", "compose", "Compose"},
    {"", "reply", "Reply"},
    {"", "action", "Share"},
    {"", "organize", "Organize"},
    {"", "bookmarks", "Bookmarks"},
    {"", "search", "Search"},
    {"", "refresh", "Refresh"},
    {"", "stop", "Stop"},
    {"", "camera", "Camera"},
    {"", "trash", "Delete"},
};

bool isBoldKind(UIBarButtonSystemItem kind) {
    return kind == UIBarButtonSystemItemDone || kind == UIBarButtonSystemItemSave;
}

} // namespace

@implementation UIBarButtonItem

- (id)init {
    if ((self = [super init])) {
        _item = new UIBarButtonItemState;
        _item->number = host::giveNumber(self);
    }
    return self;
}

- (id)initWithBarButtonSystemItem:(UIBarButtonSystemItem)systemItem target:(id)target action:(SEL)action {
    if (!(self = [self init]))
        return nil;
    [self _hostSetTarget:target action:action];
    _item->space =
        systemItem == UIBarButtonSystemItemFlexibleSpace || systemItem == UIBarButtonSystemItemFixedSpace;
    if (systemItem < 0 || systemItem >= (NSInteger)std::size(systemLooks))
        return self;
    const SystemLook &look = systemLooks[systemItem];
    _item->glyph = look.glyph;
    _item->spokenName = look.spokenName;
    if (*look.text)
        [self setTitle:host::string(host::systemText(look.text))];
    if (isBoldKind(systemItem))
        _item->style = UIBarButtonItemStyleDone;
    return self;
}

- (id)initWithTitle:(NSString *)title style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action {
    if ((self = [self init])) {
        [self setTitle:title];
        _item->style = style;
        [self _hostSetTarget:target action:action];
    }
    return self;
}

- (id)initWithImage:(UIImage *)image style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action {
    if ((self = [self init])) {
        [self setImage:image];
        _item->style = style;
        [self _hostSetTarget:target action:action];
    }
    return self;
}

- (id)initWithCustomView:(UIView *)customView {
    if ((self = [self init]))
        _item->customView = customView;
    return self;
}

- (void)dealloc {
    host::forgetNumber(_item->number);
    delete _item;
    [super dealloc];
}

- (void)_hostSetTarget:(id)target action:(SEL)action {
    _item->target = target;
    _item->action = action;
}

- (UIBarButtonItemStyle)style {
    return _item->style;
}

- (void)setStyle:(UIBarButtonItemStyle)style {
    _item->style = style;
}

- (CGFloat)width {
    return _item->width;
}

- (void)setWidth:(CGFloat)width {
    _item->width = width;
}

- (id)target {
    return _item->target;
}

- (void)setTarget:(id)target {
    _item->target = target;
}

- (SEL)action {
    return _item->action;
}

- (void)setAction:(SEL)action {
    _item->action = action;
}

- (UIView *)customView {
    return _item->customView;
}

- (void)setCustomView:(UIView *)view {
    _item->customView = view;
}

- (UIColor *)tintColor {
    return _item->tintColor;
}

- (void)setTintColor:(UIColor *)color {
    _item->tintColor = color;
}

- (unsigned long long)_hostNumber {
    return _item->number;
}

- (BOOL)_hostIsSpace {
    return _item->space;
}

- (UIFont *)_hostFont {
    return _item->style == UIBarButtonItemStyleDone ? [UIFont boldSystemFontOfSize:titlePoints]
                                                    : [UIFont systemFontOfSize:titlePoints];
}

- (CGFloat)_hostWidth {
    if (_item->width > 0)
        return _item->width;
    if (_item->space)
        return 0;
    if (_item->customView)
        return [_item->customView frame].size.width;
    const CGFloat title = host::textWidth(host::utf16([self title]), host::face([self _hostFont]));
    return std::max({host::upToHalfPoint(title), [[self image] size].width, leastWidth});
}

- (host::Element)_hostElementWithTint:(UIColor *)tint {
    host::Element element{.type = "Button", .label = host::utf8([self title])};
    element.number = _item->number;
    element.enabled = [self isEnabled];
    const bool done = _item->style == UIBarButtonItemStyleDone;
    element.attributes["style"] = std::string(done ? "done" : "plain");
    host::describeText(element, [self _hostFont], _item -> tintColor ? _item -> tintColor.get() : tint,
                       NSTextAlignmentCenter);
    host::describeImage(element, [self image]);
    if (element.label.empty() && *_item->glyph) {
        element.label = host::systemText(_item->spokenName);
        element.attributes["glyph"] = std::string(_item->glyph);
    }
    return element;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    if (gesture.kind != host::GestureKind::tap || ![self isEnabled])
        return host::Outcome::disabled;
    [[self retain] autorelease];
    [[UIApplication sharedApplication] sendAction:_item->action to:_item->target from:self forEvent:nil];
    return host::Outcome::done;
}

@end
