// A row with a control at its right end, or over its whole width.
#pragma once

#import <Preferences/PSTableCell.h>

@interface PSControlTableCell : PSTableCell {
    UIControl *_control;
}
@property (nonatomic, retain) UIControl *control;
/// Makes the control; called once a cell.
- (UIControl *)newControl;
/// Shows the row's value on the control.
- (void)updateControl;
/// The value that the control stands at.
- (id)controlValue;
/// A person used the control: stores its value.
- (void)controlChanged:(UIControl *)control;
@end
