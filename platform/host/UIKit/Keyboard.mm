// Follows "Managing the Keyboard" in the Text Programming Guide for iOS.
#include "UIKit/Keyboard.h"

#include "host/Work.h"
#include "UIKit/Metrics.h"
#include "UIKit/TextInput.h"

#import <UIKit/UIScreen.h>
#import <UIKit/UIWindow.h>

NSString *const UIKeyboardWillShowNotification = @"UIKeyboardWillShowNotification";
NSString *const UIKeyboardDidShowNotification = @"UIKeyboardDidShowNotification";
NSString *const UIKeyboardWillHideNotification = @"UIKeyboardWillHideNotification";
NSString *const UIKeyboardDidHideNotification = @"UIKeyboardDidHideNotification";
NSString *const UIKeyboardFrameBeginUserInfoKey = @"UIKeyboardFrameBeginUserInfoKey";
NSString *const UIKeyboardFrameEndUserInfoKey = @"UIKeyboardFrameEndUserInfoKey";
NSString *const UIKeyboardAnimationDurationUserInfoKey = @"UIKeyboardAnimationDurationUserInfoKey";
NSString *const UIKeyboardAnimationCurveUserInfoKey = @"UIKeyboardAnimationCurveUserInfoKey";

namespace {

constexpr double slideSeconds = 0.25;
constexpr int slideCurve = 7;

bool isUp = false;
bool checkIsDue = false;

CGRect frameWhen(bool up) {
    const CGRect screen = [[UIScreen mainScreen] bounds];
    const CGFloat top = screen.size.height - (up ? host::keyboardHeight : 0);
    return CGRectMake(0, top, screen.size.width, host::keyboardHeight);
}

NSDictionary *slide(bool up) {
    return @{
        UIKeyboardFrameBeginUserInfoKey : [NSValue valueWithCGRect:frameWhen(!up)],
        UIKeyboardFrameEndUserInfoKey : [NSValue valueWithCGRect:frameWhen(up)],
        UIKeyboardAnimationDurationUserInfoKey : [NSNumber numberWithDouble:slideSeconds],
        UIKeyboardAnimationCurveUserInfoKey : [NSNumber numberWithInt:slideCurve],
    };
}

void post(NSString *name, bool up) {
    [[NSNotificationCenter defaultCenter] postNotificationName:name object:nil userInfo:slide(up)];
}

void check() {
    checkIsDue = false;
    const bool up = host::focusedInput() != nil;
    if (up == isUp)
        return;
    isUp = up;
    post(up ? UIKeyboardWillShowNotification : UIKeyboardWillHideNotification, up);
    post(up ? UIKeyboardDidShowNotification : UIKeyboardDidHideNotification, up);
}

} // namespace

void host::focusHasMoved() {
    if (checkIsDue)
        return;
    checkIsDue = true;
    later(check);
}
