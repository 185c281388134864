// What an alert remembers; for UIAlertView's own files alone.
#pragma once

#import <UIKit/UIAlertView.h>
#import <UIKit/UITextField.h>

#include "UIKit/Popups.h"

/// Which optional methods the delegate has, asked once when it is set.
struct UIAlertViewDelegateMethods {
    bool clicked = false, willPresent = false, didPresent = false;
    bool willDismiss = false, didDismiss = false, shouldEnable = false, cancel = false;
};

struct UIAlertViewState {
    host::Retained<NSString *> title, message;
    host::ButtonTitles titles;
    NSInteger cancel = -1;
    UIAlertViewStyle style = UIAlertViewStyleDefault;
    host::Retained<NSMutableArray *> fields = [NSMutableArray array];
    id delegate = nil; ///< not retained
    UIAlertViewDelegateMethods can;
    bool visible = false;
    bool closing = false;

    [[nodiscard]] bool has(NSInteger index) const { return index >= 0 && index < (NSInteger)titles.size(); }

    /// The lowest index that is not the cancel button's; -1 for none.
    [[nodiscard]] NSInteger firstOther() const {
        const NSInteger first = cancel == 0 ? 1 : 0;
        return has(first) && first != cancel ? first : -1;
    }
};

@interface UIAlertView (State)
- (struct UIAlertViewState *)_hostAlert;
@end

@interface UIAlertView (Host) <HostPopup>
/// The text fields of the alert's style.
- (void)_hostMakeFields;
@end
