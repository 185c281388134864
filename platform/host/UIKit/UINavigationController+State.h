// What a navigation controller remembers; for UINavigationController's own files alone.
#pragma once

#import <UIKit/UINavigationBar.h>
#import <UIKit/UINavigationController.h>

#include "host/Retained.h"

struct UINavigationControllerState {
    host::Retained<NSArray *> stack = [NSArray array];
    host::Retained<UIViewController *> shown; ///< whose view is in place; the top page except during a change
    host::Retained<UINavigationBar *> bar;
    bool barHidden = false;
    bool scheduled = false; ///< a change of the shown page waits for its turn
    bool animated = false;
    id<UINavigationControllerDelegate> delegate = nil;
    bool tellsWillShow = false, tellsDidShow = false;
};

@interface UINavigationController (State)
- (struct UINavigationControllerState *)_hostNavigation;
@end

@interface UINavigationController (Transition)

/// Shows the top page when its turn comes, if it is not the one that is shown.
- (void)_hostScheduleAnimated:(BOOL)animated;

/// Shows the top page at once and without a word to anybody: this controller is not on the screen.
- (void)_hostShowTop;

@end
