// Follows the UIResponder class reference. There is one first responder on the phone: it has one screen.
#include "UIKit/UIResponder+Host.h"

#include "UIKit/Keyboard.h"

namespace {

/// Not retained: a responder that goes away is forgotten in its dealloc.
UIResponder *current = nil;

void setCurrent(UIResponder *responder) {
    current = responder;
    host::focusHasMoved();
}

} // namespace

UIResponder *host::firstResponder() {
    return current;
}

@implementation UIResponder

- (void)dealloc {
    if (current == self)
        setCurrent(nil);
    [super dealloc];
}

- (UIResponder *)nextResponder {
    return nil;
}

- (BOOL)canBecomeFirstResponder {
    return NO;
}

- (BOOL)becomeFirstResponder {
    if (current == self)
        return YES;
    if (![self canBecomeFirstResponder] || (current && ![current resignFirstResponder]))
        return NO;
    setCurrent(self);
    return YES;
}

- (BOOL)canResignFirstResponder {
    return YES;
}

- (BOOL)resignFirstResponder {
    if (current != self)
        return YES;
    if (![self canResignFirstResponder])
        return NO;
    [self _hostDropFirstResponder];
    return YES;
}

- (BOOL)isFirstResponder {
    return current == self;
}

- (void)_hostDropFirstResponder {
    if (current != self)
        return;
    setCurrent(nil);
    [self _hostDidResign];
}

- (void)_hostDidResign {
    // for responders that have somebody to tell
}

@end
