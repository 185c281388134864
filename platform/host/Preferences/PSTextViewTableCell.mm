// PSTextViewTableCell: a row with a text of several lines. Its value is stored as that of a text field.
#import <Preferences/PSTextViewTableCell.h>

#include "Preferences/PSTableCell+Host.h"
#include "Preferences/TextRows.h"

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
    host::setTraits(_textView, specifier);
    [super refreshCellContentsWithSpecifier:specifier];
}

- (void)setValue:(id)value {
    [super setValue:value];
    [_textView setText:host::shownText(value)];
}

- (BOOL)_hostShowsTitle {
    return NO;
}

- (void)setTitle:(NSString *)title {
    [super setTitle:title];
    host::nameInput(_textView, self);
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
    host::editingBegins(_textBefore, [textView text]);
}

- (void)textViewDidEndEditing:(UITextView *)textView {
    if (host::editingChanged(_textBefore, [textView text]))
        [self _hostChangeValue:_textBefore];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    constexpr CGFloat inset = 10; // a text view keeps five points of its own
    [_textView setFrame:CGRectInset([[self contentView] bounds], inset, 0)];
}

@end
