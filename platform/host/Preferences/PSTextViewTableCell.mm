// PSTextViewTableCell: a row with a text of several lines. Its value is stored as that of a text field.
#import <Preferences/PSTextViewTableCell.h>

#include "Preferences/PSTableCell+Host.h"

@implementation PSTextViewTableCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    if (self) {
        _textView = [[UITextView alloc] initWithFrame:CGRectZero];
        [_textView setDelegate:self];
        [_textView setFont:[UIFont systemFontOfSize:17]];
        [[self contentView] addSubview:_textView];
    }
    return self;
}

- (void)dealloc {
    [_textView setDelegate:nil];
    [_textView release];
    [_textBefore release];
    [super dealloc];
}

+ (CGFloat)heightForSpecifier:(PSSpecifier *)specifier width:(CGFloat)width {
    return 132; // three rows
}

- (UITextView *)textView {
    return _textView;
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    [_textView setKeyboardType:static_cast<UIKeyboardType>([specifier keyboardType])];
    [_textView setAutocapitalizationType:static_cast<UITextAutocapitalizationType>([specifier autoCapsType])];
    [_textView setAutocorrectionType:static_cast<UITextAutocorrectionType>([specifier autoCorrectionType])];
    [super refreshCellContentsWithSpecifier:specifier];
}

- (void)setValue:(id)value {
    [super setValue:value];
    [_textView setText:host::shownText(value)];
}

/// The text fills the row: its label has no room and only names it.
- (void)setTitle:(NSString *)title {
    [super setTitle:nil];
    [_textView setAccessibilityLabel:title];
    [_textView setAccessibilityIdentifier:[[self specifier] identifier]];
    [self setAccessibilityLabel:title];
}

- (NSString *)title {
    return [self accessibilityLabel];
}

- (void)setCellEnabled:(BOOL)enabled {
    [super setCellEnabled:enabled];
    [_textView setEditable:enabled];
    [_textView setTextColor:enabled ? [UIColor blackColor] : host::disabledColor()];
}

- (void)_hostTapped {
    [_textView becomeFirstResponder];
}

- (void)textViewDidBeginEditing:(UITextView *)textView {
    [_textBefore release];
    _textBefore = [[textView text] copy];
}

- (void)textViewDidEndEditing:(UITextView *)textView {
    NSString *text = [textView text];
    if (!_textBefore || [_textBefore isEqual:text])
        return;
    [_textBefore release];
    _textBefore = [text copy];
    [self _hostChangeValue:_textBefore];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    constexpr CGFloat inset = 10; // a text view keeps five points of its own
    [_textView setFrame:CGRectInset([[self contentView] bounds], inset, 0)];
}

@end
