// Follows the UINavigationController class reference: the stack of pages. What a change of the stack does to
// the pages is in UINavigationController+Transition.mm.
#include "UIKit/UINavigationBar+Host.h"
#include "UIKit/UINavigationController+State.h"
#include "UIKit/UIViewController+Host.h"

#import <UIKit/UIView.h>

@implementation UINavigationController

- (id)initWithNibName:(NSString *)nibName bundle:(NSBundle *)nibBundle {
    if ((self = [super initWithNibName:nibName bundle:nibBundle])) {
        _navigation = new UINavigationControllerState;
        _navigation->bar = [[[UINavigationBar alloc] initWithFrame:CGRectZero] autorelease];
        [_navigation->bar _hostSetController:self];
    }
    return self;
}

- (id)initWithRootViewController:(UIViewController *)root {
    if ((self = [self initWithNibName:nil bundle:nil]))
        [self pushViewController:root animated:NO];
    return self;
}

- (void)dealloc {
    [_navigation->bar _hostSetController:nil];
    delete _navigation;
    [super dealloc];
}

- (struct UINavigationControllerState *)_hostNavigation {
    return _navigation;
}

- (NSArray *)viewControllers {
    return _navigation->stack;
}

- (void)setViewControllers:(NSArray *)controllers {
    [self setViewControllers:controllers animated:NO];
}

/// Pages that leave stay children until they have disappeared.
- (void)setViewControllers:(NSArray *)controllers animated:(BOOL)animated {
    for (UIViewController *page in controllers)
        [self addChildViewController:page];
    for (UIViewController *page in _navigation->stack.get()) {
        if ([controllers indexOfObjectIdenticalTo:page] == NSNotFound)
            [page willMoveToParentViewController:nil];
    }
    _navigation->stack = [[controllers copy] autorelease];
    [self _hostScheduleAnimated:animated];
}

- (UIViewController *)topViewController {
    return [_navigation->stack.get() lastObject];
}

- (UIViewController *)visibleViewController {
    UIViewController *presented = [self presentedViewController];
    return presented ? presented : [self topViewController];
}

- (UINavigationBar *)navigationBar {
    return _navigation->bar;
}

- (BOOL)isNavigationBarHidden {
    return _navigation->barHidden;
}

- (void)setNavigationBarHidden:(BOOL)hidden {
    [self setNavigationBarHidden:hidden animated:NO];
}

- (void)setNavigationBarHidden:(BOOL)hidden animated:(BOOL)animated {
    _navigation->barHidden = hidden;
    if ([self isViewLoaded])
        [self _hostPlaceIn:[[self view] frame]];
}

- (id<UINavigationControllerDelegate>)delegate {
    return _navigation->delegate;
}

- (void)setDelegate:(id<UINavigationControllerDelegate>)delegate {
    _navigation->delegate = delegate;
    _navigation->tellsWillShow = [delegate respondsToSelector:@selector(navigationController:
                                                                      willShowViewController:animated:)];
    _navigation->tellsDidShow = [delegate respondsToSelector:@selector(navigationController:
                                                                      didShowViewController:animated:)];
}

- (void)pushViewController:(UIViewController *)controller animated:(BOOL)animated {
    if (!controller || [_navigation->stack.get() indexOfObjectIdenticalTo:controller] != NSNotFound)
        [NSException raise:NSInvalidArgumentException format:@"%@ cannot be pushed on %@", controller, self];
    [self setViewControllers:[_navigation->stack.get() arrayByAddingObject:controller] animated:animated];
}

- (UIViewController *)popViewControllerAnimated:(BOOL)animated {
    const NSUInteger count = [_navigation->stack.get() count];
    return count < 2 ? nil : [[self _hostPopToCount:count - 1 animated:animated] lastObject];
}

- (NSArray *)popToRootViewControllerAnimated:(BOOL)animated {
    return [self _hostPopToCount:1 animated:animated];
}

- (NSArray *)popToViewController:(UIViewController *)controller animated:(BOOL)animated {
    const NSUInteger index = [_navigation->stack.get() indexOfObjectIdenticalTo:controller];
    if (index == NSNotFound)
        [NSException raise:NSInvalidArgumentException
                    format:@"%@ is not in the stack of %@", controller, self];
    return [self _hostPopToCount:index + 1 animated:animated];
}

/// Keeps the lowest `count` pages. Returns the others, which live at least until the caller's pool is
/// emptied.
- (NSArray *)_hostPopToCount:(NSUInteger)count animated:(BOOL)animated {
    NSArray *stack = [[_navigation->stack.get() retain] autorelease];
    if (count >= [stack count])
        return nil;
    [self setViewControllers:[stack subarrayWithRange:NSMakeRange(0, count)] animated:animated];
    return [stack subarrayWithRange:NSMakeRange(count, [stack count] - count)];
}

@end
