// A page's specifiers, in groups.
#pragma once

#import <Foundation/Foundation.h>

@class PSSpecifier;

namespace host {

/// One array a group: its header (NSNull for the rows in front of the first header), then its rows.
[[nodiscard]] NSArray *groupsOf(NSArray *specifiers);

/// A single group without rows, with a text below it.
[[nodiscard]] NSArray *groupSaying(NSString *text);

/// The header of a group; nil for rows without header.
[[nodiscard]] PSSpecifier *headerOf(NSArray *group);

/// A place in the groups; the row of a header is -1.
struct GroupPlace {
    int group = -1;
    int row = -1;
};

/// Where a specifier stands; group -1 when it is in none.
[[nodiscard]] GroupPlace placeOf(NSArray *groups, PSSpecifier *specifier);

/// The specifier of a row; nil for a place that does not exist.
[[nodiscard]] PSSpecifier *specifierAt(NSArray *groups, NSInteger group, NSInteger row);

} // namespace host
