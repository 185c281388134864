// Follows the UIButton class reference.
#import <UIKit/UIButton.h>

#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>
#import <UIKit/UIImageView.h>
#import <UIKit/UILabel.h>

#include "host/Retained.h"
#include "host/Text.h"
#include "UIKit/TextElement.h"
#include "UIKit/UIImage+Host.h"
#include "UIKit/UIView+Host.h"

#include <algorithm>
#include <map>

namespace {

/// What a button shows in one of its states.
struct Look {
    host::Retained<NSString *> title;
    host::Retained<UIColor *> color;
    host::Retained<UIImage *> image;
    host::Retained<UIImage *> background;
};

/// The drawing that a type of button has by itself; empty for none.
const char *glyphOf(UIButtonType type) {
    switch (type) {
    case UIButtonTypeDetailDisclosure:
    case UIButtonTypeInfoLight:
    case UIButtonTypeInfoDark: return "info";
    case UIButtonTypeContactAdd: return "add-contact";
    default: return "";
    }
}

constexpr CGFloat glyphSide = 22, leastHeight = 30;

} // namespace

struct UIButtonState {
    UIButtonType type = UIButtonTypeCustom;
    std::map<UIControlState, Look> looks;
    host::Retained<UILabel *> titleLabel;
    host::Retained<UIImageView *> imageView;
    UIEdgeInsets contentInsets = UIEdgeInsetsZero, titleInsets = UIEdgeInsetsZero,
                 imageInsets = UIEdgeInsetsZero;
};

@implementation UIButton

+ (id)buttonWithType:(UIButtonType)type {
    UIButton *button = [[[self alloc] initWithFrame:CGRectZero] autorelease];
    button->_button->type = type;
    if (*glyphOf(type))
        [button sizeToFit];
    return button;
}

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        _button = new UIButtonState;
        _button->titleLabel = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
        [_button->titleLabel setFont:[UIFont systemFontOfSize:[UIFont buttonFontSize]]];
        _button->imageView = [[[UIImageView alloc] initWithFrame:CGRectZero] autorelease];
        [self addSubview:_button->imageView];
        [self addSubview:_button->titleLabel];
    }
    return self;
}

- (void)dealloc {
    delete _button;
    [super dealloc];
}

- (UIButtonType)buttonType {
    return _button->type;
}

- (UILabel *)titleLabel {
    return _button->titleLabel;
}

- (UIImageView *)imageView {
    return _button->imageView;
}

- (UIEdgeInsets)contentEdgeInsets {
    return _button->contentInsets;
}

- (void)setContentEdgeInsets:(UIEdgeInsets)insets {
    _button->contentInsets = insets;
    [self setNeedsLayout];
}

- (UIEdgeInsets)titleEdgeInsets {
    return _button->titleInsets;
}

- (void)setTitleEdgeInsets:(UIEdgeInsets)insets {
    _button->titleInsets = insets;
    [self setNeedsLayout];
}

- (UIEdgeInsets)imageEdgeInsets {
    return _button->imageInsets;
}

- (void)setImageEdgeInsets:(UIEdgeInsets)insets {
    _button->imageInsets = insets;
    [self setNeedsLayout];
}

- (void)setTitle:(NSString *)title forState:(UIControlState)state {
    _button->looks[state].title = [[title copy] autorelease];
    [self _hostShowState];
}

- (void)setTitleColor:(UIColor *)color forState:(UIControlState)state {
    _button->looks[state].color = color;
    [self _hostShowState];
}

- (void)setImage:(UIImage *)image forState:(UIControlState)state {
    _button->looks[state].image = image;
    [self _hostShowState];
}

- (void)setBackgroundImage:(UIImage *)image forState:(UIControlState)state {
    _button->looks[state].background = image;
}

- (NSString *)titleForState:(UIControlState)state {
    NSString *own = _button->looks[state].title;
    return own ? own : _button->looks[UIControlStateNormal].title.get();
}

