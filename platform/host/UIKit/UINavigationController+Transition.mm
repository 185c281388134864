// How the pages of a navigation controller change places. Follows the UINavigationController class reference;
// the order of the calls is: the page that leaves will disappear, the other will appear, the first did
// disappear, the other did appear.
#include "host/Transition.h"
#include "UIKit/Metrics.h"
#include "UIKit/UINavigationBar+Host.h"
#include "UIKit/UINavigationController+Host.h"
#include "UIKit/UINavigationController+State.h"
#include "UIKit/UIView+Host.h"
#include "UIKit/UIViewController+Host.h"

#import <UIKit/UIBarButtonItem.h>
#import <UIKit/UIColor.h>
#import <UIKit/UINavigationItem.h>
#import <UIKit/UIScreen.h>
#import <UIKit/UIScrollView.h>

#include <memory>

using enum host::Appearance;
using Page = host::Retained<UIViewController *>;

namespace {

bool contains(NSArray *pages, UIViewController *page) {
    return [pages indexOfObjectIdenticalTo:page] != NSNotFound;
}

/// The scroll view that the bars lie over: the page's view itself, or the lowest view in it.
UIScrollView *adjustedScrollView(UIView *view) {
    if (![view isKindOfClass:[UIScrollView class]])
        view = [[view subviews] count] ? [[view subviews] objectAtIndex:0] : nil;
    return [view isKindOfClass:[UIScrollView class]] ? (UIScrollView *)view : nil;
}

/// A page that has set insets of its own keeps them.
void adjustInsets(UIViewController *page, CGFloat top) {
    UIScrollView *scrolled = adjustedScrollView([page view]);
    if (!scrolled || !UIEdgeInsetsEqualToEdgeInsets([scrolled contentInset], UIEdgeInsetsZero))
        return;
    const CGPoint offset = [scrolled contentOffset];
    [scrolled setContentInset:UIEdgeInsetsMake(top, 0, 0, 0)];
    [scrolled setScrollIndicatorInsets:UIEdgeInsetsMake(top, 0, 0, 0)];
    [scrolled setContentOffset:CGPointMake(offset.x, offset.y - top)];
}

} // namespace

/// Holds the shown page and the bar over it.
@interface HostNavigationView : UIView
@end

@implementation HostNavigationView

/// The bar is told first: that is the order in which the screen is read.
- (NSArray *)_hostVisibleSubviews {
    NSMutableArray *bars = [NSMutableArray array], *others = [NSMutableArray array];
    for (UIView *view in [super _hostVisibleSubviews])
        [[view isKindOfClass:[UINavigationBar class]] ? bars : others addObject:view];
    return [bars arrayByAddingObjectsFromArray:others];
}

@end

@implementation UINavigationController (Transition)

- (void)_hostScheduleAnimated:(BOOL)animated {
    UINavigationControllerState *state = [self _hostNavigation];
    state->animated = animated;
    if (![self _hostIsShown] && !host::inTransition()) {
        [self _hostShowTop];
        return;
    }
    if (state->scheduled)
        return;
    state->scheduled = true;
    const host::Retained<UINavigationController *> me(self);
    const auto from = std::make_shared<Page>();
    host::enqueue({[me, from] { [me _hostBeginFrom:*from]; }, [me, from] { [me _hostEndFrom:*from]; }});
}

/// Sets `from` to the page that leaves; nil when there is nothing to change after all.
- (void)_hostBeginFrom:(Page &)from {
    UINavigationControllerState *state = [self _hostNavigation];
    state->scheduled = false;
    UIViewController *top = [self topViewController];
    if (top == state->shown.get())
        return [self _hostDropChildren];
    if (![self _hostIsShown])
        return [self _hostShowTop];
    from = state->shown;
    const bool pops = !contains(state->stack, from);
    host::noteTransition(pops ? "pop" : "push");
    [[from view] endEditing:YES];
    [from _hostSetMovingTo:NO from:pops];
    [top _hostSetMovingTo:!pops from:NO];
    [from _hostAppearance:willDisappear animated:state->animated];
    state->shown = top;
    [self _hostPlaceShown];
    [top _hostAppearance:willAppear animated:state->animated];
    if (state->tellsWillShow)
        [state->delegate navigationController:self willShowViewController:top animated:state->animated];
}

- (void)_hostEndFrom:(Page &)from {
    UINavigationControllerState *state = [self _hostNavigation];
    if (!from)
        return;
    const Page to = state->shown;
    if ([from view] != [to view])
        [[from view] removeFromSuperview];
    [from _hostAppearance:didDisappear animated:state->animated];
    [to _hostAppearance:didAppear animated:state->animated];
    [from _hostSetMovingTo:NO from:NO];
    [to _hostSetMovingTo:NO from:NO];
    if (state->tellsDidShow)
        [state->delegate navigationController:self didShowViewController:to animated:state->animated];
    [self _hostDropChildren];
    from = nil;
}

