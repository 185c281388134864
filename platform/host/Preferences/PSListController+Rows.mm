// PSListController: finding rows and groups, and reading rows again.
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/ListGroups.h"
#include "Preferences/PSListController+Host.h"

@implementation PSListController (Rows)

- (void)reloadSpecifier:(PSSpecifier *)specifier {
    [self reloadSpecifier:specifier animated:NO];
}

- (void)reloadSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
    [[self _hostCellOf:specifier] refreshCellContentsWithSpecifier:specifier];
}

- (void)reloadSpecifierAtIndex:(int)index {
    [self reloadSpecifierAtIndex:index animated:NO];
}

- (void)reloadSpecifierAtIndex:(int)index animated:(BOOL)animated {
    [self reloadSpecifier:[self specifierAtIndex:index] animated:animated];
}

- (void)reloadSpecifierID:(NSString *)identifier {
    [self reloadSpecifierID:identifier animated:NO];
}

- (void)reloadSpecifierID:(NSString *)identifier animated:(BOOL)animated {
    [self reloadSpecifier:[self specifierForID:identifier] animated:animated];
}

- (PSSpecifier *)specifierForID:(NSString *)identifier {
    for (PSSpecifier *specifier in _specifiers) {
        if (identifier && [[specifier identifier] isEqualToString:identifier])
            return specifier;
    }
    return nil;
}

- (PSSpecifier *)specifierAtIndex:(int)index {
    if (index < 0 || static_cast<NSUInteger>(index) >= [_specifiers count])
        return nil;
    return [_specifiers objectAtIndex:static_cast<NSUInteger>(index)];
}

- (PSSpecifier *)specifierAtIndexPath:(NSIndexPath *)path {
    return path ? host::specifierAt([self _hostGroups], [path section], [path row]) : nil;
}

- (NSIndexPath *)indexPathForSpecifier:(PSSpecifier *)specifier {
    const host::GroupPlace place = host::placeOf([self _hostGroups], specifier);
    return place.row < 0 ? nil : [NSIndexPath indexPathForRow:place.row inSection:place.group];
}

- (NSInteger)indexOfSpecifier:(PSSpecifier *)specifier {
    return _specifiers ? static_cast<NSInteger>([_specifiers indexOfObjectIdenticalTo:specifier])
                       : NSNotFound;
}

- (NSInteger)indexOfSpecifierID:(NSString *)identifier {
    PSSpecifier *specifier = [self specifierForID:identifier];
    return specifier ? [self indexOfSpecifier:specifier] : NSNotFound;
}

- (BOOL)containsSpecifier:(PSSpecifier *)specifier {
    return [self indexOfSpecifier:specifier] != NSNotFound;
}

- (BOOL)getGroup:(int *)group row:(int *)row ofSpecifier:(PSSpecifier *)specifier {
    const host::GroupPlace place = host::placeOf([self _hostGroups], specifier);
    if (place.group < 0)
        return NO;
    if (group)
        *group = place.group;
    if (row)
        *row = place.row;
    return YES;
}

- (BOOL)getGroup:(int *)group row:(int *)row ofSpecifierID:(NSString *)identifier {
    return [self getGroup:group row:row ofSpecifier:[self specifierForID:identifier]];
}

- (BOOL)getGroup:(int *)group row:(int *)row ofSpecifierAtIndex:(int)index {
    return [self getGroup:group row:row ofSpecifier:[self specifierAtIndex:index]];
}

- (int)numberOfGroups {
    return static_cast<int>([[self _hostGroups] count]);
}

- (int)rowsForGroup:(int)group {
    NSArray *groups = [self _hostGroups];
    if (group < 0 || group >= static_cast<int>([groups count]))
        return 0;
    return static_cast<int>([[groups objectAtIndex:static_cast<NSUInteger>(group)] count]) - 1;
}

- (int)indexForRow:(int)row inGroup:(int)group {
    PSSpecifier *specifier = host::specifierAt([self _hostGroups], group, row);
    return specifier ? static_cast<int>([self indexOfSpecifier:specifier]) : -1;
}

- (NSArray *)specifiersInGroup:(int)group {
    NSArray *groups = [self _hostGroups];
    if (group < 0 || group >= static_cast<int>([groups count]))
        return [NSArray array];
    NSArray *members = [groups objectAtIndex:static_cast<NSUInteger>(group)];
    if (host::headerOf(members))
        return members;
    return [members subarrayWithRange:NSMakeRange(1, [members count] - 1)];
}

- (PSTableCell *)_hostCellOf:(PSSpecifier *)specifier {
    NSIndexPath *path = [self indexPathForSpecifier:specifier];
    id cell = path ? [[self table] cellForRowAtIndexPath:path] : nil;
    return [cell isKindOfClass:[PSTableCell class]] ? cell : nil;
}

@end
