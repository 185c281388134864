// A row with a switch.
#pragma once

#import <Preferences/PSControlTableCell.h>

@interface PSSwitchTableCell : PSControlTableCell
- (BOOL)isNegated;
@end