- (void)_hostShowTop {
    UINavigationControllerState *state = [self _hostNavigation];
    if (state->shown.get() != [self topViewController] && [self isViewLoaded])
        [[state->shown view] removeFromSuperview];
    state->shown = [self topViewController];
    [self _hostPlaceShown];
    [self _hostDropChildren];
}

/// Pages that have left the stack are children no more; those that have come are told so.
- (void)_hostDropChildren {
    for (UIViewController *child in [self childViewControllers]) {
        if (!contains([self viewControllers], child))
            [child removeFromParentViewController];
    }
    for (UIViewController *page in [self viewControllers])
        [page _hostTellParent];
}

- (CGFloat)_hostBarsHeight {
    return host::statusBarHeight + ([self isNavigationBarHidden] ? 0 : host::navigationBarHeight);
}

- (void)_hostPlaceShown {
    UIViewController *page = [self _hostNavigation]->shown;
    if (!page || ![self isViewLoaded])
        return;
    UIView *container = [self view];
    const CGFloat top = [self _hostBarsHeight];
    CGRect room = [container bounds];
    const bool underBars = [page edgesForExtendedLayout] & UIRectEdgeTop;
    if (!underBars)
        room = UIEdgeInsetsInsetRect(room, UIEdgeInsetsMake(top, 0, 0, 0));
    [page _hostPlaceIn:room];
    if (underBars && [page automaticallyAdjustsScrollViewInsets])
        adjustInsets(page, top);
    [container insertSubview:[page view] belowSubview:[self navigationBar]];
    [[self navigationBar] _hostArrange];
}

- (void)loadView {
    UIView *view = [[[HostNavigationView alloc] initWithFrame:[[UIScreen mainScreen] bounds]] autorelease];
    [view setBackgroundColor:[UIColor whiteColor]];
    [view addSubview:[self navigationBar]];
    [self setView:view];
}

- (void)_hostLoad {
    [super _hostLoad];
    UINavigationControllerState *state = [self _hostNavigation];
    if (!state->shown)
        state->shown = [self topViewController];
    [state->shown _hostLoad];
}

- (void)_hostPlaceIn:(CGRect)frame {
    [super _hostPlaceIn:frame];
    if (![self _hostNavigation]->scheduled)
        [self _hostNavigation]->shown = [self topViewController];
    UINavigationBar *bar = [self navigationBar];
    [bar setFrame:CGRectMake(0, host::statusBarHeight, frame.size.width, host::navigationBarHeight)];
    [bar setHidden:[self isNavigationBarHidden]];
    [self _hostPlaceShown];
    [self _hostDropChildren];
}

- (NSArray *)_hostShownChildren {
    UIViewController *shown = [self _hostNavigation]->shown;
    return shown ? [NSArray arrayWithObject:shown] : [NSArray array];
}

- (BOOL)_hostShowsChildrenByTheirViews {
    return NO;
}

- (UIViewController *)_hostInnermost {
    UIViewController *shown = [self _hostNavigation]->shown;
    return shown ? [shown _hostInnermost] : self;
}

@end

@implementation UINavigationController (Host)

- (BOOL)_hostHasBackButton {
    UINavigationItem *item = [[self topViewController] navigationItem];
    return [[self viewControllers] count] > 1 && ![item hidesBackButton] &&
           ([[item leftBarButtonItems] count] == 0 || [item leftItemsSupplementBackButton]);
}

/// Where something else stands in the place of the back button, the swipe is off too.
- (BOOL)_hostCanSwipeBack {
    return [self _hostHasBackButton] && ![self isNavigationBarHidden];
}

- (BOOL)_hostGoBack {
    return [self popViewControllerAnimated:YES] != nil;
}

- (BOOL)_hostGiveUpBackSwipe {
    NSArray *stack = [self viewControllers];
    if ([stack count] < 2)
        return NO;
    const Page leaving([self topViewController]);
    const Page coming([stack objectAtIndex:[stack count] - 2]);
    host::enqueue({[leaving, coming] {
                       [leaving _hostSetMovingTo:NO from:YES];
                       [leaving _hostAppearance:willDisappear animated:YES];
                       [coming _hostLoad];
                       [coming _hostAppearance:willAppear animated:YES];
                   },
                   [leaving, coming] {
                       [coming _hostAppearance:willDisappear animated:YES];
                       [coming _hostAppearance:didDisappear animated:YES];
                       [leaving _hostAppearance:willAppear animated:YES];
                       [leaving _hostAppearance:didAppear animated:YES];
                       [leaving _hostSetMovingTo:NO from:NO];
                   }});
    return YES;
}

@end
