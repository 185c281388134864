// Follows the UIViewController class reference, "Managing Child View Controllers in a Custom Container", and
// what the appearance of a page means for those inside it.
#include "UIKit/UIViewController+State.h"

#import <UIKit/UIWindow.h>

#include "UIKit/UIView+State.h"

@implementation UIViewController (UIContainerViewControllers)

- (UIViewController *)parentViewController {
    return [self _hostState]->parent;
}

- (NSArray *)childViewControllers {
    return [[[self _hostState]->children copy] autorelease];
}

- (void)addChildViewController:(UIViewController *)child {
    if (!child || [child parentViewController] == self)
        return;
    const host::Retained<UIViewController *> kept(child);
    if ([child parentViewController])
        [child removeFromParentViewController];
    [child willMoveToParentViewController:self];
    [[self _hostState]->children addObject:child];
    [child _hostSetParent:self];
}

- (void)removeFromParentViewController {
    UIViewController *parent = [self parentViewController];
    if (!parent)
        return;
    const host::Retained<UIViewController *> kept(self);
    [self _hostSetParent:nil];
    [[parent _hostState]->children removeObjectIdenticalTo:self];
    [self didMoveToParentViewController:nil];
}

- (void)willMoveToParentViewController:(UIViewController *)parent {
}

- (void)didMoveToParentViewController:(UIViewController *)parent {
}

- (BOOL)isMovingToParentViewController {
    return [self _hostState]->movingTo;
}

- (BOOL)isMovingFromParentViewController {
    return [self _hostState]->movingFrom;
}

@end

@implementation UIViewController (Host)

- (unsigned long long)_hostNumber {
    return [self _hostState]->number;
}

- (void)_hostAppearance:(host::Appearance)appearance animated:(BOOL)animated {
    using enum host::Appearance;
    UIViewControllerState *state = [self _hostState];
    if (state->appearance == appearance)
        return;
    state->appearance = appearance;
    const host::Retained<UIViewController *> kept(self);
    switch (appearance) {
    case willAppear: [self viewWillAppear:animated]; break;
    case didAppear: [self viewDidAppear:animated]; break;
    case willDisappear: [self viewWillDisappear:animated]; break;
    case didDisappear: [self viewDidDisappear:animated]; break;
    }
    for (UIViewController *child in [self _hostShownChildren])
        [child _hostAppearance:appearance animated:animated];
}

- (BOOL)_hostIsShown {
    return [self _hostState]->appearance != host::Appearance::didDisappear;
}

- (NSArray *)_hostShownChildren {
    NSMutableArray *shown = [NSMutableArray array];
    for (UIViewController *child in [self childViewControllers]) {
        if ([child isViewLoaded] && [[child view] superview])
            [shown addObject:child];
    }
    return shown;
}

- (BOOL)_hostShowsChildrenByTheirViews {
    return YES;
}

- (UIViewController *)_hostInnermost {
    return self;
}

- (void)_hostLoad {
    // A page that overrides `view` has made it without the base.
    if (UIView *view = [self view])
        [view _hostState]->controllerNumber = [self _hostState]->number;
}

- (void)_hostPlaceIn:(CGRect)frame {
    [self _hostLoad];
    [[self view] setFrame:frame];
}

- (void)_hostSetParent:(UIViewController *)parent {
    [self _hostState]->parent = parent;
    [self _hostState]->toldOfParent = false;
}

- (void)_hostTellParent {
    UIViewControllerState *state = [self _hostState];
    if (state->toldOfParent || !state->parent)
        return;
    state->toldOfParent = true;
    [self didMoveToParentViewController:state->parent];
}

- (void)_hostSetMovingTo:(BOOL)movingTo from:(BOOL)movingFrom {
    [self _hostState]->movingTo = movingTo;
    [self _hostState]->movingFrom = movingFrom;
}

- (void)_hostForgetPresented {
    UIViewControllerState *state = [self _hostState];
    if (!state->presented)
        return;
    const host::Retained<UIViewController *> presented = state->presented;
    state->presented = nil;
    [presented _hostState]->presenting = nil;
    [presented _hostForgetPresented];
}

@end

UIViewController *host::frontOf(UIViewController *root) {
    UIViewController *front = root;
    while (UIViewController *presented = [front _hostState]->presented)
        front = presented;
    return front;
}

void host::placeInWindow(UIViewController *controller, UIWindow *window) {
    [controller _hostPlaceIn:[window bounds]];
    [window addSubview:[controller view]];
}
