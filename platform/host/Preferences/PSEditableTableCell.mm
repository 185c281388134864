// PSEditableTableCell: a row with a text field. The value is stored when editing ends, and only when the text
// changed.
#import <Preferences/PSEditableTableCell.h>
#import <Preferences/PSTextFieldSpecifier.h>

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PSTableCell+Host.h"
#include "Preferences/TextRows.h"

namespace key = host::key;

@implementation PSEditableTableCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    if (self) {
        _textField = [[UITextField alloc] initWithFrame:CGRectZero];
        [_textField setDelegate:self];
        [_textField setClearButtonMode:UITextFieldViewModeWhileEditing];
        [[self contentView] addSubview:_textField];
        _suffixLabel = [self _hostNewLabel];
        _promptLabel = [self _hostNewLabel];
    }
    return self;
}

- (void)dealloc {
    [_textField setDelegate:nil];
    [_textField release];
    [_suffixLabel release];
    [_promptLabel release];
    [_textBefore release];
    [super dealloc];
}

- (UILabel *)_hostNewLabel __attribute__((ns_returns_retained)) {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    [label setTextColor:host::detailColor()];
    [[self contentView] addSubview:label];
    return label;
}

- (UITextField *)textField {
    return _textField;
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    PSTextFieldSpecifier *row = host::as<PSTextFieldSpecifier>([PSTextFieldSpecifier class], specifier);
    NSString *placeholder = [row placeholder];
    [_textField setPlaceholder:placeholder ? placeholder : host::textProperty(specifier, key::placeholder)];
    host::setTraits(_textField, specifier);
    [_textField setSecureTextEntry:[specifier cellType] == PSSecureEditTextCell];
    [_suffixLabel setText:host::textProperty(specifier, key::suffix)];
    [_promptLabel setText:host::textProperty(specifier, key::prompt)];
    [super refreshCellContentsWithSpecifier:specifier];
    [self setNeedsLayout];
}

/// A row without a value begins with the target's best guess.
- (void)setValue:(id)value {
    PSTextFieldSpecifier *row =
        host::as<PSTextFieldSpecifier>([PSTextFieldSpecifier class], [self specifier]);
    if (!value && [row bestGuess])
        value = host::ask(row, [row bestGuess]);
    [super setValue:value];
    if (![_textField isEditing])
        [_textField setText:host::shownText(value)];
}

- (void)setTitle:(NSString *)title {
    [super setTitle:title];
    host::nameInput(_textField, self);
}

- (void)setCellEnabled:(BOOL)enabled {
    [super setCellEnabled:enabled];
    [_textField setEnabled:enabled];
    [_textField setTextColor:enabled ? [UIColor blackColor] : host::disabledColor()];
}

- (void)_hostTapped {
    [_textField becomeFirstResponder];
}

- (void)textFieldDidBeginEditing:(UITextField *)textField {
    host::editingBegins(_textBefore, [textField text]);
}

- (void)textFieldDidEndEditing:(UITextField *)textField {
    if (host::editingChanged(_textBefore, [textField text]))
        [self _hostChangeValue:_textBefore];
}

- (BOOL)textFieldShouldReturn:(UITextField *)textField {
    [textField resignFirstResponder];
    if (host::flagProperty([self specifier], key::popOnReturn))
        [[static_cast<UIViewController *>([self cellTarget]) navigationController]
            popViewControllerAnimated:YES];
    return NO;
}

/// Label, prompt, field and suffix stand side by side; the field takes the room that is left.
- (void)layoutSubviews {
    [super layoutSubviews];
    constexpr CGFloat gap = 10;
    const CGRect content = [[self contentView] bounds];
    UILabel *label = [self textLabel];
    CGFloat left = [[label text] length] ? CGRectGetMinX([label frame]) : host::rowMargin;
    CGFloat right = content.size.width - host::rowMargin;
    if ([[label text] length]) {
        const CGFloat width = MIN([label sizeThatFits:content.size].width, content.size.width / 2);
        [label setFrame:CGRectMake(left, 0, width, content.size.height)];
        left += width + gap;
    }
    left += [self _hostPlace:_promptLabel at:left height:content.size.height gap:gap];
    const CGFloat suffixWidth = [_suffixLabel sizeThatFits:content.size].width;
    right -= [self _hostPlace:_suffixLabel at:right - suffixWidth height:content.size.height gap:gap];
    [_textField setFrame:CGRectMake(left, 0, MAX(0, right - left), content.size.height)];
}

/// The room that the label takes with its gap; none without a text.
- (CGFloat)_hostPlace:(UILabel *)label at:(CGFloat)x height:(CGFloat)height gap:(CGFloat)gap {
    const BOOL empty = [[label text] length] == 0;
    [label setHidden:empty];
    const CGFloat width = empty ? 0 : [label sizeThatFits:CGSizeMake(0, height)].width;
    [label setFrame:CGRectMake(x, 0, width, height)];
    return empty ? 0 : width + gap;
}

@end
