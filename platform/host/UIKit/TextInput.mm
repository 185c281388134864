#include "UIKit/TextInput.h"

#import <UIKit/UIResponder.h>

#include "host/Text.h"
#include "host/Unicode.h"
#include "UIKit/UIResponder+Host.h"

namespace host {

namespace {

/// What one key press gives: a character, of one UTF-16 unit or two.
std::u16string nextKey(const std::u16string &text, std::size_t at) {
    const bool pair = isHighSurrogate(text[at]) && at + 1 < text.size();
    return text.substr(at, pair ? 2 : 1);
}

/// Key by key, as the delegate sees it on the phone; a key that it does not allow is lost.
void type(UIView<HostTextInput> *input, const std::string &text) {
    const std::u16string units = utf16(string(text));
    for (std::size_t at = 0; at < units.size();) {
        const std::u16string key = nextKey(units, at);
        at += key.size();
        [input _hostReplace:NSMakeRange([[input text] length], 0) with:string(key)];
    }
}

Outcome replace(UIView<HostTextInput> *input, const std::string &text) {
    const NSRange all = NSMakeRange(0, [[input text] length]);
    if (all.length && ![input _hostReplace:all with:@""])
        return Outcome::disabled;
    type(input, text);
    return Outcome::done;
}

Outcome clear(UIView<HostTextInput> *input) {
    if (![input _hostCanClear])
        return Outcome::disabled;
    [input _hostClear];
    return Outcome::done;
}

bool hasReturnKey(UIKeyboardType type) {
    return type != UIKeyboardTypeNumberPad && type != UIKeyboardTypePhonePad &&
           type != UIKeyboardTypeDecimalPad;
}

Outcome pressReturn(UIView<HostTextInput> *input) {
    if (!hasReturnKey([input keyboardType]))
        return Outcome::disabled;
    return [input _hostReturn] ? Outcome::done : Outcome::disabled;
}

/// Text as it can be read over somebody's shoulder.
std::string dots(NSString *text) {
    std::string shown;
    for (NSUInteger i = 0; i < [text length]; i++)
        shown += "•";
    return shown;
}

} // namespace

/// Asked by a selector: with clang over GCC's runtime a protocol is known only in files that define a class
/// of it.
UIView<HostTextInput> *focusedInput() {
    UIResponder *responder = firstResponder();
    const bool takesText = [responder respondsToSelector:@selector(_hostReplace:with:)];
    return takesText ? (UIView<HostTextInput> *)responder : nil;
}

Outcome performText(UIView<HostTextInput> *input, const Gesture &gesture) {
    if (gesture.kind == GestureKind::clear)
        return clear(input);
    if (![input becomeFirstResponder])
        return Outcome::disabled;
    switch (gesture.kind) {
    case GestureKind::tap: return Outcome::done;
    case GestureKind::type: type(input, gesture.text); return Outcome::done;
    case GestureKind::replace: return replace(input, gesture.text);
    case GestureKind::returnKey: return pressReturn(input);
    default: return Outcome::disabled;
    }
}

void describeInput(Element &element, UIView<HostTextInput> *input) {
    const bool secure = [input isSecureTextEntry];
    element.value = secure ? dots([input text]) : utf8([input text]);
    element.attributes["keyboard"] = double([input keyboardType]);
    element.attributes["focused"] = bool([input isFirstResponder]);
    element.attributes["secure"] = secure;
    element.attributes["clear"] = bool([input _hostCanClear]);
}

} // namespace host
