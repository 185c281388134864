// The dictionaries that stand for one entry (row records, picker records and the editor's texts), and what
// names a list.
#pragma once

#import <Foundation/Foundation.h>

namespace zv::key {

constexpr NSString *const number = @"number";
constexpr NSString *const name = @"name";
/// Picker records only: the label of the number, or the moment of its last call.
constexpr NSString *const type = @"type";

} // namespace zv::key

namespace zv {

/// The record of a row of a table; nil where `records` has none.
inline NSDictionary *recordAt(NSArray *records, NSInteger row) {
    const auto index = static_cast<NSUInteger>(row); // a negative row is beyond every list
    return index < [records count] ? [records objectAtIndex:index] : nil;
}

/// The text that a record has under a key; nil where it has none, or something else.
inline NSString *recordText(NSDictionary *record, NSString *key) {
    id value = [record objectForKey:key];
    return [value isKindOfClass:[NSString class]] ? value : nil;
}

/// The specifier property that holds the id of the list that a row opens.
constexpr NSString *const listIdProperty = @"_custom";

} // namespace zv
