#pragma once

#import <UIKit/UIWindow.h>

namespace host {

/// Windows that are not hidden, in drawing order.
[[nodiscard]] NSArray *shownWindows();

[[nodiscard]] UIWindow *keyWindow();

} // namespace host
