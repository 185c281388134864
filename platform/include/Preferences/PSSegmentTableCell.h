// A row that is a segmented control.
#pragma once

#import <Preferences/PSControlTableCell.h>

@interface PSSegmentTableCell : PSControlTableCell {
    NSArray *_shownTitles;
}
@end
