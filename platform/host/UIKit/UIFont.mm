// Follows the UIFont class reference; names of the faces as on iOS 7 and 8.
#include "UIKit/UIFont+Host.h"

@implementation UIFont

+ (UIFont *)systemFontOfSize:(CGFloat)size {
    return [self fontWithName:@"HelveticaNeue" size:size];
}

+ (UIFont *)boldSystemFontOfSize:(CGFloat)size {
    return [self fontWithName:@"HelveticaNeue-Medium" size:size];
}

+ (UIFont *)italicSystemFontOfSize:(CGFloat)size {
    return [self fontWithName:@"HelveticaNeue-Italic" size:size];
}

+ (UIFont *)fontWithName:(NSString *)name size:(CGFloat)size {
    if (!name)
        return nil;
    UIFont *font = [[[self alloc] init] autorelease];
    font->_fontName = [name copy];
    font->_pointSize = size > 0 ? size : [self systemFontSize];
    return font;
}

+ (CGFloat)labelFontSize {
    return 17;
}

+ (CGFloat)buttonFontSize {
    return 18;
}

+ (CGFloat)smallSystemFontSize {
    return 12;
}

+ (CGFloat)systemFontSize {
    return 14;
}

- (void)dealloc {
    [_fontName release];
    [super dealloc];
}

- (NSString *)fontName {
    return _fontName;
}

- (NSString *)familyName {
    return [_fontName hasPrefix:@"HelveticaNeue"] ? @"Helvetica Neue" : _fontName;
}

- (CGFloat)pointSize {
    return _pointSize;
}

- (CGFloat)lineHeight {
    return host::lineHeight(host::face(self));
}

- (UIFont *)fontWithSize:(CGFloat)size {
    return [UIFont fontWithName:_fontName size:size];
}

- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

- (BOOL)isEqual:(id)other {
    return [other isKindOfClass:[UIFont class]] && [other pointSize] == _pointSize &&
           [[other fontName] isEqualToString:_fontName];
}

- (NSUInteger)hash {
    return [_fontName hash] ^ (NSUInteger)(_pointSize * 8);
}

@end

namespace {

bool isBold(UIFont *font) {
    NSString *name = [font fontName];
    return name && ([name rangeOfString:@"Bold"].length || [name rangeOfString:@"Medium"].length);
}

} // namespace

host::Face host::face(UIFont *font) {
    if (!font)
        return {};
    return {[font pointSize], isBold(font) ? Weight::bold : Weight::regular};
}

const char *host::weightName(UIFont *font) {
    return isBold(font) ? "bold" : "regular";
}
