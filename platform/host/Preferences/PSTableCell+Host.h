// What the list page knows of rows.
#pragma once

#import <Preferences/PSTableCell.h>

namespace host {

/// A new cell for the specifier, owned by the caller: of its `cellClass`, or of the framework's own class
/// where that one is missing, no cell, or fails.
PSTableCell *newCell(PSSpecifier *specifier) __attribute__((ns_returns_retained));

/// The height of a row in points: its property `height`, or what its class wants; 0 for the table's row
/// height.
[[nodiscard]] CGFloat heightOfRow(PSSpecifier *specifier, CGFloat width);

/// Whether a tap on the row (not on a control in it) does anything.
[[nodiscard]] bool takesTaps(PSSpecifier *specifier);

/// An image that an item names, from the bundle of the page; `wanted` may be an image already. nil for none.
[[nodiscard]] UIImage *imageOf(PSSpecifier *specifier, id wanted);

/// Text as a row shows it: strings and numbers; nil for anything else.
[[nodiscard]] NSString *shownText(id value);

/// The colours of iOS 7 and 8.
[[nodiscard]] UIColor *detailColor();
[[nodiscard]] UIColor *destructiveColor();
[[nodiscard]] UIColor *disabledColor();

/// Where the content of a row begins and ends, from the edges of the cell.
inline constexpr CGFloat rowMargin = 15;

} // namespace host

@interface PSTableCell (Host)

/// Whether the label is shown. A row that something else fills is only named by it. The base: yes.
- (BOOL)_hostShowsTitle;

/// The row was tapped, and is enabled.
- (void)_hostTapped;

/// A person changed the value; tells the page.
- (void)_hostChangeValue:(id)value;

@end
