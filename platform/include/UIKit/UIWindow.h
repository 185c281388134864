// The whole screen (UIWindow class reference).
#pragma once

#import <UIKit/UIView.h>

@class UIViewController;

/// About the keyboard; the object is nil. All of them carry the keys below.
extern NSString *const UIKeyboardWillShowNotification;
extern NSString *const UIKeyboardDidShowNotification;
extern NSString *const UIKeyboardWillHideNotification;
extern NSString *const UIKeyboardDidHideNotification;

/// The keyboard's frame on the screen before and after, an NSValue of a CGRect each.
extern NSString *const UIKeyboardFrameBeginUserInfoKey;
extern NSString *const UIKeyboardFrameEndUserInfoKey;
extern NSString *const UIKeyboardAnimationDurationUserInfoKey;
extern NSString *const UIKeyboardAnimationCurveUserInfoKey;

@interface UIWindow : UIView {
@private
    struct UIWindowState *_windowState;
}

@property (nonatomic, retain) UIViewController *rootViewController;
@property (nonatomic, readonly, getter=isKeyWindow) BOOL keyWindow;

- (void)makeKeyWindow;
- (void)makeKeyAndVisible;

@end
