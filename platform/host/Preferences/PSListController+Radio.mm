// PSListController: groups whose choice rows are one choice. The chosen row is the group's property
// "radioGroupCheckedSpecifier"; before a tap it is the row whose value the group's getter gives.
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/Keys.h"
#include "Preferences/ListGroups.h"
#include "Preferences/Messages.h"
#include "Preferences/PSListController+Host.h"

namespace key = host::key;

/// What a choice row stands for: its property "value", else the only one of its values, else its identifier.
static id valueOfChoice(PSSpecifier *row) {
    if (id value = [row propertyForKey:key::value])
        return value;
    return [[row values] count] ? [[row values] objectAtIndex:0] : [row identifier];
}

@implementation PSListController (Radio)

/// The header of the row's radio group; nil when it is in none.
- (PSSpecifier *)_hostRadioGroupOf:(PSSpecifier *)row {
    NSArray *groups = [self _hostGroups];
    const host::GroupPlace place = host::placeOf(groups, row);
    if (place.row < 0)
        return nil;
    PSSpecifier *header = host::headerOf([groups objectAtIndex:static_cast<NSUInteger>(place.group)]);
    return host::flagProperty(header, key::isRadioGroup) ? header : nil;
}

- (BOOL)_hostIsChosen:(PSSpecifier *)specifier {
    PSSpecifier *group = [self _hostRadioGroupOf:specifier];
    if (!group || [specifier cellType] != PSListItemCell)
        return NO;
    if (id chosen = [group propertyForKey:key::radioGroupChecked])
        return chosen == specifier;
    id value = host::valueOf(group);
    return value && [value isEqual:valueOfChoice(specifier)];
}

- (void)_hostChoose:(PSSpecifier *)specifier {
    PSSpecifier *group = [self _hostRadioGroupOf:specifier];
    if (!group)
        return;
    [group setProperty:specifier forKey:key::radioGroupChecked];
    int number = 0;
    [self getGroup:&number row:nullptr ofSpecifier:specifier];
    for (PSSpecifier *row in [self specifiersInGroup:number])
        [[self _hostCellOf:row] setChecked:row == specifier];
    host::setValueOf(group, valueOfChoice(specifier));
}

@end
