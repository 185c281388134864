// What a text field remembers; for UITextField's own files and its private subclasses.
#pragma once

#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>
#import <UIKit/UITextField.h>

#include "host/Retained.h"
#include "UIKit/TextInput.h"

/// Which optional methods the delegate has, asked once when it is set.
struct UITextFieldDelegateMethods {
    bool shouldBegin = false, didBegin = false, shouldEnd = false, didEnd = false;
    bool shouldChange = false, shouldClear = false, shouldReturn = false;
};

struct UITextFieldState {
    host::Retained<NSString *> text = @"";
    host::Retained<NSString *> placeholder;
    host::Retained<UIFont *> font = [UIFont systemFontOfSize:17];
    host::Retained<UIColor *> textColor = [UIColor blackColor];
    NSTextAlignment textAlignment = NSTextAlignmentLeft;
    UITextBorderStyle borderStyle = UITextBorderStyleNone;
    bool adjustsFontSizeToFitWidth = false;
    CGFloat minimumFontSize = 0;
    bool clearsOnBeginEditing = false;
    UITextFieldViewMode clearButtonMode = UITextFieldViewModeNever;
    host::Retained<UIView *> leftView, rightView;
    UITextFieldViewMode leftViewMode = UITextFieldViewModeNever;
    UITextFieldViewMode rightViewMode = UITextFieldViewModeNever;

    id<UITextFieldDelegate> delegate = nil;
    UITextFieldDelegateMethods can;
    host::InputTraits traits;
};

@interface UITextField (State)
- (struct UITextFieldState *)_hostField;
@end

@interface UITextField (Editing) <HostTextInput>
@end
