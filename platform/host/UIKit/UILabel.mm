// Follows the UILabel class reference. A label takes no touches by itself.
#import <UIKit/UILabel.h>

#include "host/Retained.h"
#include "host/Text.h"
#include "UIKit/TextElement.h"
#include "UIKit/UIFont+Host.h"
#include "UIKit/UIView+Host.h"

#include <algorithm>
#include <limits>

struct UILabelState {
    host::Retained<NSString *> text;
    host::Retained<UIFont *> font = [UIFont systemFontOfSize:[UIFont labelFontSize]];
    host::Retained<UIColor *> textColor = [UIColor darkTextColor];
    host::Retained<UIColor *> highlightedTextColor;
    host::Retained<UIColor *> shadowColor;
    CGSize shadowOffset = {0, -1};
    NSTextAlignment textAlignment = NSTextAlignmentLeft;
    NSLineBreakMode lineBreakMode = NSLineBreakByTruncatingTail;
    NSInteger numberOfLines = 1;
    bool enabled = true;
    bool highlighted = false;
    bool adjustsFontSizeToFitWidth = false;
    CGFloat minimumScaleFactor = 0;
    CGFloat preferredMaxLayoutWidth = 0;
};

@implementation UILabel

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        _label = new UILabelState;
        [self setUserInteractionEnabled:NO];
    }
    return self;
}

- (void)dealloc {
    delete _label;
    [super dealloc];
}

- (NSString *)text {
    return _label->text;
}

- (void)setText:(NSString *)text {
    _label->text = [[text copy] autorelease];
    [[self superview] setNeedsLayout];
}

- (UIFont *)font {
    return _label->font;
}

- (void)setFont:(UIFont *)font {
    _label->font = font ? font : [UIFont systemFontOfSize:[UIFont labelFontSize]];
    [[self superview] setNeedsLayout];
}

- (UIColor *)textColor {
    return _label->textColor;
}

- (void)setTextColor:(UIColor *)color {
    _label->textColor = color ? color : [UIColor darkTextColor];
}

- (UIColor *)highlightedTextColor {
    return _label->highlightedTextColor;
}

- (void)setHighlightedTextColor:(UIColor *)color {
    _label->highlightedTextColor = color;
}

- (UIColor *)shadowColor {
    return _label->shadowColor;
}

- (void)setShadowColor:(UIColor *)color {
    _label->shadowColor = color;
}

- (CGSize)shadowOffset {
    return _label->shadowOffset;
}

- (void)setShadowOffset:(CGSize)offset {
    _label->shadowOffset = offset;
}

- (NSTextAlignment)textAlignment {
    return _label->textAlignment;
}

- (void)setTextAlignment:(NSTextAlignment)alignment {
    _label->textAlignment = alignment;
}

- (NSLineBreakMode)lineBreakMode {
    return _label->lineBreakMode;
}

- (void)setLineBreakMode:(NSLineBreakMode)mode {
    _label->lineBreakMode = mode;
}

- (NSInteger)numberOfLines {
    return _label->numberOfLines;
}

- (void)setNumberOfLines:(NSInteger)lines {
    _label->numberOfLines = lines;
    [[self superview] setNeedsLayout];
}

- (BOOL)isEnabled {
    return _label->enabled;
}

- (void)setEnabled:(BOOL)enabled {
    _label->enabled = enabled;
}

- (BOOL)isHighlighted {
    return _label->highlighted;
}

- (void)setHighlighted:(BOOL)highlighted {
    _label->highlighted = highlighted;
}

- (BOOL)adjustsFontSizeToFitWidth {
    return _label->adjustsFontSizeToFitWidth;
}

- (void)setAdjustsFontSizeToFitWidth:(BOOL)adjusts {
    _label->adjustsFontSizeToFitWidth = adjusts;
}

- (CGFloat)minimumScaleFactor {
    return _label->minimumScaleFactor;
}

- (void)setMinimumScaleFactor:(CGFloat)factor {
    _label->minimumScaleFactor = factor;
}

- (CGFloat)preferredMaxLayoutWidth {
    return _label->preferredMaxLayoutWidth;
}

- (void)setPreferredMaxLayoutWidth:(CGFloat)width {
    _label->preferredMaxLayoutWidth = width;
}

- (CGRect)textRectForBounds:(CGRect)bounds limitedToNumberOfLines:(NSInteger)lines {
    const host::TextSize size =
        host::textSize(host::utf16(_label->text), host::face(_label->font), bounds.size.width,
                       static_cast<std::size_t>(std::max<NSInteger>(lines, 0)));
    bounds.size =
        CGSizeMake(std::min(size.width, bounds.size.width), std::min(size.height, bounds.size.height));
    return bounds;
}

/// One line is as wide as its text; several are wrapped into the width given, if one is.
- (CGSize)sizeThatFits:(CGSize)size {
    const bool wraps = _label->numberOfLines != 1 && size.width > 0;
    const CGFloat endless = std::numeric_limits<float>::max();
    const CGRect room = CGRectMake(0, 0, wraps ? size.width : endless, endless);
    return [self textRectForBounds:room limitedToNumberOfLines:_label->numberOfLines].size;
}

/// The font that the text is shown in, after it has been made to fit.
- (UIFont *)_hostShownFont {
    const CGFloat room = [self bounds].size.width;
    if (!_label->adjustsFontSizeToFitWidth || _label->numberOfLines != 1 || room <= 0)
        return _label->font;
    return host::fittedFont(_label->text, _label->font, room,
                            _label->minimumScaleFactor * [_label->font.get() pointSize]);
}

- (BOOL)_hostDescribe:(host::Element &)element {
    if ([_label->text.get() length] == 0)
        return NO;
    element.type = "StaticText";
    element.label = host::utf8(_label->text);
    element.enabled = _label->enabled;
    UIColor *lit = _label->highlighted ? _label->highlightedTextColor.get() : nil;
    host::describeText(element, [self _hostShownFont], lit ? lit : _label->textColor.get(),
                       _label->textAlignment);
    return YES;
}

@end
