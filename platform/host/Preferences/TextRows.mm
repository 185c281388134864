#include "Preferences/TextRows.h"

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"

#include <array>

namespace host {

namespace {

struct KeyboardFlag {
    NSString *key;
    UIKeyboardType keyboard;
};

const std::array<KeyboardFlag, 6> flags{{
    {key::isNumeric, UIKeyboardTypeNumberPad},
    {key::isDecimalPad, UIKeyboardTypeDecimalPad},
    {key::isIP, UIKeyboardTypeNumbersAndPunctuation},
    {key::isURL, UIKeyboardTypeURL},
    {key::isEmail, UIKeyboardTypeEmailAddress},
    {key::isEmailAddressing, UIKeyboardTypeEmailAddress},
}};

int keyboardOf(PSSpecifier *row) {
    for (const KeyboardFlag &flag : flags) {
        if (flagProperty(row, flag.key))
            return static_cast<int>(flag.keyboard);
    }
    return [PSSpecifier keyboardTypeForString:textProperty(row, key::keyboard)];
}

} // namespace

void setUpTextRow(PSTextFieldSpecifier *row) {
    NSNumber *correction = flagProperty(row, key::noAutoCorrect) ? [NSNumber numberWithBool:NO] : nil;
    [row setKeyboardType:keyboardOf(row)
                autoCaps:[PSSpecifier autoCapsTypeForString:textProperty(row, key::autoCaps)]
          autoCorrection:[PSSpecifier autoCorrectionTypeForNumber:correction]];
    [row setPlaceholder:textProperty(row, key::placeholder)];
    if (NSString *guess = textProperty(row, key::bestGuess))
        [row setBestGuess:NSSelectorFromString(guess)];
}

void setTraits(id<UITextInputTraits> input, PSSpecifier *specifier) {
    [input setKeyboardType:static_cast<UIKeyboardType>([specifier keyboardType])];
    [input setAutocapitalizationType:static_cast<UITextAutocapitalizationType>([specifier autoCapsType])];
    [input setAutocorrectionType:static_cast<UITextAutocorrectionType>([specifier autoCorrectionType])];
}

void nameInput(UIView *input, PSTableCell *row) {
    [input setAccessibilityLabel:[row title]];
    [input setAccessibilityIdentifier:[[row specifier] identifier]];
}

void editingBegins(NSString *&before, NSString *text) {
    [before release];
    before = [text copy];
}

bool editingChanged(NSString *&before, NSString *text) {
    if (!before || [before isEqual:text])
        return false;
    editingBegins(before, text);
    return true;
}

} // namespace host
