// One line of text to type (UITextField class reference).
#pragma once

#import <UIKit/NSText.h>
#import <UIKit/UIControl.h>
#import <UIKit/UITextInputTraits.h>

@class UIFont, UITextField;

typedef NS_ENUM(NSInteger, UITextBorderStyle) {
    UITextBorderStyleNone = 0,
    UITextBorderStyleLine = 1,
    UITextBorderStyleBezel = 2,
    UITextBorderStyleRoundedRect = 3
};

typedef NS_ENUM(NSInteger, UITextFieldViewMode) {
    UITextFieldViewModeNever = 0,
    UITextFieldViewModeWhileEditing = 1,
    UITextFieldViewModeUnlessEditing = 2,
    UITextFieldViewModeAlways = 3
};

@protocol UITextFieldDelegate <NSObject>
@optional
- (BOOL)textFieldShouldBeginEditing:(UITextField *)textField;
- (void)textFieldDidBeginEditing:(UITextField *)textField;
- (BOOL)textFieldShouldEndEditing:(UITextField *)textField;
- (void)textFieldDidEndEditing:(UITextField *)textField;
- (BOOL)textField:(UITextField *)textField
    shouldChangeCharactersInRange:(NSRange)range
                replacementString:(NSString *)string;
- (BOOL)textFieldShouldClear:(UITextField *)textField;
- (BOOL)textFieldShouldReturn:(UITextField *)textField;
@end

extern NSString *const UITextFieldTextDidBeginEditingNotification;
extern NSString *const UITextFieldTextDidEndEditingNotification;
extern NSString *const UITextFieldTextDidChangeNotification;

@interface UITextField : UIControl <UITextInputTraits> {
@private
    struct UITextFieldState *_field;
}

/// Never nil: an empty field, and one whose text was set to nil, has the empty string.
@property (nonatomic, copy) NSString *text;
@property (nonatomic, copy) NSString *placeholder;
@property (nonatomic, retain) UIFont *font;
@property (nonatomic, retain) UIColor *textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic) UITextBorderStyle borderStyle;
@property (nonatomic) BOOL adjustsFontSizeToFitWidth;
@property (nonatomic) CGFloat minimumFontSize;
@property (nonatomic) UITextFieldViewMode clearButtonMode;
@property (nonatomic) BOOL clearsOnBeginEditing;
@property (nonatomic, retain) UIView *leftView;
@property (nonatomic, retain) UIView *rightView;
@property (nonatomic) UITextFieldViewMode leftViewMode;
@property (nonatomic) UITextFieldViewMode rightViewMode;
@property (nonatomic, readonly, getter=isEditing) BOOL editing;
@property (nonatomic, assign) id<UITextFieldDelegate> delegate;

@end