- (UIColor *)titleColorForState:(UIControlState)state {
    UIColor *own = _button->looks[state].color;
    if (!own)
        own = _button->looks[UIControlStateNormal].color;
    if (own)
        return own;
    return _button->type == UIButtonTypeCustom ? [UIColor whiteColor] : [self tintColor];
}

- (UIImage *)imageForState:(UIControlState)state {
    UIImage *own = _button->looks[state].image;
    return own ? own : _button->looks[UIControlStateNormal].image.get();
}

- (UIImage *)backgroundImageForState:(UIControlState)state {
    UIImage *own = _button->looks[state].background;
    return own ? own : _button->looks[UIControlStateNormal].background.get();
}

- (NSString *)currentTitle {
    return [self titleForState:[self state]];
}

- (UIColor *)currentTitleColor {
    return [self titleColorForState:[self state]];
}

- (UIImage *)currentImage {
    return [self imageForState:[self state]];
}

- (UIImage *)currentBackgroundImage {
    return [self backgroundImageForState:[self state]];
}

- (void)setEnabled:(BOOL)enabled {
    [super setEnabled:enabled];
    [self _hostShowState];
}

- (void)setSelected:(BOOL)selected {
    [super setSelected:selected];
    [self _hostShowState];
}

- (void)setHighlighted:(BOOL)highlighted {
    [super setHighlighted:highlighted];
    [self _hostShowState];
}

- (void)_hostShowState {
    [_button->titleLabel setText:[self currentTitle]];
    [_button->titleLabel setTextColor:[self currentTitleColor]];
    [_button->imageView setImage:[self currentImage]];
    [self setNeedsLayout];
}

/// The image, then the title, both in the middle.
- (void)layoutSubviews {
    const CGRect room = UIEdgeInsetsInsetRect([self bounds], _button -> contentInsets);
    const CGSize image = [_button->imageView sizeThatFits:room.size];
    const CGSize title = [_button->titleLabel sizeThatFits:room.size];
    const CGFloat width = std::min(image.width + title.width, room.size.width);
    const CGFloat left = CGRectGetMidX(room) - width / 2;
    const CGRect imagePlace =
        CGRectMake(left, CGRectGetMidY(room) - image.height / 2, image.width, image.height);
    const CGRect titlePlace = CGRectMake(left + image.width, CGRectGetMidY(room) - title.height / 2,
                                         width - image.width, title.height);
    [_button->imageView setFrame:UIEdgeInsetsInsetRect(imagePlace, _button->imageInsets)];
    [_button->titleLabel setFrame:UIEdgeInsetsInsetRect(titlePlace, _button->titleInsets)];
}

- (CGSize)sizeThatFits:(CGSize)size {
    if (*glyphOf(_button->type))
        return CGSizeMake(glyphSide, glyphSide);
    const CGSize image = [_button->imageView sizeThatFits:size];
    const CGSize title = [_button->titleLabel sizeThatFits:size];
    const UIEdgeInsets insets = _button->contentInsets;
    return CGSizeMake(insets.left + image.width + title.width + insets.right,
                      insets.top + std::max({image.height, title.height, leastHeight}) + insets.bottom);
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = "Button";
    element.label = host::utf8([self currentTitle]);
    element.enabled = [self isEnabled];
    element.selected = [self isSelected];
    host::describeText(element, [_button->titleLabel font], [self currentTitleColor], NSTextAlignmentCenter);
    UIImage *image = [self currentImage];
    host::describeImage(element, image ? image : [self currentBackgroundImage]);
    if (*glyphOf(_button->type))
        element.attributes["glyph"] = std::string(glyphOf(_button->type));
    return YES;
}

/// The title and the image are told as the button's own.
- (NSArray *)_hostVisibleSubviews {
    NSMutableArray *visible = [[[super _hostVisibleSubviews] mutableCopy] autorelease];
    [visible removeObjectIdenticalTo:_button->titleLabel];
    [visible removeObjectIdenticalTo:_button->imageView];
    return visible;
}

@end
