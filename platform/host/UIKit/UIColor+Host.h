#pragma once

#import <UIKit/UIColor.h>

#include <string>

namespace host {

/// "#rrggbb" of `color`, its alpha left out; empty for nil and for clear.
[[nodiscard]] std::string hex(UIColor *color);

/// The blue that controls have where nobody set another tint.
[[nodiscard]] UIColor *systemTint();

} // namespace host
