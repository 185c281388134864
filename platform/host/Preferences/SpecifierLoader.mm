#include "Preferences/SpecifierLoader.h"

#import <Preferences/PSConfirmationSpecifier.h>
#import <Preferences/PSTextFieldSpecifier.h>

#include "host/Text.h"
#include "Preferences/BundleRows.h"
#include "Preferences/Capabilities.h"
#include "Preferences/CellTypes.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/TextRows.h"

namespace host {

namespace {

NSString *textOf(NSDictionary *item, NSString *key) {
    return as<NSString>([NSString class], [item objectForKey:key]);
}

bool phoneHas(id wish) {
    if (NSString *name = as<NSString>([NSString class], wish))
        return hasCapability(utf8(name));
    for (NSString *name in as<NSDictionary>([NSDictionary class], wish)) {
        id wanted = [wish objectForKey:name];
        if ([wanted respondsToSelector:@selector(boolValue)] &&
            [wanted boolValue] != hasCapability(utf8(name)))
            return false;
    }
    return true;
}

bool phoneHasAll(NSDictionary *item) {
    for (id wish in as<NSArray>([NSArray class], [item objectForKey:key::requiredCapabilities])) {
        if (!phoneHas(wish))
            return false;
    }
    return true;
}

/// A row in place of an item that cannot be shown.
PSSpecifier *explanation(NSString *text) {
    complain(@"%@", text);
    return [PSSpecifier preferenceSpecifierNamed:text
                                          target:nil
                                             set:nullptr
                                             get:nullptr
                                          detail:Nil
                                            cell:PSStaticTextCell
                                            edit:Nil];
}

bool isTextRow(int type) {
    return type == PSEditTextCell || type == PSSecureEditTextCell || type == PSEditTextViewCell;
}

/// Rows of these kinds have a value even when the item names no getter and setter.
bool hasValue(int type, NSDictionary *item) {
    switch (type) {
    case PSLinkListCell:
    case PSTitleValueCell:
    case PSSliderCell:
    case PSSwitchCell:
    case PSSegmentCell: return true;
    case PSGroupCell: return [item objectForKey:key::key] != nil;
    default: return isTextRow(type) || [item objectForKey:key::pane];
    }
}

Class specifierClass(int type, NSDictionary *item) {
    if (isTextRow(type))
        return [PSTextFieldSpecifier class];
    if ([item objectForKey:key::confirmation])
        return [PSConfirmationSpecifier class];
    return [PSSpecifier class];
}

SEL selectorOf(NSDictionary *item, NSString *key) {
    NSString *name = textOf(item, key);
    return name ? NSSelectorFromString(name) : nullptr;
}

void setSelectors(PSSpecifier *specifier, NSDictionary *item) {
    [specifier setGetter:selectorOf(item, key::get)];
    [specifier setSetter:selectorOf(item, key::set)];
    [specifier setAction:selectorOf(item, key::action)];
    [specifier setCancel:selectorOf(item, key::cancel)];
    [specifier setControllerLoadAction:selectorOf(item, key::loadAction)];
    if (!hasValue([specifier cellType], item))
        return;
    if (![specifier getter])
        [specifier setGetter:@selector(readPreferenceValue:)];
    if (![specifier setter])
        [specifier setSetter:@selector(setPreferenceValue:specifier:)];
}

void setClasses(PSSpecifier *specifier, NSDictionary *item) {
    NSString *detail = textOf(item, key::detail);
    if (!detail)
        detail = textOf(item, key::customControllerClass);
    if (detail)
        [specifier setDetailControllerClass:NSClassFromString(detail)];
    if (NSString *pane = textOf(item, key::pane))
        [specifier setEditPaneClass:NSClassFromString(pane)];
}

void setUpKind(PSSpecifier *specifier) {
    if (PSTextFieldSpecifier *row = as<PSTextFieldSpecifier>([PSTextFieldSpecifier class], specifier))
        setUpTextRow(row);
    if (PSConfirmationSpecifier *row =
            as<PSConfirmationSpecifier>([PSConfirmationSpecifier class], specifier)) {
        [row setupWithDictionary:as<NSDictionary>([NSDictionary class],
                                                  [specifier propertyForKey:key::confirmation])];
    }
}

} // namespace

PSSpecifier *specifierOfItem(NSDictionary *item, const PageSource &source) {
    if (!phoneHasAll(item))
        return nil;
    NSString *label = textOf(item, key::label);
    const int type = cellType(textOf(item, key::cell));
    if (type < 0) {
        return explanation([NSString stringWithFormat:@"The row \"%@\" has no known cell type: %@.",
                                                      label ? label : @"", [item objectForKey:key::cell]]);
    }
    PSSpecifier *specifier = [[[specifierClass(type, item) alloc] init] autorelease];
    [specifier setName:source.table(label)];
    [specifier setCellType:type];
    [specifier setTarget:source.target];
    [specifier setProperties:translated(item, source.table)];
    setSelectors(specifier, item);
    setClasses(specifier, item);
    guarded(@"choices", [&] { [specifier loadValuesAndTitlesFromDataSource]; });
    setUpKind(specifier);
    return specifier;
}

NSMutableArray *specifiersOfItems(NSArray *items, const PageSource &source) {
    NSMutableArray *specifiers = [NSMutableArray arrayWithCapacity:[items count]];
    for (id item in items) {
        if (![item isKindOfClass:[NSDictionary class]]) {
            [specifiers addObject:explanation(@"An item of this page is not a dictionary.")];
            continue;
        }
        PSSpecifier *specifier = specifierOfItem(item, source);
        if (specifier)
            [specifiers addObjectsFromArray:rowsOfBundle(specifier, source)];
    }
    return specifiers;
}

} // namespace host
