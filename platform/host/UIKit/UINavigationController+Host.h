#pragma once

#import <UIKit/UINavigationController.h>

@interface UINavigationController (Host)

/// The back button or the swipe from the left edge. NO where there is no way back.
- (BOOL)_hostGoBack;

/// The swipe from the left edge, let go before the middle: both pages are told of a pop and of its return.
- (BOOL)_hostGiveUpBackSwipe;

/// Whether the top page lets a person go back: with the button, or by swiping.
- (BOOL)_hostHasBackButton;
- (BOOL)_hostCanSwipeBack;

@end
