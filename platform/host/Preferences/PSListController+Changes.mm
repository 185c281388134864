// PSListController: rows that come and go.
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/ListGroups.h"
#include "Preferences/PSListController+Host.h"

namespace {

bool hasGroupHeader(NSArray *specifiers) {
    for (PSSpecifier *specifier in specifiers) {
        if ([specifier cellType] == PSGroupCell)
            return true;
    }
    return false;
}

NSArray *pathsOf(NSArray *specifiers, NSArray *groups) {
    NSMutableArray *paths = [NSMutableArray array];
    for (PSSpecifier *specifier in specifiers) {
        const host::GroupPlace place = host::placeOf(groups, specifier);
        [paths addObject:[NSIndexPath indexPathForRow:place.row inSection:place.group]];
    }
    return paths;
}

} // namespace

@implementation PSListController (Changes)

/// The one change that all others are made of. The page takes a new array, so that one that a subclass has
/// given out never changes. Single rows come and go in place; where groups do, the table is loaded again.
- (void)_hostReplace:(NSRange)range with:(NSArray *)added animated:(BOOL)animated {
    NSArray *old = _specifiers ? _specifiers : [NSArray array];
    NSArray *removed = [old subarrayWithRange:range];
    NSArray *before = [[[self _hostGroups] retain] autorelease];
    [_table numberOfSections]; // what the table shows must be `before`
    NSMutableArray *specifiers = [[NSMutableArray alloc] initWithArray:old];
    [specifiers replaceObjectsInRange:range withObjectsFromArray:added];
    [_specifiers autorelease];
    _specifiers = specifiers;
    NSArray *after = [self _hostGroups];
    if ([before count] != [after count] || hasGroupHeader(removed) || hasGroupHeader(added)) {
        [_table reloadData];
        return;
    }
    const UITableViewRowAnimation motion =
        animated ? UITableViewRowAnimationFade : UITableViewRowAnimationNone;
    [_table beginUpdates];
    [_table deleteRowsAtIndexPaths:pathsOf(removed, before) withRowAnimation:motion];
    [_table insertRowsAtIndexPaths:pathsOf(added, after) withRowAnimation:motion];
    [_table endUpdates];
}

- (void)addSpecifier:(PSSpecifier *)specifier {
    [self addSpecifier:specifier animated:NO];
}

- (void)addSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
    if (specifier)
        [self addSpecifiersFromArray:[NSArray arrayWithObject:specifier] animated:animated];
}

- (void)addSpecifiersFromArray:(NSArray *)specifiers {
    [self addSpecifiersFromArray:specifiers animated:NO];
}

- (void)addSpecifiersFromArray:(NSArray *)specifiers animated:(BOOL)animated {
    [self insertContiguousSpecifiers:specifiers
                             atIndex:static_cast<int>([_specifiers count])
                            animated:animated];
}

- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(int)index {
    [self insertSpecifier:specifier atIndex:index animated:NO];
}

- (void)insertSpecifier:(PSSpecifier *)specifier atIndex:(int)index animated:(BOOL)animated {
    if (specifier)
        [self insertContiguousSpecifiers:[NSArray arrayWithObject:specifier] atIndex:index animated:animated];
}

- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)after {
    [self insertSpecifier:specifier afterSpecifier:after animated:NO];
}

- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifier:(PSSpecifier *)after animated:(BOOL)animated {
    if (specifier)
        [self insertContiguousSpecifiers:[NSArray arrayWithObject:specifier]
                          afterSpecifier:after
                                animated:animated];
}

- (void)insertSpecifier:(PSSpecifier *)specifier afterSpecifierID:(NSString *)identifier {
    [self insertSpecifier:specifier afterSpecifierID:identifier animated:NO];
}

- (void)insertSpecifier:(PSSpecifier *)specifier
       afterSpecifierID:(NSString *)identifier
               animated:(BOOL)animated {
    [self insertSpecifier:specifier afterSpecifier:[self specifierForID:identifier] animated:animated];
}

- (void)insertSpecifier:(PSSpecifier *)specifier atEndOfGroup:(int)group {
    [self insertSpecifier:specifier atEndOfGroup:group animated:NO];
}

- (void)insertSpecifier:(PSSpecifier *)specifier atEndOfGroup:(int)group animated:(BOOL)animated {
    [self insertSpecifier:specifier
           afterSpecifier:[[self specifiersInGroup:group] lastObject]
                 animated:animated];
}

- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(int)index {
    [self insertContiguousSpecifiers:specifiers atIndex:index animated:NO];
}

- (void)insertContiguousSpecifiers:(NSArray *)specifiers atIndex:(int)index animated:(BOOL)animated {
    const NSUInteger end = [_specifiers count];
    const NSUInteger at = index < 0 ? 0 : MIN(static_cast<NSUInteger>(index), end);
    [self _hostReplace:NSMakeRange(at, 0) with:specifiers animated:animated];
}

- (void)insertContiguousSpecifiers:(NSArray *)specifiers afterSpecifier:(PSSpecifier *)after {
    [self insertContiguousSpecifiers:specifiers afterSpecifier:after animated:NO];
}

- (void)insertContiguousSpecifiers:(NSArray *)specifiers
                    afterSpecifier:(PSSpecifier *)after
                          animated:(BOOL)animated {
    const NSInteger index = [self indexOfSpecifier:after];
    if (index != NSNotFound)
        [self insertContiguousSpecifiers:specifiers atIndex:static_cast<int>(index) + 1 animated:animated];
}

- (void)insertContiguousSpecifiers:(NSArray *)specifiers afterSpecifierID:(NSString *)identifier {
    [self insertContiguousSpecifiers:specifiers afterSpecifierID:identifier animated:NO];
}

- (void)insertContiguousSpecifiers:(NSArray *)specifiers
                  afterSpecifierID:(NSString *)identifier
                          animated:(BOOL)animated {
    [self insertContiguousSpecifiers:specifiers
                      afterSpecifier:[self specifierForID:identifier]
                            animated:animated];
}

- (void)removeSpecifier:(PSSpecifier *)specifier {
    [self removeSpecifier:specifier animated:NO];
}

- (void)removeSpecifier:(PSSpecifier *)specifier animated:(BOOL)animated {
    const NSInteger index = [self indexOfSpecifier:specifier];
    if (index != NSNotFound)
        [self removeSpecifierAtIndex:static_cast<int>(index) animated:animated];
}

- (void)removeSpecifierAtIndex:(int)index {
    [self removeSpecifierAtIndex:index animated:NO];
}

- (void)removeSpecifierAtIndex:(int)index animated:(BOOL)animated {
    if ([self specifierAtIndex:index])
        [self _hostReplace:NSMakeRange(static_cast<NSUInteger>(index), 1)
                      with:[NSArray array]
                  animated:animated];
}

- (void)removeSpecifierID:(NSString *)identifier {
    [self removeSpecifierID:identifier animated:NO];
}

- (void)removeSpecifierID:(NSString *)identifier animated:(BOOL)animated {
    [self removeSpecifier:[self specifierForID:identifier] animated:animated];
}

- (void)removeLastSpecifier {
    [self removeLastSpecifierAnimated:NO];
}

- (void)removeLastSpecifierAnimated:(BOOL)animated {
    [self removeSpecifierAtIndex:static_cast<int>([_specifiers count]) - 1 animated:animated];
}

- (void)removeContiguousSpecifiers:(NSArray *)specifiers {
    [self removeContiguousSpecifiers:specifiers animated:NO];
}

- (void)removeContiguousSpecifiers:(NSArray *)specifiers animated:(BOOL)animated {
    [self replaceContiguousSpecifiers:specifiers withSpecifiers:[NSArray array] animated:animated];
}

- (void)replaceContiguousSpecifiers:(NSArray *)oldSpecifiers withSpecifiers:(NSArray *)newSpecifiers {
    [self replaceContiguousSpecifiers:oldSpecifiers withSpecifiers:newSpecifiers animated:NO];
}

- (void)replaceContiguousSpecifiers:(NSArray *)oldSpecifiers
                     withSpecifiers:(NSArray *)newSpecifiers
                           animated:(BOOL)animated {
    const NSInteger first =
        [oldSpecifiers count] ? [self indexOfSpecifier:[oldSpecifiers objectAtIndex:0]] : NSNotFound;
    if (first == NSNotFound)
        return;
    const NSUInteger at = static_cast<NSUInteger>(first);
    const NSUInteger count = MIN([oldSpecifiers count], [_specifiers count] - at);
    [self _hostReplace:NSMakeRange(at, count) with:newSpecifiers animated:animated];
}

@end
