#include "Preferences/TextRows.h"

#import <UIKit/UITextInputTraits.h>

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

} // namespace host
