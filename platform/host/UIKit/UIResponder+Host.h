// Who has the keyboard.
#pragma once

#import <UIKit/UIResponder.h>

@interface UIResponder (Host)

/// Gives up the keyboard without being asked: the responder leaves the screen.
- (void)_hostDropFirstResponder;

/// The responder has just lost the keyboard, in whichever way. The base does nothing.
- (void)_hostDidResign;

@end

namespace host {

/// What has the keyboard, or nil.
[[nodiscard]] UIResponder *firstResponder();

} // namespace host
