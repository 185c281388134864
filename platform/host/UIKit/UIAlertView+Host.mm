// How an alert is shown and answered.
#include "host/EventLog.h"
#include "host/Text.h"
#include "UIKit/PopupElement.h"
#include "UIKit/UIAlertView+State.h"
#include "UIKit/UIView+Host.h"

#import <UIKit/UIFont.h>

@implementation UIAlertView (Host)

- (void)_hostMakeFields {
    UIAlertViewState *alert = [self _hostAlert];
    for (UITextField *field in alert->fields.get())
        [field removeFromSuperview];
    [alert->fields removeAllObjects];
    if (alert->style == UIAlertViewStylePlainTextInput ||
        alert->style == UIAlertViewStyleLoginAndPasswordInput)
        [self _hostAddFieldSecure:NO];
    if (alert->style == UIAlertViewStyleSecureTextInput ||
        alert->style == UIAlertViewStyleLoginAndPasswordInput)
        [self _hostAddFieldSecure:YES];
}

- (void)_hostAddFieldSecure:(BOOL)secure {
    UITextField *field = [[[UITextField alloc] initWithFrame:CGRectZero] autorelease];
    [field setSecureTextEntry:secure];
    [self addSubview:field];
    [[self _hostAlert]->fields addObject:field];
}

- (void)_hostWillPresent {
    UIAlertViewState *alert = [self _hostAlert];
    alert->visible = true;
    alert->closing = false;
    host::record(host::EventKind::alert, host::utf8(alert->title), host::utf8(alert->message));
    if (alert->can.willPresent)
        [alert->delegate willPresentAlertView:self];
}

- (void)_hostDidPresent {
    UIAlertViewState *alert = [self _hostAlert];
    if ([alert->fields count] && !alert->closing)
        [[alert->fields objectAtIndex:0] becomeFirstResponder];
    if (alert->can.didPresent)
        [alert->delegate didPresentAlertView:self];
}

- (void)_hostDidDismiss:(NSInteger)buttonIndex {
    UIAlertViewState *alert = [self _hostAlert];
    alert->visible = false;
    if (alert->can.didDismiss)
        [alert->delegate alertView:self didDismissWithButtonIndex:buttonIndex];
}

- (void)_hostClick:(NSInteger)index {
    UIAlertViewState *alert = [self _hostAlert];
    if (alert->can.clicked)
        [alert->delegate alertView:self clickedButtonAtIndex:index];
    [self dismissWithClickedButtonIndex:index animated:YES];
}

- (void)_hostCancel {
    UIAlertViewState *alert = [self _hostAlert];
    if (alert->closing)
        return;
    if (!alert->can.cancel && alert->has(alert->cancel))
        return [self _hostClick:alert->cancel];
    if (alert->can.cancel)
        [alert->delegate alertViewCancel:self];
    [self dismissWithClickedButtonIndex:alert->cancel animated:NO];
}

/// A tap beside an alert is ignored.
- (host::Outcome)_hostTapOutside {
    return host::Outcome::disabled;
}

- (host::PopupParts)_hostParts {
    UIAlertViewState *alert = [self _hostAlert];
    host::PopupParts parts = host::partsOf(alert->title, alert->titles, alert->cancel);
    parts.message = host::kept(alert->message);
    parts.fields = [alert->fields count];
    return parts;
}

- (host::PopupPlaces)_hostPlaces {
    const CGSize room = [self bounds].size;
    return host::alertPlaces([self _hostParts], room.width, room.height);
}

- (void)layoutSubviews {
    const host::PopupPlaces places = [self _hostPlaces];
    NSUInteger index = 0;
    for (UITextField *field in [self _hostAlert]->fields.get()) {
        const host::Rect place = places.fields[index++];
        [field setFrame:CGRectMake(place.x, place.y, place.width, place.height)];
    }
}

- (BOOL)_hostEnables:(NSInteger)buttonIndex {
    UIAlertViewState *alert = [self _hostAlert];
    return buttonIndex != alert->firstOther() || !alert->can.shouldEnable ||
           [alert->delegate alertViewShouldEnableFirstOtherButton:self];
}

- (BOOL)_hostDescribe:(host::Element &)element {
    UIAlertViewState *alert = [self _hostAlert];
    const host::PopupPlaces places = [self _hostPlaces];
    element.type = "Alert";
    element.label = host::utf8(alert->title);
    element.rect = places.frame;
    host::addText(element, alert->title, "title", [UIFont boldSystemFontOfSize:host::alertTitlePoints],
                  places.title);
    host::addText(element, alert->message, "message", [UIFont systemFontOfSize:host::alertMessagePoints],
                  places.message);
    for (std::size_t i = 0; i < alert->titles.size(); i++) {
        const bool cancels = (NSInteger)i == alert->cancel;
        host::Element &button =
            host::addButton(element, alert->titles[i], i, cancels ? "cancel" : "default", places.buttons[i]);
        button.enabled = [self _hostEnables:(NSInteger)i];
    }
    return YES;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    UIAlertViewState *alert = [self _hostAlert];
    const NSInteger index = host::buttonIndex(gesture);
    if (!alert->has(index) || alert->closing || ![self _hostEnables:index])
        return host::Outcome::disabled;
    [self _hostClick:index];
    return host::Outcome::done;
}

@end
