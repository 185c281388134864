// Between index paths and places in a table.
#pragma once

#import <UIKit/UITableView.h>

#include "UIKit/TableLayout.h"

namespace host {

/// The place that `path` names; one that no table has for nil.
[[nodiscard]] RowPlace placeOf(NSIndexPath *path);
[[nodiscard]] NSIndexPath *pathOf(RowPlace place);

} // namespace host
