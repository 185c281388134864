// Follows the UITextField class and UITextFieldDelegate protocol references. What a person does is in
// UITextField+Editing.mm.
#include "UIKit/UITextField+State.h"

@implementation UITextField

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _field = new UITextFieldState;
    return self;
}

- (void)dealloc {
    delete _field;
    [super dealloc];
}

- (struct UITextFieldState *)_hostField {
    return _field;
}

- (NSString *)text {
    return _field->text;
}

- (void)setText:(NSString *)text {
    _field->text = text ? [[text copy] autorelease] : @"";
}

- (NSString *)placeholder {
    return _field->placeholder;
}

- (void)setPlaceholder:(NSString *)placeholder {
    _field->placeholder = [[placeholder copy] autorelease];
}

- (UIFont *)font {
    return _field->font;
}

- (void)setFont:(UIFont *)font {
    _field->font = font ? font : [UIFont systemFontOfSize:17];
}

- (UIColor *)textColor {
    return _field->textColor;
}

- (void)setTextColor:(UIColor *)color {
    _field->textColor = color ? color : [UIColor blackColor];
}

- (NSTextAlignment)textAlignment {
    return _field->textAlignment;
}

- (void)setTextAlignment:(NSTextAlignment)alignment {
    _field->textAlignment = alignment;
}

- (UITextBorderStyle)borderStyle {
    return _field->borderStyle;
}

- (void)setBorderStyle:(UITextBorderStyle)style {
    _field->borderStyle = style;
}

- (BOOL)adjustsFontSizeToFitWidth {
    return _field->adjustsFontSizeToFitWidth;
}

- (void)setAdjustsFontSizeToFitWidth:(BOOL)adjusts {
    _field->adjustsFontSizeToFitWidth = adjusts;
}

- (CGFloat)minimumFontSize {
    return _field->minimumFontSize;
}

- (void)setMinimumFontSize:(CGFloat)size {
    _field->minimumFontSize = size;
}

- (UITextFieldViewMode)clearButtonMode {
    return _field->clearButtonMode;
}

- (void)setClearButtonMode:(UITextFieldViewMode)mode {
    _field->clearButtonMode = mode;
}

- (BOOL)clearsOnBeginEditing {
    return _field->clearsOnBeginEditing;
}

- (void)setClearsOnBeginEditing:(BOOL)clears {
    _field->clearsOnBeginEditing = clears;
}

- (UIView *)leftView {
    return _field->leftView;
}

- (void)setLeftView:(UIView *)view {
    [_field->leftView removeFromSuperview];
    _field->leftView = view;
    [self addSubview:view];
}

- (UIView *)rightView {
    return _field->rightView;
}

- (void)setRightView:(UIView *)view {
    [_field->rightView removeFromSuperview];
    _field->rightView = view;
    [self addSubview:view];
}

- (UITextFieldViewMode)leftViewMode {
    return _field->leftViewMode;
}

- (void)setLeftViewMode:(UITextFieldViewMode)mode {
    _field->leftViewMode = mode;
}

- (UITextFieldViewMode)rightViewMode {
    return _field->rightViewMode;
}

- (void)setRightViewMode:(UITextFieldViewMode)mode {
    _field->rightViewMode = mode;
}

- (BOOL)isEditing {
    return [self isFirstResponder];
}

- (id<UITextFieldDelegate>)delegate {
    return _field->delegate;
}

- (void)setDelegate:(id<UITextFieldDelegate>)delegate {
    _field->delegate = delegate;
    _field->can = {
        .shouldBegin = bool([delegate respondsToSelector:@selector(textFieldShouldBeginEditing:)]),
        .didBegin = bool([delegate respondsToSelector:@selector(textFieldDidBeginEditing:)]),
        .shouldEnd = bool([delegate respondsToSelector:@selector(textFieldShouldEndEditing:)]),
        .didEnd = bool([delegate respondsToSelector:@selector(textFieldDidEndEditing:)]),
        .shouldChange = bool([delegate
            respondsToSelector:@selector(textField:shouldChangeCharactersInRange:replacementString:)]),
        .shouldClear = bool([delegate respondsToSelector:@selector(textFieldShouldClear:)]),
        .shouldReturn = bool([delegate respondsToSelector:@selector(textFieldShouldReturn:)]),
    };
}

- (UITextAutocapitalizationType)autocapitalizationType {
    return _field->traits.autocapitalizationType;
}

- (void)setAutocapitalizationType:(UITextAutocapitalizationType)type {
    _field->traits.autocapitalizationType = type;
}

- (UITextAutocorrectionType)autocorrectionType {
    return _field->traits.autocorrectionType;
}

- (void)setAutocorrectionType:(UITextAutocorrectionType)type {
    _field->traits.autocorrectionType = type;
}

- (UIKeyboardType)keyboardType {
    return _field->traits.keyboardType;
}

- (void)setKeyboardType:(UIKeyboardType)type {
    _field->traits.keyboardType = type;
}

- (UIReturnKeyType)returnKeyType {
    return _field->traits.returnKeyType;
}

- (void)setReturnKeyType:(UIReturnKeyType)type {
    _field->traits.returnKeyType = type;
}

- (BOOL)isSecureTextEntry {
    return _field->traits.secureTextEntry;
}

- (void)setSecureTextEntry:(BOOL)secure {
    _field->traits.secureTextEntry = secure;
}

@end
