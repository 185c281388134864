#include "UIKit/TextElement.h"

#include "host/Text.h"
#include "UIKit/UIColor+Host.h"
#include "UIKit/UIFont+Host.h"

#include <algorithm>

namespace host {

namespace {

/// No text is shown smaller than this, whatever the label allows.
constexpr double leastPoints = 1;

const char *alignName(NSTextAlignment alignment) {
    switch (alignment) {
    case NSTextAlignmentCenter: return "center";
    case NSTextAlignmentRight: return "right";
    default: return "left";
    }
}

} // namespace

void describeText(Element &element, UIFont *font, UIColor *color, NSTextAlignment alignment) {
    element.attributes["size"] = face(font).points;
    element.attributes["weight"] = std::string(weightName(font));
    element.attributes["color"] = hex(color);
    element.attributes["align"] = std::string(alignName(alignment));
}

UIFont *fittedFont(NSString *text, UIFont *font, double room, double smallest) {
    const double width = textWidth(utf16(text), face(font));
    if (width <= room)
        return font;
    const double points = face(font).points * room / width;
    return [font fontWithSize:std::max({points, smallest, leastPoints})];
}

} // namespace host
