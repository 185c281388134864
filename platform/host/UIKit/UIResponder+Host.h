#pragma once

#import <UIKit/UIResponder.h>

@interface UIResponder (Host)

/// Gives up the keyboard without being asked: the responder leaves the screen.
- (void)_hostDropFirstResponder;

@end

namespace host {

/// What has the keyboard, or nil.
[[nodiscard]] UIResponder *firstResponder();

} // namespace host
