// Translating the texts of a page's property list.
#pragma once

#import <Foundation/Foundation.h>

namespace host {

/// The string table of a page: named like its property list, in its bundle.
struct TextTable {
    NSBundle *bundle = nil;
    NSString *name = nil;

    /// The translation of a text; the text itself where the table has none. nil for nil.
    [[nodiscard]] NSString *operator()(NSString *text) const;
};

/// A copy of an item's dictionary with all texts translated that a person sees, except `label`: that one also
/// names the page that the row opens.
[[nodiscard]] NSMutableDictionary *translated(NSDictionary *item, const TextTable &table);

} // namespace host
