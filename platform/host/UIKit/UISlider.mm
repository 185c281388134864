// Follows the UISlider class reference.
#import <UIKit/UISlider.h>

#import <UIKit/UIImage.h>

#include "UIKit/UIImage+Host.h"
#include "UIKit/UIView+Host.h"

#include <algorithm>
#include <cstdio>

namespace {

constexpr CGFloat sliderHeight = 31;

std::string decimal(float number) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", number);
    return text;
}

} // namespace

@implementation UISlider

@synthesize minimumValueImage = _minimumValueImage, maximumValueImage = _maximumValueImage;
@synthesize continuous = _continuous;

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        _maximumValue = 1;
        _continuous = YES;
    }
    return self;
}

- (void)dealloc {
    [_minimumValueImage release];
    [_maximumValueImage release];
    [super dealloc];
}

- (CGSize)sizeThatFits:(CGSize)size {
    return CGSizeMake(size.width, sliderHeight);
}

- (float)value {
    return _value;
}

- (void)setValue:(float)value {
    [self setValue:value animated:NO];
}

- (void)setValue:(float)value animated:(BOOL)animated {
    _value = std::max(_minimumValue, std::min(value, _maximumValue));
}

- (float)minimumValue {
    return _minimumValue;
}

/// An end that passes the other one takes it along.
- (void)setMinimumValue:(float)minimum {
    _minimumValue = minimum;
    _maximumValue = std::max(_maximumValue, minimum);
    [self setValue:_value];
}

- (float)maximumValue {
    return _maximumValue;
}

- (void)setMaximumValue:(float)maximum {
    _maximumValue = maximum;
    _minimumValue = std::min(_minimumValue, maximum);
    [self setValue:_value];
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = "Slider";
    element.value = decimal(_value);
    element.enabled = [self isEnabled];
    element.attributes["minimum"] = double(_minimumValue);
    element.attributes["maximum"] = double(_maximumValue);
    element.attributes["continuous"] = bool(_continuous);
    if (_minimumValueImage)
        element.attributes["minimumImage"] = host::imagePath(_minimumValueImage);
    if (_maximumValueImage)
        element.attributes["maximumImage"] = host::imagePath(_maximumValueImage);
    return YES;
}

/// A drag passes the middle of its way, so that a continuous slider is heard twice.
- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    if (gesture.kind != host::GestureKind::slide || ![self isEnabled])
        return host::Outcome::disabled;
    const float from = _value, to = static_cast<float>(gesture.amount);
    [self sendActionsForControlEvents:UIControlEventTouchDown];
    [self _hostDragTo:(from + to) / 2];
    [self _hostDragTo:to];
    if (!_continuous)
        [self sendActionsForControlEvents:UIControlEventValueChanged];
    [self sendActionsForControlEvents:UIControlEventTouchUpInside];
    return host::Outcome::done;
}

- (void)_hostDragTo:(float)value {
    [self setValue:value];
    if (_continuous)
        [self sendActionsForControlEvents:UIControlEventValueChanged];
}

@end
