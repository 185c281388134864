// A row with a text of several lines.
#pragma once

#import <Preferences/PSTableCell.h>

@interface PSTextViewTableCell : PSTableCell <UITextViewDelegate> {
    UITextView *_textView;
    NSString *_textBefore;
}
- (UITextView *)textView;
@end
