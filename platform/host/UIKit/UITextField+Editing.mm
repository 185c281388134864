// What a person does with a text field. Follows the UITextFieldDelegate protocol reference.
#include "host/Text.h"
#include "UIKit/TextElement.h"
#include "UIKit/UIFont+Host.h"
#include "UIKit/UIResponder+Host.h"
#include "UIKit/UITextField+State.h"
#include "UIKit/UIView+Host.h"

#include <algorithm>

NSString *const UITextFieldTextDidBeginEditingNotification = @"UITextFieldTextDidBeginEditingNotification";
NSString *const UITextFieldTextDidEndEditingNotification = @"UITextFieldTextDidEndEditingNotification";
NSString *const UITextFieldTextDidChangeNotification = @"UITextFieldTextDidChangeNotification";

namespace {

void post(NSString *name, UITextField *field) {
    [[NSNotificationCenter defaultCenter] postNotificationName:name object:field];
}

/// Whether something of this mode shows in a field that is being edited or not.
bool shows(UITextFieldViewMode mode, bool editing) {
    switch (mode) {
    case UITextFieldViewModeWhileEditing: return editing;
    case UITextFieldViewModeUnlessEditing: return !editing;
    case UITextFieldViewModeAlways: return true;
    default: return false;
    }
}

} // namespace

@implementation UITextField (Editing)

- (BOOL)canBecomeFirstResponder {
    return [self isEnabled];
}

- (BOOL)becomeFirstResponder {
    UITextFieldState *field = [self _hostField];
    if ([self isFirstResponder])
        return YES;
    if ([self window] && field->can.shouldBegin && ![field->delegate textFieldShouldBeginEditing:self])
        return NO;
    if (![super becomeFirstResponder])
        return NO;
    [self _hostDidBegin];
    return YES;
}

- (void)_hostDidBegin {
    UITextFieldState *field = [self _hostField];
    if (field->clearsOnBeginEditing)
        [self setText:@""];
    if (field->can.didBegin)
        [field->delegate textFieldDidBeginEditing:self];
    post(UITextFieldTextDidBeginEditingNotification, self);
    [self sendActionsForControlEvents:UIControlEventEditingDidBegin];
}

- (BOOL)canResignFirstResponder {
    UITextFieldState *field = [self _hostField];
    return !field->can.shouldEnd || [field->delegate textFieldShouldEndEditing:self];
}

- (void)_hostDidResign {
    UITextFieldState *field = [self _hostField];
    if (field->can.didEnd)
        [field->delegate textFieldDidEndEditing:self];
    post(UITextFieldTextDidEndEditingNotification, self);
    [self sendActionsForControlEvents:UIControlEventEditingDidEnd];
}

- (BOOL)_hostReplace:(NSRange)range with:(NSString *)text {
    UITextFieldState *field = [self _hostField];
    if (field->can.shouldChange && ![field->delegate textField:self
                                       shouldChangeCharactersInRange:range
                                                   replacementString:text])
        return NO;
    [self setText:[[self text] stringByReplacingCharactersInRange:range withString:text]];
    [self _hostDidChange];
    return YES;
}

- (void)_hostDidChange {
    post(UITextFieldTextDidChangeNotification, self);
    [self sendActionsForControlEvents:UIControlEventEditingChanged];
}

/// A field with an action for "did end on exit" gives the keyboard back by itself.
- (BOOL)_hostReturn {
    UITextFieldState *field = [self _hostField];
    if (field->can.shouldReturn && ![field->delegate textFieldShouldReturn:self])
        return YES;
    const BOOL leaves = ([self allControlEvents] & UIControlEventEditingDidEndOnExit) != 0;
    [self sendActionsForControlEvents:UIControlEventEditingDidEndOnExit];
    if (leaves)
        [self resignFirstResponder];
    return YES;
}

- (BOOL)_hostCanClear {
    return [[self text] length] > 0 && [self isEnabled] &&
           shows([self clearButtonMode], [self isFirstResponder]);
}

- (void)_hostClear {
    UITextFieldState *field = [self _hostField];
    if (field->can.shouldClear && ![field->delegate textFieldShouldClear:self])
        return;
    [self setText:@""];
    [self _hostDidChange];
}

- (CGSize)sizeThatFits:(CGSize)size {
    NSString *shown = [[self text] length] ? [self text] : [self placeholder];
    const host::TextSize text = host::textSize(host::utf16(shown), host::face([self font]), 1e6, 1);
    return CGSizeMake(text.width, std::max(text.height, host::lineHeight(host::face([self font]))));
}

- (UIFont *)_hostShownFont {
    const CGFloat room = [self bounds].size.width;
    if (![self adjustsFontSizeToFitWidth] || room <= 0)
        return [self font];
    return host::fittedFont([self text], [self font], room, [self minimumFontSize]);
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = [self isSecureTextEntry] ? "SecureTextField" : "TextField";
    element.enabled = [self isEnabled];
    element.attributes["placeholder"] = host::utf8([self placeholder]);
    element.attributes["border"] = double([self borderStyle]);
    host::describeInput(element, self);
    host::describeText(element, [self _hostShownFont], [self textColor], [self textAlignment]);
    return YES;
}

- (NSArray *)_hostVisibleSubviews {
    UITextFieldState *field = [self _hostField];
    NSMutableArray *visible = [[[super _hostVisibleSubviews] mutableCopy] autorelease];
    const bool editing = [self isFirstResponder];
    if (field->leftView && !shows(field->leftViewMode, editing))
        [visible removeObjectIdenticalTo:field->leftView];
    if (field->rightView && !shows(field->rightViewMode, editing))
        [visible removeObjectIdenticalTo:field->rightView];
    return visible;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    return [self isEnabled] ? host::performText(self, gesture) : host::Outcome::disabled;
}

@end
