// Messages from the framework to the code of a settings bundle: whatever that code does, Settings goes on.
#pragma once

#import <Preferences/PSSpecifier.h>

namespace host {

/// Records what a developer of a bundle should know.
void complain(NSString *format, ...) NS_FORMAT_FUNCTION(1, 2);

/// The specifier's value as its getter gives it. nil without a getter, and when the getter raises.
[[nodiscard]] id valueOf(PSSpecifier *specifier);

/// Hands a value to the specifier's setter.
void setValueOf(PSSpecifier *specifier, id value);

/// What the target answers to a selector with one argument, the specifier. nil without such a method.
[[nodiscard]] id ask(PSSpecifier *specifier, SEL question);

/// Has the target perform an action (with the specifier, or without an argument). false when the target has
/// no such method or there is no selector.
bool act(PSSpecifier *specifier, SEL action);

/// The title that stands for the specifier's value in its row: the short title, else the title, else nil.
[[nodiscard]] NSString *titleOfValue(PSSpecifier *specifier, id value);

/// Property `key` where it has the expected type; a wrong one reads as absent.
[[nodiscard]] NSString *textProperty(PSSpecifier *specifier, NSString *key);
[[nodiscard]] NSNumber *numberProperty(PSSpecifier *specifier, NSString *key);
[[nodiscard]] bool flagProperty(PSSpecifier *specifier, NSString *key, bool otherwise = false);

/// `object` if it is of the class, else nil.
template<typename T>
[[nodiscard]] T *as(Class wanted, id object) {
    return [object isKindOfClass:wanted] ? static_cast<T *>(object) : nil;
}

/// Runs a piece of the bundle's code. An exception that it raises is recorded with `what` it was doing, and
/// the answer is that record; nil otherwise. Objective-C exceptions only: a C++ exception must not come here.
template<typename Piece>
NSString *guarded(NSString *what, const Piece &piece) {
    NSString *raised = nil;
    @try {
        piece();
    } @catch (NSException *exception) {
        raised = [NSString stringWithFormat:@"%@: %@: %@", what, [exception name], [exception reason]];
        complain(@"%@", raised);
    }
    return raised;
}

} // namespace host
