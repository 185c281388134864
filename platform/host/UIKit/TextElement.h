// What elements say about the look of their text.
#pragma once

#import <UIKit/NSText.h>
#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>

#include "host/Element.h"

namespace host {

/// Sets size, weight, color and align of `element`.
void describeText(Element &element, UIFont *font, UIColor *color, NSTextAlignment alignment);

/// `font`, made smaller until `text` is no wider than `room`, but not below `smallest` points.
[[nodiscard]] UIFont *fittedFont(NSString *text, UIFont *font, double room, double smallest);

} // namespace host
