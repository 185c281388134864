// A row with a turning wheel.
#pragma once

#import <Preferences/PSTableCell.h>

@interface PSSpinnerTableCell : PSTableCell {
    UIActivityIndicatorView *_spinner;
}
- (UIActivityIndicatorView *)spinner;
@end
