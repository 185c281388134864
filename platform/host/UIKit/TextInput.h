// Typing: what a text field and a text view have in common for the person who types.
#pragma once

#import <UIKit/UITextInputTraits.h>
#import <UIKit/UIView.h>

#include "host/Element.h"
#include "host/Gesture.h"

/// A view that holds text and takes the keyboard.
@protocol HostTextInput <UITextInputTraits>
/// Changes a part of the text as a person does: the delegate is asked first, and everybody told after.
/// NO when the delegate did not allow it.
- (BOOL)_hostReplace:(NSRange)range with:(NSString *)text;
/// The Return key. NO when it did nothing.
- (BOOL)_hostReturn;
- (BOOL)_hostCanClear;
- (void)_hostClear;
- (NSString *)text;
@end

namespace host {

/// What an input asks of its keyboard, as it is at first.
struct InputTraits {
    UITextAutocapitalizationType autocapitalizationType = UITextAutocapitalizationTypeSentences;
    UITextAutocorrectionType autocorrectionType = UITextAutocorrectionTypeDefault;
    UIKeyboardType keyboardType = UIKeyboardTypeDefault;
    UIReturnKeyType returnKeyType = UIReturnKeyDefault;
    bool secureTextEntry = false;
};

/// What the keyboard types into now, or nil.
[[nodiscard]] UIView<HostTextInput> *focusedInput();

/// Carries out a tap or a typing gesture on `input`, which takes the keyboard first if it can.
[[nodiscard]] Outcome performText(UIView<HostTextInput> *input, const Gesture &gesture);

/// Sets the value and the attributes that all text inputs have.
void describeInput(Element &element, UIView<HostTextInput> *input);

} // namespace host
