// Follows the UIColor class reference. Colours here are all in one RGB space; a gray has three equal parts.
#include "UIKit/UIColor+Host.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace {

CGFloat unit(CGFloat value) {
    return std::clamp<CGFloat>(value, 0, 1);
}

/// One part of a fully saturated colour of this hue; `turn` is 5 for red, 3 for green, 1 for blue.
CGFloat hueLoss(CGFloat hue, int turn) {
    const CGFloat k = std::fmod(turn + hue * 6, 6);
    return std::max<CGFloat>(0, std::min({k, 4 - k, CGFloat(1)}));
}

int byteOf(CGFloat part) {
    return static_cast<int>(std::lround(part * 255));
}

UIColor *rgb(int hex) {
    return [UIColor colorWithRed:(hex >> 16 & 255) / 255.0
                           green:(hex >> 8 & 255) / 255.0
                            blue:(hex & 255) / 255.0
                           alpha:1];
}

} // namespace

@implementation UIColor

+ (UIColor *)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return [[[self alloc] initWithWhite:white alpha:alpha] autorelease];
}

+ (UIColor *)colorWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
    return [[[self alloc] initWithRed:red green:green blue:blue alpha:alpha] autorelease];
}

+ (UIColor *)colorWithHue:(CGFloat)hue
               saturation:(CGFloat)saturation
               brightness:(CGFloat)brightness
                    alpha:(CGFloat)alpha {
    const CGFloat s = unit(saturation), v = unit(brightness);
    return [self colorWithRed:v * (1 - s * hueLoss(unit(hue), 5))
                        green:v * (1 - s * hueLoss(unit(hue), 3))
                         blue:v * (1 - s * hueLoss(unit(hue), 1))
                        alpha:alpha];
}

+ (UIColor *)blackColor {
    return rgb(0x000000);
}

+ (UIColor *)darkGrayColor {
    return [self colorWithWhite:1.0 / 3 alpha:1];
}

+ (UIColor *)lightGrayColor {
    return [self colorWithWhite:2.0 / 3 alpha:1];
}

+ (UIColor *)whiteColor {
    return rgb(0xFFFFFF);
}

+ (UIColor *)grayColor {
    return [self colorWithWhite:0.5 alpha:1];
}

+ (UIColor *)redColor {
    return rgb(0xFF0000);
}

+ (UIColor *)greenColor {
    return rgb(0x00FF00);
}

+ (UIColor *)blueColor {
    return rgb(0x0000FF);
}

+ (UIColor *)cyanColor {
    return rgb(0x00FFFF);
}

+ (UIColor *)yellowColor {
    return rgb(0xFFFF00);
}

+ (UIColor *)magentaColor {
    return rgb(0xFF00FF);
}

+ (UIColor *)orangeColor {
    return [self colorWithRed:1 green:0.5 blue:0 alpha:1];
}

+ (UIColor *)purpleColor {
    return [self colorWithRed:0.5 green:0 blue:0.5 alpha:1];
}

+ (UIColor *)brownColor {
    return [self colorWithRed:0.6 green:0.4 blue:0.2 alpha:1];
}

+ (UIColor *)clearColor {
    return [self colorWithWhite:0 alpha:0];
}

+ (UIColor *)lightTextColor {
    return [self colorWithWhite:1 alpha:0.6];
}

+ (UIColor *)darkTextColor {
    return rgb(0x000000);
}

+ (UIColor *)groupTableViewBackgroundColor {
    return rgb(0xEFEFF4);
}

- (id)initWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
    return [self initWithRed:white green:white blue:white alpha:alpha];
}

- (id)initWithRed:(CGFloat)red green:(CGFloat)green blue:(CGFloat)blue alpha:(CGFloat)alpha {
    if ((self = [super init])) {
        _red = unit(red);
        _green = unit(green);
        _blue = unit(blue);
        _alpha = unit(alpha);
    }
    return self;
}

- (BOOL)getRed:(CGFloat *)red green:(CGFloat *)green blue:(CGFloat *)blue alpha:(CGFloat *)alpha {
    if (red)
        *red = _red;
    if (green)
        *green = _green;
    if (blue)
        *blue = _blue;
    if (alpha)
        *alpha = _alpha;
    return YES;
}

- (UIColor *)colorWithAlphaComponent:(CGFloat)alpha {
    return [UIColor colorWithRed:_red green:_green blue:_blue alpha:alpha];
}

- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

- (BOOL)isEqual:(id)other {
    if (![other isKindOfClass:[UIColor class]])
        return NO;
    UIColor *color = other;
    return _red == color->_red && _green == color->_green && _blue == color->_blue && _alpha == color->_alpha;
}

- (NSUInteger)hash {
    return (NSUInteger)(byteOf(_red) << 24 | byteOf(_green) << 16 | byteOf(_blue) << 8 | byteOf(_alpha));
}

- (NSString *)description {
    return [NSString stringWithFormat:@"UIDeviceRGBColorSpace %g %g %g %g", _red, _green, _blue, _alpha];
}

@end

std::string host::hex(UIColor *color) {
    CGFloat red = 0, green = 0, blue = 0, alpha = 0;
    [color getRed:&red green:&green blue:&blue alpha:&alpha];
    if (alpha == 0)
        return {};
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", byteOf(red), byteOf(green), byteOf(blue));
    return text;
}

UIColor *host::systemTint() {
    return rgb(0x007AFF);
}
