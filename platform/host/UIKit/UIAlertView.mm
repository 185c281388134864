// Follows the UIAlertView class and UIAlertViewDelegate protocol references. What is seen of it is in
// UIAlertView+Host.mm.
#include "UIKit/UIAlertView+State.h"

#include "host/EventLog.h"
#include "host/Text.h"

#include <cstdarg>

@implementation UIAlertView

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _alert = new UIAlertViewState;
    return self;
}

- (id)initWithTitle:(NSString *)title
              message:(NSString *)message
             delegate:(id)delegate
    cancelButtonTitle:(NSString *)cancelButtonTitle
    otherButtonTitles:(NSString *)otherButtonTitles, ... {
    if (!(self = [self initWithFrame:CGRectZero]))
        return nil;
    [self setTitle:title];
    [self setMessage:message];
    [self setDelegate:delegate];
    if (cancelButtonTitle)
        _alert->cancel = [self addButtonWithTitle:cancelButtonTitle];
    va_list others;
    va_start(others, otherButtonTitles);
    for (NSString *other = otherButtonTitles; other; other = va_arg(others, NSString *))
        [self addButtonWithTitle:other];
    va_end(others);
    return self;
}

- (void)dealloc {
    delete _alert;
    [super dealloc];
}

- (struct UIAlertViewState *)_hostAlert {
    return _alert;
}

- (id)delegate {
    return _alert->delegate;
}

- (void)setDelegate:(id)delegate {
    _alert->delegate = delegate;
    _alert->can = {
        .clicked = bool([delegate respondsToSelector:@selector(alertView:clickedButtonAtIndex:)]),
        .willPresent = bool([delegate respondsToSelector:@selector(willPresentAlertView:)]),
        .didPresent = bool([delegate respondsToSelector:@selector(didPresentAlertView:)]),
        .willDismiss = bool([delegate respondsToSelector:@selector(alertView:willDismissWithButtonIndex:)]),
        .didDismiss = bool([delegate respondsToSelector:@selector(alertView:didDismissWithButtonIndex:)]),
        .shouldEnable = bool([delegate respondsToSelector:@selector(alertViewShouldEnableFirstOtherButton:)]),
        .cancel = bool([delegate respondsToSelector:@selector(alertViewCancel:)]),
    };
}

- (NSString *)title {
    return _alert->title;
}

- (void)setTitle:(NSString *)title {
    _alert->title = [[title copy] autorelease];
}

- (NSString *)message {
    return _alert->message;
}

- (void)setMessage:(NSString *)message {
    _alert->message = [[message copy] autorelease];
}

- (UIAlertViewStyle)alertViewStyle {
    return _alert->style;
}

- (void)setAlertViewStyle:(UIAlertViewStyle)style {
    _alert->style = style;
    [self _hostMakeFields];
}

- (NSInteger)addButtonWithTitle:(NSString *)title {
    _alert->titles.emplace_back([[title copy] autorelease]);
    return [self numberOfButtons] - 1;
}

- (NSString *)buttonTitleAtIndex:(NSInteger)buttonIndex {
    return _alert->has(buttonIndex) ? _alert->titles[(std::size_t)buttonIndex].get() : nil;
}

- (NSInteger)numberOfButtons {
    return (NSInteger)_alert->titles.size();
}

- (NSInteger)cancelButtonIndex {
    return _alert->cancel;
}

- (void)setCancelButtonIndex:(NSInteger)index {
    _alert->cancel = index;
}

- (NSInteger)firstOtherButtonIndex {
    return _alert->firstOther();
}

- (BOOL)isVisible {
    return _alert->visible;
}

- (void)show {
    host::showPopup(self);
}

- (void)dismissWithClickedButtonIndex:(NSInteger)buttonIndex animated:(BOOL)animated {
    if (!host::isWaitingOrShown(self) || _alert->closing)
        return;
    _alert->closing = true;
    if (_alert->can.willDismiss)
        [_alert->delegate alertView:self willDismissWithButtonIndex:buttonIndex];
    host::closePopup(self, buttonIndex);
}

- (UITextField *)textFieldAtIndex:(NSInteger)index {
    return [_alert->fields objectAtIndex:(NSUInteger)index];
}

@end
