#include "Preferences/ListGroups.h"

#import <Preferences/PSSpecifier.h>

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"

namespace host {

/// Rows of a group with `isStaticText` are text and nothing else.
static void addRow(NSMutableArray *group, PSSpecifier *specifier) {
    if (flagProperty(headerOf(group), key::isStaticText))
        [specifier setCellType:PSStaticTextCell];
    [group addObject:specifier];
}

NSArray *groupsOf(NSArray *specifiers) {
    NSMutableArray *groups = [NSMutableArray array];
    for (PSSpecifier *specifier in specifiers) {
        if ([specifier cellType] == PSGroupCell) {
            [groups addObject:[NSMutableArray arrayWithObject:specifier]];
            continue;
        }
        if ([groups count] == 0)
            [groups addObject:[NSMutableArray arrayWithObject:[NSNull null]]];
        addRow([groups lastObject], specifier);
    }
    return groups;
}

NSArray *groupSaying(NSString *text) {
    PSSpecifier *group = [PSSpecifier emptyGroupSpecifier];
    [group setProperty:text forKey:key::footerText];
    return [NSArray arrayWithObject:[NSArray arrayWithObject:group]];
}

PSSpecifier *headerOf(NSArray *group) {
    return as<PSSpecifier>([PSSpecifier class], [group count] ? [group objectAtIndex:0] : nil);
}

GroupPlace placeOf(NSArray *groups, PSSpecifier *specifier) {
    int number = 0;
    for (NSArray *group in groups) {
        const NSUInteger index = [group indexOfObjectIdenticalTo:specifier];
        if (index != NSNotFound)
            return {number, static_cast<int>(index) - 1};
        number++;
    }
    return {};
}

PSSpecifier *specifierAt(NSArray *groups, NSInteger group, NSInteger row) {
    if (group < 0 || group >= static_cast<NSInteger>([groups count]))
        return nil;
    NSArray *members = [groups objectAtIndex:static_cast<NSUInteger>(group)];
    if (row < 0 || row + 1 >= static_cast<NSInteger>([members count]))
        return nil;
    return [members objectAtIndex:static_cast<NSUInteger>(row) + 1];
}

} // namespace host
