// PSListController: the row that is typed into stays above the keyboard, as the lists of Settings do it.
#import <Preferences/PSListController.h>
#import <UIKit/UITextField.h>
#import <UIKit/UITextView.h>
#import <UIKit/UIWindow.h>

#include "Preferences/PSListController+Host.h"
#include "UIKit/Metrics.h"
#include "UIKit/TextInput.h"

@implementation PSListController (HostKeyboard)

- (void)_hostFollowKeyboard {
    NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
    for (NSString *comes in
         [NSArray arrayWithObjects:UIKeyboardWillShowNotification, UITextFieldTextDidBeginEditingNotification,
                                   UITextViewTextDidBeginEditingNotification, nil])
        [center addObserver:self selector:@selector(_hostMakeRoomForKeyboard) name:comes object:nil];
    [center addObserver:self
               selector:@selector(_hostTakeBackRoomForKeyboard)
                   name:UIKeyboardWillHideNotification
                 object:nil];
}

- (void)_hostIgnoreKeyboard {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
}

- (void)_hostSetRoomForKeyboard:(CGFloat)height {
    UIEdgeInsets inset = _table.contentInset;
    inset.bottom = height;
    _table.contentInset = _table.scrollIndicatorInsets = inset;
}

- (void)_hostMakeRoomForKeyboard {
    UIView *input = host::focusedInput();
    if (!input || ![input isDescendantOfView:_table])
        return;
    [self _hostSetRoomForKeyboard:host::keyboardHeight];
    [_table scrollRectToVisible:[input convertRect:input.bounds toView:_table] animated:YES];
}

- (void)_hostTakeBackRoomForKeyboard {
    if (_table.contentInset.bottom == host::keyboardHeight)
        [self _hostSetRoomForKeyboard:0];
}

@end
