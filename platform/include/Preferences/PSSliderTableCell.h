// A row that is a slider.
#pragma once

#import <Preferences/PSControlTableCell.h>

@interface PSSliderTableCell : PSControlTableCell {
    UILabel *_valueText;
}
@end
