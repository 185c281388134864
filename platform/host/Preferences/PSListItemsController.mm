// PSListItemsController: the page of a multiple choice. A chosen value goes to the setter of the row that
// opened the page, on that row's target; the page stays open.
#import <Preferences/PSListItemsController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PSListController+Host.h"

namespace key = host::key;

static PSSpecifier *choice(PSSpecifier *opener, id value) {
    id title = [[opener titleDictionary] objectForKey:value];
    PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:[title ? title : value description]
                                                      target:nil
                                                         set:nullptr
                                                         get:nullptr
                                                      detail:Nil
                                                        cell:PSListItemCell
                                                        edit:Nil];
    [row setProperty:value forKey:key::value];
    return row;
}

@implementation PSListItemsController

- (instancetype)init {
    self = [super init];
    if (self)
        _rowToSelect = NSNotFound;
    return self;
}

- (void)dealloc {
    [_lastSelectedSpecifier release];
    [super dealloc];
}

- (NSArray *)itemsFromParent {
    PSSpecifier *opener = [self specifier];
    PSSpecifier *group = [PSSpecifier emptyGroupSpecifier];
    [group setProperty:host::textProperty(opener, key::staticTextMessage) forKey:key::footerText];
    NSMutableArray *items = [NSMutableArray arrayWithObject:group];
    for (id value in [opener values])
        [items addObject:choice(opener, value)];
    return items;
}

- (NSArray *)itemsFromDataSource {
    [[self specifier] loadValuesAndTitlesFromDataSource];
    return [self itemsFromParent];
}

- (NSArray *)specifiers {
    if (!_specifiers) {
        PSSpecifier *opener = [self specifier];
        const bool asks =
            [opener propertyForKey:key::valuesDataSource] || [opener propertyForKey:key::titlesDataSource];
        _specifiers = [(asks ? [self itemsFromDataSource] : [self itemsFromParent]) retain];
        _deferItemSelection = host::flagProperty(opener, key::deferItemSelection);
        [self setRowToSelect];
    }
    return _specifiers;
}

- (void)setRowToSelect {
    id value = host::valueOf([self specifier]);
    NSArray *values = [[self specifier] values];
    const NSUInteger row = value && values ? [values indexOfObject:value] : NSNotFound;
    _rowToSelect = row == NSNotFound ? NSNotFound : static_cast<NSInteger>(row);
}

- (BOOL)_hostIsChosen:(PSSpecifier *)specifier {
    return _rowToSelect != NSNotFound && [self indexOfSpecifier:specifier] == _rowToSelect + 1;
}

- (void)_hostChoose:(PSSpecifier *)specifier {
    [self listItemSelected:[self indexPathForSpecifier:specifier]];
}

- (void)listItemSelected:(NSIndexPath *)path {
    PSSpecifier *before = [self specifierAtIndex:static_cast<int>(_rowToSelect) + 1];
    PSSpecifier *chosen = [self specifierAtIndexPath:path];
    if (_rowToSelect != NSNotFound)
        [[self _hostCellOf:before] setChecked:NO];
    _rowToSelect = [path row];
    [[self _hostCellOf:chosen] setChecked:YES];
    [chosen retain];
    [_lastSelectedSpecifier release];
    _lastSelectedSpecifier = chosen;
    if (!_deferItemSelection)
        [self _hostStoreChoice];
}

/// The opener's row shows the new value at once.
- (void)_hostStoreChoice {
    PSSpecifier *opener = [[[self specifier] retain] autorelease];
    host::setValueOf(opener, [_lastSelectedSpecifier propertyForKey:key::value]);
    [_lastSelectedSpecifier release];
    _lastSelectedSpecifier = nil;
    UIViewController *parent = [self parentController];
    if ([parent isKindOfClass:[PSListController class]])
        [static_cast<PSListController *>(parent) reloadSpecifier:opener];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    if (_lastSelectedSpecifier)
        [self _hostStoreChoice];
}

@end
