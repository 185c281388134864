// What the cells of a list editor page show.
#pragma once

#import <UIKit/UIKit.h>

#include "listeditor/ListKind.h"

namespace zv {

/// Sections of the page's table.
constexpr NSInteger actionSection = 0, entrySection = 1;

/// Rows of the action section.
constexpr NSInteger addRow = 0, contactsRow = 1, recentCallsRow = 2;

/// How many action rows the page has. The priority list offers no pickers, on purpose.
constexpr NSInteger actionRowCount(ListKind kind) {
    return holdsPhoneNumbers(kind) && kind != ListKind::priority ? 3 : 1;
}

/// A cell of the action section, autoreleased, showing `text`, which may be nil.
UITableViewCell *actionCell(UITableView *table, NSString *text);

/// A cell of the entry section, autoreleased: the name over the number, or the number alone.
UITableViewCell *entryCell(UITableView *table, NSDictionary *rowRecord);

/// The text of an action row in the language of `bundle`; nil for a row without one. The text of the
/// call-time row is the call time, see `callTimeText`.
NSString *actionRowText(ListKind kind, NSInteger row, NSBundle *bundle);

/// A call lifetime in words, in the language of `bundle`. Units are not made singular.
NSString *callTimeText(int seconds, NSBundle *bundle);

} // namespace zv
