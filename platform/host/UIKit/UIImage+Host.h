#pragma once

#import <UIKit/UIImage.h>

#include "host/Element.h"

#include <string>

namespace host {

/// Absolute path of the file that `image` was read from; empty for an image made of data, and for nil.
[[nodiscard]] std::string imagePath(UIImage *image);

/// Sets image and scale of `element`, and says whether it is shown as a template in the tint colour.
void describeImage(Element &element, UIImage *image);

} // namespace host
