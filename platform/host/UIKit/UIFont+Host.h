#pragma once

#import <UIKit/UIFont.h>

#include "UIKit/TextMeasure.h"

namespace host {

/// What text measuring needs to know of `font`; the 17 point system font for nil.
[[nodiscard]] Face face(UIFont *font);

/// "regular" or "bold", as elements name weights.
[[nodiscard]] const char *weightName(UIFont *font);

} // namespace host
