// Follows the UITextView class and UITextViewDelegate protocol references. Return is a new line of the text.
#import <UIKit/UITextView.h>

#include "host/Retained.h"
#include "host/Text.h"
#include "UIKit/TextElement.h"
#include "UIKit/TextInput.h"
#include "UIKit/UIFont+Host.h"
#include "UIKit/UIResponder+Host.h"
#include "UIKit/UIView+Host.h"

NSString *const UITextViewTextDidBeginEditingNotification = @"UITextViewTextDidBeginEditingNotification";
NSString *const UITextViewTextDidChangeNotification = @"UITextViewTextDidChangeNotification";
NSString *const UITextViewTextDidEndEditingNotification = @"UITextViewTextDidEndEditingNotification";

struct UITextViewState {
    host::Retained<NSString *> text = @"";
    host::Retained<UIFont *> font = [UIFont systemFontOfSize:12];
    host::Retained<UIColor *> textColor = [UIColor blackColor];
    NSTextAlignment textAlignment = NSTextAlignmentLeft;
    bool editable = true;
    bool selectable = true;
    host::InputTraits traits;
};

namespace {

/// Room above and below the text, and at its sides.
constexpr CGFloat verticalMargin = 8, sideMargin = 5;

void post(NSString *name, UITextView *view) {
    [[NSNotificationCenter defaultCenter] postNotificationName:name object:view];
}

} // namespace

@interface UITextView (Editing) <HostTextInput>
@end

@implementation UITextView

@dynamic delegate; // UIScrollView keeps it

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _textView = new UITextViewState;
    return self;
}

- (void)dealloc {
    delete _textView;
    [super dealloc];
}

- (NSString *)text {
    return _textView->text;
}

- (void)setText:(NSString *)text {
    _textView->text = text ? [[text copy] autorelease] : @"";
    [self setContentSize:[self sizeThatFits:[self bounds].size]];
}

- (UIFont *)font {
    return _textView->font;
}

- (void)setFont:(UIFont *)font {
    _textView->font = font ? font : [UIFont systemFontOfSize:12];
}

- (UIColor *)textColor {
    return _textView->textColor;
}

- (void)setTextColor:(UIColor *)color {
    _textView->textColor = color ? color : [UIColor blackColor];
}

- (NSTextAlignment)textAlignment {
    return _textView->textAlignment;
}

- (void)setTextAlignment:(NSTextAlignment)alignment {
    _textView->textAlignment = alignment;
}

- (BOOL)isEditable {
    return _textView->editable;
}

- (void)setEditable:(BOOL)editable {
    _textView->editable = editable;
}

- (BOOL)isSelectable {
    return _textView->selectable;
}

- (void)setSelectable:(BOOL)selectable {
    _textView->selectable = selectable;
}

- (UITextAutocapitalizationType)autocapitalizationType {
    return _textView->traits.autocapitalizationType;
}

- (void)setAutocapitalizationType:(UITextAutocapitalizationType)type {
    _textView->traits.autocapitalizationType = type;
}

- (UITextAutocorrectionType)autocorrectionType {
    return _textView->traits.autocorrectionType;
}

- (void)setAutocorrectionType:(UITextAutocorrectionType)type {
    _textView->traits.autocorrectionType = type;
}

- (UIKeyboardType)keyboardType {
    return _textView->traits.keyboardType;
}

- (void)setKeyboardType:(UIKeyboardType)type {
    _textView->traits.keyboardType = type;
}

- (UIReturnKeyType)returnKeyType {
    return _textView->traits.returnKeyType;
}

- (void)setReturnKeyType:(UIReturnKeyType)type {
    _textView->traits.returnKeyType = type;
}

- (BOOL)isSecureTextEntry {
    return _textView->traits.secureTextEntry;
}

- (void)setSecureTextEntry:(BOOL)secure {
    _textView->traits.secureTextEntry = secure;
}

- (CGSize)sizeThatFits:(CGSize)size {
    const host::Face face = host::face([self font]);
    const host::TextSize text = host::textSize(host::utf16([self text]), face, size.width - 2 * sideMargin);
    return CGSizeMake(size.width, std::max(text.height, host::lineHeight(face)) + 2 * verticalMargin);
}

@end

@implementation UITextView (Editing)

- (BOOL)canBecomeFirstResponder {
    return [self isEditable];
}

- (BOOL)becomeFirstResponder {
    id<UITextViewDelegate> delegate = [self delegate];
    if ([self isFirstResponder])
        return YES;
    if ([self window] && [delegate respondsToSelector:@selector(textViewShouldBeginEditing:)] &&
        ![delegate textViewShouldBeginEditing:self])
        return NO;
    if (![super becomeFirstResponder])
        return NO;
    if ([delegate respondsToSelector:@selector(textViewDidBeginEditing:)])
        [delegate textViewDidBeginEditing:self];
    post(UITextViewTextDidBeginEditingNotification, self);
    return YES;
}

- (BOOL)canResignFirstResponder {
    id<UITextViewDelegate> delegate = [self delegate];
    return ![delegate respondsToSelector:@selector(textViewShouldEndEditing:)] ||
           [delegate textViewShouldEndEditing:self];
}

- (void)_hostDidResign {
    id<UITextViewDelegate> delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(textViewDidEndEditing:)])
        [delegate textViewDidEndEditing:self];
    post(UITextViewTextDidEndEditingNotification, self);
}

- (BOOL)_hostReplace:(NSRange)range with:(NSString *)text {
    id<UITextViewDelegate> delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(textView:shouldChangeTextInRange:replacementText:)] &&
        ![delegate textView:self shouldChangeTextInRange:range replacementText:text])
        return NO;
    [self setText:[[self text] stringByReplacingCharactersInRange:range withString:text]];
    if ([delegate respondsToSelector:@selector(textViewDidChange:)])
        [delegate textViewDidChange:self];
    post(UITextViewTextDidChangeNotification, self);
    return YES;
}

- (BOOL)_hostReturn {
    return [self _hostReplace:NSMakeRange([[self text] length], 0) with:@"\n"];
}

- (BOOL)_hostCanClear {
    return NO;
}

- (void)_hostClear {
    [self _hostReplace:NSMakeRange(0, [[self text] length]) with:@""];
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = "TextView";
    element.enabled = [self isEditable];
    host::describeInput(element, self);
    host::describeText(element, [self font], [self textColor], [self textAlignment]);
    return YES;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    if (gesture.kind == host::GestureKind::scroll)
        return [super _hostPerform:gesture];
    return host::performText(self, gesture);
}

@end
