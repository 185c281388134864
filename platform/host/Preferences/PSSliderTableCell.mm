// PSSliderTableCell: a slider over the width of the row.
#import <Preferences/PSSliderTableCell.h>

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PSTableCell+Host.h"

#include <algorithm>
#include <cmath>

namespace key = host::key;

static float numberOr(PSSpecifier *specifier, NSString *key, float otherwise) {
    NSNumber *number = host::numberProperty(specifier, key);
    return number ? [number floatValue] : otherwise;
}

@implementation PSSliderTableCell

- (UIControl *)newControl {
    UISlider *slider = [[UISlider alloc] initWithFrame:CGRectZero];
    [[self contentView] addSubview:slider];
    _valueText = [[UILabel alloc] initWithFrame:CGRectZero];
    [_valueText setTextColor:host::detailColor()];
    [_valueText setTextAlignment:NSTextAlignmentRight];
    [[self contentView] addSubview:_valueText];
    return slider;
}

- (void)dealloc {
    [_valueText release];
    [super dealloc];
}

- (UISlider *)_hostSlider {
    return static_cast<UISlider *>(_control);
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    UISlider *slider = [self _hostSlider];
    const float low = numberOr(specifier, key::min, 0);
    [slider setMinimumValue:low];
    [slider setMaximumValue:std::max(low, numberOr(specifier, key::max, 1))];
    [slider setContinuous:host::flagProperty(specifier, key::isContinuous)];
    [slider setMinimumValueImage:host::imageOf(specifier, [specifier propertyForKey:key::leftImage])];
    [slider setMaximumValueImage:host::imageOf(specifier, [specifier propertyForKey:key::rightImage])];
    [_valueText setHidden:!host::flagProperty(specifier, key::showValue)];
    [super refreshCellContentsWithSpecifier:specifier];
    [self setNeedsLayout];
}

- (BOOL)_hostShowsTitle {
    return NO;
}

/// With stops, `segmentCount` of them lie between the ends, which are stops themselves.
- (float)_hostNearestStop:(float)value {
    const int count = [host::numberProperty([self specifier], key::segmentCount) intValue];
    if (!host::flagProperty([self specifier], key::isSegmented) || count < 1)
        return value;
    const float low = [[self _hostSlider] minimumValue];
    const float step = ([[self _hostSlider] maximumValue] - low) / static_cast<float>(count);
    return step > 0 ? low + std::round((value - low) / step) * step : low;
}

- (void)updateControl {
    id value = [self value];
    UISlider *slider = [self _hostSlider];
    const float shown =
        [value respondsToSelector:@selector(floatValue)] ? [value floatValue] : [slider minimumValue];
    [slider setValue:std::isfinite(shown) ? shown : [slider minimumValue] animated:NO];
    [self _hostShowValue];
}

- (void)_hostShowValue {
    [_valueText setText:[NSString stringWithFormat:@"%.2f", static_cast<double>([[self _hostSlider] value])]];
}

- (id)controlValue {
    return [NSNumber numberWithFloat:[[self _hostSlider] value]];
}

- (void)controlChanged:(UIControl *)control {
    UISlider *slider = [self _hostSlider];
    [slider setValue:[self _hostNearestStop:[slider value]] animated:YES];
    [self _hostShowValue];
    [super controlChanged:control];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    constexpr CGFloat valueWidth = 60;
    const CGRect content = [[self contentView] bounds];
    CGFloat right = content.size.width - host::rowMargin;
    if (![_valueText isHidden]) {
        [_valueText setFrame:CGRectMake(right - valueWidth, 0, valueWidth, content.size.height)];
        right -= valueWidth;
    }
    const CGFloat left =
        [self icon] ? CGRectGetMaxX([[self imageView] frame]) + host::rowMargin : host::rowMargin;
    [_control setFrame:CGRectMake(left, 0, MAX(0, right - left), content.size.height)];
}

@end
