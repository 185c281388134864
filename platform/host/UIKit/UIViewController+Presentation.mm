// Follows the UIViewController class reference, "Presenting View Controllers", and the Programming Guide's
// "Presenting View Controllers from Other View Controllers". A phone presents over its whole screen: the root
// of the presenting page's containers presents.
#include "host/EventLog.h"
#include "host/Text.h"
#include "host/Transition.h"
#include "UIKit/UIViewController+State.h"

#import <UIKit/UIWindow.h>

#include <functional>
#include <memory>

namespace {

UIViewController *outermost(UIViewController *controller) {
    while (UIViewController *parent = [controller parentViewController])
        controller = parent;
    return controller;
}

void complain(UIViewController *controller, UIViewController *presenter, const char *reason) {
    NSString *attempt = [NSString stringWithFormat:@"Attempt to present %@ on %@ ", controller, presenter];
    host::record(host::EventKind::log, host::utf8(attempt) + reason);
}

/// Whatever a block keeps is kept until it has been called.
std::function<void()> kept(void (^block)(void)) {
    if (!block)
        return [] {};
    void (^copy)(void) = Block_copy(block);
    return [copy] {
        copy();
        Block_release(copy);
    };
}

/// The pages that take part in a presentation or a dismissal.
struct Pages {
    host::Retained<UIViewController *> below; ///< presents
    host::Retained<UIViewController *> above; ///< is presented, and in front
};

void giveUpKeyboard(UIViewController *controller) {
    [[controller view] endEditing:YES];
}

} // namespace

@implementation UIViewController (UIModalPresentation)

- (UIViewController *)presentedViewController {
    for (UIViewController *each = self; each; each = [each parentViewController]) {
        if (UIViewController *presented = [each _hostState]->presented)
            return presented;
    }
    return nil;
}

- (UIViewController *)presentingViewController {
    for (UIViewController *each = self; each; each = [each parentViewController]) {
        if (UIViewController *presenting = [each _hostState]->presenting)
            return presenting;
    }
    return nil;
}

- (UIModalPresentationStyle)modalPresentationStyle {
    return [self _hostState]->presentationStyle;
}

- (void)setModalPresentationStyle:(UIModalPresentationStyle)style {
    [self _hostState]->presentationStyle = style;
}

- (UIModalTransitionStyle)modalTransitionStyle {
    return [self _hostState]->transitionStyle;
}

- (void)setModalTransitionStyle:(UIModalTransitionStyle)style {
    [self _hostState]->transitionStyle = style;
}

- (BOOL)isBeingPresented {
    return [self _hostState]->beingPresented;
}

- (BOOL)isBeingDismissed {
    return [self _hostState]->beingDismissed;
}

- (void)presentViewController:(UIViewController *)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
    UIViewController *presenter = outermost(self);
    if (!controller)
        [NSException raise:NSInvalidArgumentException format:@"no view controller to present on %@", self];
    if ([presenter _hostState]->presented)
        return complain(controller, self, "which is already presenting");
    if (![[presenter view] window])
        return complain(controller, self, "whose view is not in the window hierarchy");
    if ([controller presentingViewController])
        return complain(controller, self, "while it is being presented already");
    [presenter _hostState]->presented = controller;
    [controller _hostState]->presenting = presenter;
    [controller _hostState]->beingPresented = true;
    [controller _hostLoad];
    [presenter _hostPresent:{presenter, controller} animated:animated completion:kept(completion)];
}

/// Order: the page above is loaded; below will disappear, above will appear, above did appear, below did
/// disappear.
- (void)_hostPresent:(Pages)pages animated:(BOOL)animated completion:(std::function<void()>)completion {
    using enum host::Appearance;
    host::Transition transition;
    transition.begin = [pages, animated] {
        host::noteTransition("present");
        giveUpKeyboard(pages.below);
        [pages.below _hostAppearance:willDisappear animated:animated];
        host::placeInWindow(pages.above, [[pages.below view] window]);
        [pages.above _hostAppearance:willAppear animated:animated];
    };
    transition.end = [pages, animated, completion] {
        [pages.above _hostAppearance:didAppear animated:animated];
        [[pages.below view] removeFromSuperview];
        [pages.below _hostAppearance:didDisappear animated:animated];
        [pages.above _hostState]->beingPresented = false;
        completion();
    };
    host::enqueue(transition);
}

- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion {
    UIViewController *presenter = outermost(self);
    if (![presenter _hostState]->presented)
        presenter = [presenter _hostState]->presenting;
    UIViewController *presented = [presenter _hostState] ? [presenter _hostState]->presented.get() : nil;
    if (!presented || [presented isBeingDismissed])
        return;
    [presented _hostState]->beingDismissed = true;
    [presenter _hostDismiss:presenter animated:animated completion:kept(completion)];
}

/// Order: the page in front will disappear, below will appear, below did appear, the front did disappear.
/// Pages between the two were covered and hear nothing.
- (void)_hostDismiss:(UIViewController *)presenter
            animated:(BOOL)animated
          completion:(std::function<void()>)completion {
    using enum host::Appearance;
    const host::Retained<UIViewController *> below(presenter);
    const auto front = std::make_shared<host::Retained<UIViewController *>>();
    host::Transition transition;
    transition.begin = [below, front, animated] {
        *front = host::frontOf(below);
        UIWindow *window = [[*front view] window];
        host::noteTransition("dismiss");
        giveUpKeyboard(*front);
        [*front _hostAppearance:willDisappear animated:animated];
        [below _hostPlaceIn:[window bounds]];
        [window insertSubview:[below view] belowSubview:[*front view]];
        [below _hostAppearance:willAppear animated:animated];
    };
    transition.end = [below, front, animated, completion] {
        [below _hostAppearance:didAppear animated:animated];
        [[*front view] removeFromSuperview];
        [*front _hostAppearance:didDisappear animated:animated];
        [[below _hostState]->presented _hostState]->beingDismissed = false;
        [below _hostForgetPresented];
        completion();
    };
    host::enqueue(transition);
}

@end
