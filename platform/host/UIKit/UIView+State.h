// What a view remembers; for UIView's own files alone.
#pragma once

#import <UIKit/UIColor.h>
#import <UIKit/UIView.h>

#include "host/Retained.h"

#include <cstdint>

@class UIViewController;

struct UIViewState {
    CGPoint origin = {0, 0}; ///< of the frame, in the superview
    CGRect bounds = {{0, 0}, {0, 0}};
    UIViewAutoresizing autoresizingMask = UIViewAutoresizingNone;
    bool autoresizesSubviews = true;
    UIViewContentMode contentMode = UIViewContentModeScaleToFill;

    UIView *superview = nil; ///< not retained: it retains this view
    host::Retained<NSMutableArray *> subviews = host::Retained<NSMutableArray *>::adopt([NSMutableArray new]);
    std::uint64_t controllerNumber = 0; ///< names the page whose view this is, as long as that lives

    bool hidden = false;
    bool opaque = true;
    bool clipsToBounds = false;
    bool userInteractionEnabled = true;
    bool needsLayout = true;
    CGFloat alpha = 1;
    NSInteger tag = 0;
    host::Retained<UIColor *> backgroundColor;
    host::Retained<UIColor *> tintColor;
    host::Retained<NSString *> accessibilityLabel;
    host::Retained<NSString *> accessibilityIdentifier;
    std::uint64_t number = 0;
};

@interface UIView (State)
- (struct UIViewState *)_hostState;
@end

namespace host {

/// The page whose view `view` is, or nil.
[[nodiscard]] UIViewController *controllerOf(UIView *view);

} // namespace host
