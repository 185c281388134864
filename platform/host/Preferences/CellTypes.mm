#include "Preferences/CellTypes.h"

#include <array>

namespace host {

/// In the order of PSCellType.
static const std::array<NSString *, 16> names{
    @"PSGroupCell",          @"PSLinkCell",    @"PSLinkListCell",     @"PSListItemCell",
    @"PSTitleValueCell",     @"PSSliderCell",  @"PSSwitchCell",       @"PSStaticTextCell",
    @"PSEditTextCell",       @"PSSegmentCell", @"PSGiantIconCell",    @"PSGiantCell",
    @"PSSecureEditTextCell", @"PSButtonCell",  @"PSEditTextViewCell", @"PSSpinnerCell",
};

int cellType(NSString *name) {
    for (std::size_t i = 0; i < names.size(); i++) {
        if ([names[i] isEqual:name])
            return static_cast<int>(i);
    }
    return -1;
}

NSString *cellTypeName(int type) {
    return type >= 0 && type < static_cast<int>(names.size()) ? names[static_cast<std::size_t>(type)] : nil;
}

} // namespace host
