// A row with a text field.
#pragma once

#import <Preferences/PSTableCell.h>

@interface PSEditableTableCell : PSTableCell <UITextFieldDelegate> {
    UITextField *_textField;
    UILabel *_suffixLabel;
    UILabel *_promptLabel;
    NSString *_textBefore;
}
- (UITextField *)textField;
@end
