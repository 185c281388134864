// From the items of a page's property list to specifiers.
#pragma once

#import <Preferences/PSSpecifier.h>

#include "Preferences/ItemTexts.h"

namespace host {

/// Where a page comes from and whom its rows call.
struct PageSource {
    TextTable table;
    id target = nil;
    /// Where the principal classes of bundles that add rows to this page are kept; nil: there can be none.
    NSMutableArray *bundleControllers = nil;
};

/// One specifier an item, in their order; items that ask for capabilities that the phone lacks are left out,
/// and a bundle's rows stand in place of the item that names the bundle. An item that cannot be understood
/// becomes a row that says so.
[[nodiscard]] NSMutableArray *specifiersOfItems(NSArray *items, const PageSource &source);

/// The specifier of one item; nil when the phone lacks a capability.
[[nodiscard]] PSSpecifier *specifierOfItem(NSDictionary *item, const PageSource &source);

} // namespace host
