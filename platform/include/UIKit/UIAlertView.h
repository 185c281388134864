// A question in front of everything (UIAlertView class reference). The delegate is not retained; a shown
// alert is kept until it has gone.
#pragma once

#import <UIKit/UIView.h>

@class UIAlertView, UITextField;

typedef NS_ENUM(NSInteger, UIAlertViewStyle) {
    UIAlertViewStyleDefault = 0,
    UIAlertViewStyleSecureTextInput = 1,
    UIAlertViewStylePlainTextInput = 2,
    UIAlertViewStyleLoginAndPasswordInput = 3
};

@protocol UIAlertViewDelegate <NSObject>
@optional
- (void)alertView:(UIAlertView *)alertView clickedButtonAtIndex:(NSInteger)buttonIndex;
- (void)willPresentAlertView:(UIAlertView *)alertView;
- (void)didPresentAlertView:(UIAlertView *)alertView;
- (void)alertView:(UIAlertView *)alertView willDismissWithButtonIndex:(NSInteger)buttonIndex;
- (void)alertView:(UIAlertView *)alertView didDismissWithButtonIndex:(NSInteger)buttonIndex;
- (BOOL)alertViewShouldEnableFirstOtherButton:(UIAlertView *)alertView;
/// The system takes the alert away; without this method it is as if the cancel button was tapped.
- (void)alertViewCancel:(UIAlertView *)alertView;
@end

@interface UIAlertView : UIView {
@private
    struct UIAlertViewState *_alert;
}

- (id)initWithTitle:(NSString *)title
              message:(NSString *)message
             delegate:(id)delegate
    cancelButtonTitle:(NSString *)cancelButtonTitle
    otherButtonTitles:(NSString *)otherButtonTitles, ... __attribute__((sentinel(0, 1)));

@property (nonatomic, assign) id delegate;
@property (nonatomic, copy) NSString *title;
@property (nonatomic, copy) NSString *message;
@property (nonatomic) UIAlertViewStyle alertViewStyle;

/// Returns the index of the new button.
- (NSInteger)addButtonWithTitle:(NSString *)title;
- (NSString *)buttonTitleAtIndex:(NSInteger)buttonIndex;
@property (nonatomic, readonly) NSInteger numberOfButtons;
@property (nonatomic) NSInteger cancelButtonIndex;
@property (nonatomic, readonly) NSInteger firstOtherButtonIndex;
@property (nonatomic, readonly, getter=isVisible) BOOL visible;

/// An alert that is shown while another one is in front comes when that one has gone.
- (void)show;
- (void)dismissWithClickedButtonIndex:(NSInteger)buttonIndex animated:(BOOL)animated;

/// Raises NSRangeException for a field that the style does not have.
- (UITextField *)textFieldAtIndex:(NSInteger)index;

@end
