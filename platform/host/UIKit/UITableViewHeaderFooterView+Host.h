#pragma once

#import <UIKit/UITableView.h>

namespace host {

/// The text of a section as a table shows it by itself: capitals above a group, as written elsewhere.
/// Autoreleased.
[[nodiscard]] UITableViewHeaderFooterView *newSectionText(NSString *text, UITableViewStyle style,
                                                          bool header);

} // namespace host
