// Follows the UIView class reference, "Managing the View Hierarchy" and "Observing View-Related Changes".
#include "UIKit/UIResponder+Host.h"
#include "UIKit/UIView+Focus.h"
#include "UIKit/UIView+State.h"
#include "UIKit/UIViewController+Host.h"
#import <UIKit/UIWindow.h>

namespace {

void willMoveToWindow(UIView *view, UIWindow *window) {
    [view willMoveToWindow:window];
    if (!window)
        [view _hostDropFirstResponder];
    for (UIView *subview in [view subviews])
        willMoveToWindow(subview, window);
}

void didMoveToWindow(UIView *view) {
    [view didMoveToWindow];
    if ([view window])
        host::fulfilFocusWish(view);
    for (UIView *subview in [view subviews])
        didMoveToWindow(subview);
}

/// A page whose view is put into the view of a container that is on the screen appears with it, and goes with
/// it.
void tellPage(UIView *view, host::Appearance appearance) {
    UIViewController *page = host::controllerOf(view), *container = [page parentViewController];
    if ([container _hostIsShown] && [container _hostShowsChildrenByTheirViews])
        [page _hostAppearance:appearance animated:NO];
}

/// Takes `view` from its superview without the calls that concern its window.
void unlink(UIView *view) {
    UIView *superview = [view superview];
    [superview willRemoveSubview:view];
    [view _hostState]->superview = nil;
    [[superview _hostState]->subviews removeObjectIdenticalTo:view];
    [superview setNeedsLayout];
}

} // namespace

@implementation UIView (UIViewHierarchy)

- (UIView *)superview {
    return [self _hostState]->superview;
}

- (NSArray *)subviews {
    return [[[self _hostState]->subviews copy] autorelease];
}

- (UIWindow *)window {
    return [[self superview] window];
}

- (void)addSubview:(UIView *)view {
    [self insertSubview:view atIndex:(NSInteger)[[self _hostState]->subviews count]];
}

- (void)insertSubview:(UIView *)view atIndex:(NSInteger)index {
    if (!view)
        return;
    const host::Retained<UIView *> kept(view);
    UIWindow *before = [view window], *after = [self window];
    [view willMoveToSuperview:self];
    if (before != after)
        willMoveToWindow(view, after);
    if (after && !before)
        tellPage(view, host::Appearance::willAppear);
    if ([view superview])
        unlink(view);
    NSMutableArray *subviews = [self _hostState]->subviews;
    [subviews insertObject:view atIndex:MIN((NSUInteger)MAX(index, 0), [subviews count])];
    [view _hostState]->superview = self;
    [self setNeedsLayout];
    [view didMoveToSuperview];
    if (before != after)
        didMoveToWindow(view);
    [self didAddSubview:view];
    if (after && !before)
        tellPage(view, host::Appearance::didAppear);
}

- (void)insertSubview:(UIView *)view belowSubview:(UIView *)sibling {
    [self insertSubview:view atIndex:[self _hostIndexOf:sibling ignoring:view]];
}

- (void)insertSubview:(UIView *)view aboveSubview:(UIView *)sibling {
    [self insertSubview:view atIndex:[self _hostIndexOf:sibling ignoring:view] + 1];
}

/// The place of `sibling` once `moved` has been taken out.
- (NSInteger)_hostIndexOf:(UIView *)sibling ignoring:(UIView *)moved {
    NSMutableArray *others = [[[self subviews] mutableCopy] autorelease];
    [others removeObjectIdenticalTo:moved];
    const NSUInteger index = [others indexOfObjectIdenticalTo:sibling];
    return (NSInteger)(index == NSNotFound ? [others count] : index);
}

- (void)bringSubviewToFront:(UIView *)view {
    [self _hostMove:view toIndex:[[self subviews] count] - 1];
}

- (void)sendSubviewToBack:(UIView *)view {
    [self _hostMove:view toIndex:0];
}

- (void)_hostMove:(UIView *)view toIndex:(NSUInteger)index {
    if ([view superview] != self)
        return;
    NSMutableArray *subviews = [self _hostState]->subviews;
    const host::Retained<UIView *> kept(view);
    [subviews removeObjectIdenticalTo:view];
    [subviews insertObject:view atIndex:index];
}

- (void)removeFromSuperview {
    if (![self superview])
        return;
    const host::Retained<UIView *> kept(self);
    const bool leavesWindow = [self window] != nil;
    [self willMoveToSuperview:nil];
    if (leavesWindow) {
        tellPage(self, host::Appearance::willDisappear);
        willMoveToWindow(self, nil);
    }
    unlink(self);
    [self didMoveToSuperview];
    if (leavesWindow) {
        didMoveToWindow(self);
        tellPage(self, host::Appearance::didDisappear);
    }
}

- (BOOL)isDescendantOfView:(UIView *)view {
    for (UIView *each = self; each; each = [each superview]) {
        if (each == view)
            return YES;
    }
    return NO;
}

- (UIView *)viewWithTag:(NSInteger)tag {
    if ([self tag] == tag)
        return self;
    for (UIView *subview in [self subviews]) {
        if (UIView *found = [subview viewWithTag:tag])
            return found;
    }
    return nil;
}

- (BOOL)endEditing:(BOOL)force {
    UIResponder *responder = host::firstResponder();
    if (![responder isKindOfClass:[UIView class]] || ![(UIView *)responder isDescendantOfView:self])
        return YES;
    if ([responder resignFirstResponder])
        return YES;
    if (force)
        [responder _hostDropFirstResponder];
    return force;
}

- (void)didAddSubview:(UIView *)subview {
}

- (void)willRemoveSubview:(UIView *)subview {
}

- (void)willMoveToSuperview:(UIView *)newSuperview {
}

- (void)didMoveToSuperview {
}

- (void)willMoveToWindow:(UIWindow *)newWindow {
}

- (void)didMoveToWindow {
}

@end
