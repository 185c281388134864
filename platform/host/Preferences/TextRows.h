// What rows with a text to type have in common.
#pragma once

#import <Preferences/PSTableCell.h>
#import <Preferences/PSTextFieldSpecifier.h>

namespace host {

/// Takes keyboard, capitalisation, correction, placeholder and first guess from the specifier's properties.
void setUpTextRow(PSTextFieldSpecifier *row);

/// Gives a field or text view the keyboard, capitalisation and correction that the specifier asks for.
void setTraits(id<UITextInputTraits> input, PSSpecifier *specifier);

/// Names a row's field or text view like the row.
void nameInput(UIView *input, PSTableCell *row);

/// Keeps the text with which editing begins; `before` is an instance variable with a reference of its own.
void editingBegins(NSString *&before, NSString *text);

/// Whether editing left another text than it began with; `before` is that text then. Only a change is stored.
[[nodiscard]] bool editingChanged(NSString *&before, NSString *text);

} // namespace host
