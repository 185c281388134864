// Lengths of tables and their cells on iOS 7 and 8, in points.
#pragma once

namespace host::metrics {

inline constexpr double kRowHeight = 44;
/// The greatest height that UITableViewDelegate's reference allows a row.
inline constexpr double kTallestRow = 2009;

// Grouped tables. The gap between two groups without texts is a footer and a header of half its height each.
inline constexpr double kGroupGap = 17.5;
inline constexpr double kFirstGroupTop = 35;
inline constexpr double kGroupTextSize = 13;
inline constexpr double kGapToHeader =
    15; ///< above the text of a header; with one line and the gap below it is 38
inline constexpr double kHeaderToRows = 7;
inline constexpr double kRowsToFooter = 8; ///< above the text of a footer
inline constexpr double kFooterBottom = 7;

// Plain tables.
inline constexpr double kPlainPadding = 11; ///< above and below the text together; one line makes 28
inline constexpr double kPlainTextSize = 14;

// Cells.
inline constexpr double kImageToText = 15;
inline constexpr double kAccessoryGap = 10; ///< between the content and the accessory
inline constexpr double kChevronWidth = 8, kCheckmarkWidth = 14, kDetailButtonWidth = 22;
inline constexpr double kEditShift = 38;
inline constexpr double kMinusSize = 22, kMinusLeft = 15;
inline constexpr double kDeleteTextSize = 18, kDeletePadding = 15, kDeleteNarrowest = 74;
inline constexpr double kIndentation = 10; ///< a level

inline constexpr double kIndexWidth = 15;

/// Distance of texts and accessories from the edges of a table of this width.
[[nodiscard]] constexpr double margin(double width) {
    return width >= 414 ? 20 : 15;
}

} // namespace host::metrics
