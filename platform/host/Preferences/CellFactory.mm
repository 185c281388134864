// Which class, size and image a specifier's row has.
#include "host/Text.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PSTableCell+Host.h"
#include "UIKit/TextMeasure.h"

#include <objc/runtime.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSTableCell.h>

namespace host {

namespace {

/// A class, or a name of one.
Class classOf(id named) {
    if (NSString *name = as<NSString>([NSString class], named))
        return NSClassFromString(name);
    return named && class_isMetaClass(object_getClass(named)) ? static_cast<Class>(named) : Nil;
}

/// The class of `cellClass`, if it can make a row; Nil otherwise.
Class namedCellClass(PSSpecifier *specifier) {
    id named = [specifier propertyForKey:key::cellClass];
    const Class wanted = classOf(named);
    if (!named)
        return Nil;
    if ([wanted isSubclassOfClass:[PSTableCell class]])
        return wanted;
    complain(@"%@ of row %@ is no PSTableCell", named, [specifier identifier]);
    return Nil;
}

/// The class of this framework that a bundle's class is derived from; a class of this framework itself.
Class frameworkClass(Class cell) {
    static NSSet *const names =
        [[NSSet alloc] initWithObjects:@"PSTableCell", @"PSControlTableCell", @"PSSwitchTableCell",
                                       @"PSSliderTableCell", @"PSSegmentTableCell", @"PSEditableTableCell",
                                       @"PSTextViewTableCell", @"PSSpinnerTableCell", nil];
    while (![names containsObject:NSStringFromClass(cell)])
        cell = [cell superclass];
    return cell;
}

/// A bundle's class that looks at its specifier when it is made and does not hear of another one: such a cell
/// cannot be handed from row to row.
bool knowsOneSpecifier(Class cell) {
    const Class base = frameworkClass(cell);
    const auto overrides = [&](SEL selector) {
        return [cell instanceMethodForSelector:selector] != [base instanceMethodForSelector:selector];
    };
    return overrides(@selector(initWithStyle:reuseIdentifier:specifier:)) &&
           !overrides(@selector(refreshCellContentsWithSpecifier:));
}

PSTableCell *newCellOf(Class cell, PSSpecifier *specifier) {
    PSTableCell *made = nil;
    guarded(NSStringFromClass(cell), [&] {
        made = [[cell alloc] initWithStyle:[cell cellStyleForSpecifier:specifier]
                           reuseIdentifier:[PSTableCell reuseIdentifierForSpecifier:specifier]
                                 specifier:specifier];
    });
    return made;
}

NSBundle *bundleOfPage(PSSpecifier *specifier) {
    id target = [specifier target];
    if ([target respondsToSelector:@selector(bundle)])
        return [target bundle];
    return target ? [NSBundle bundleForClass:[target class]] : nil;
}

} // namespace

PSTableCell *newCell(PSSpecifier *specifier) {
    PSTableCell *cell = newCellOf([PSTableCell cellClassForSpecifier:specifier], specifier);
    return cell ? cell : newCellOf([PSTableCell class], specifier);
}

CGFloat heightOfRow(PSSpecifier *specifier, CGFloat width) {
    if (NSNumber *height = numberProperty(specifier, key::height))
        return [height doubleValue];
    return [[PSTableCell cellClassForSpecifier:specifier] heightForSpecifier:specifier width:width];
}

bool takesTaps(PSSpecifier *specifier) {
    if (!flagProperty(specifier, key::enabled, true))
        return false;
    switch ([specifier cellType]) {
    case PSLinkCell:
    case PSLinkListCell:
    case PSListItemCell:
    case PSButtonCell:
    case PSEditTextCell:
    case PSSecureEditTextCell:
    case PSEditTextViewCell: return true;
    default: return [specifier action] || [specifier detailControllerClass];
    }
}

UIImage *imageOf(PSSpecifier *specifier, id wanted) {
    if ([wanted isKindOfClass:[UIImage class]])
        return wanted;
    NSString *name = as<NSString>([NSString class], wanted);
    if (![name length])
        return nil;
    NSString *path = [name isAbsolutePath]
                         ? name
                         : [[bundleOfPage(specifier) bundlePath] stringByAppendingPathComponent:name];
    return [UIImage imageWithContentsOfFile:path];
}

NSString *shownText(id value) {
    if ([value isKindOfClass:[NSString class]])
        return value;
    return [value isKindOfClass:[NSNumber class]] ? [value stringValue] : nil;
}

UIColor *detailColor() {
    return [UIColor colorWithRed:0x8E / 255.0 green:0x8E / 255.0 blue:0x93 / 255.0 alpha:1];
}

UIColor *destructiveColor() {
    return [UIColor colorWithRed:1 green:0x3B / 255.0 blue:0x30 / 255.0 alpha:1];
}

UIColor *disabledColor() {
    return [UIColor colorWithWhite:0.6 alpha:1];
}

} // namespace host

@implementation PSTableCell (Kinds)

+ (Class)cellClassForSpecifier:(PSSpecifier *)specifier {
    if (const Class named = host::namedCellClass(specifier))
        return named;
    switch ([specifier cellType]) {
    case PSSwitchCell: return NSClassFromString(@"PSSwitchTableCell");
    case PSSliderCell: return NSClassFromString(@"PSSliderTableCell");
    case PSSegmentCell: return NSClassFromString(@"PSSegmentTableCell");
    case PSEditTextCell:
    case PSSecureEditTextCell: return NSClassFromString(@"PSEditableTableCell");
    case PSEditTextViewCell: return NSClassFromString(@"PSTextViewTableCell");
    case PSSpinnerCell: return NSClassFromString(@"PSSpinnerTableCell");
    default: return [PSTableCell class];
    }
}

+ (NSString *)reuseIdentifierForSpecifier:(PSSpecifier *)specifier {
    const Class cell = [self cellClassForSpecifier:specifier];
    NSString *kind = [NSString stringWithFormat:@"%@-%d", cell, [specifier cellType]];
    if (host::knowsOneSpecifier(cell))
        return [kind stringByAppendingFormat:@"-%@", [specifier identifier]];
    return [kind stringByAppendingFormat:@"-%ld", static_cast<long>([self cellStyleForSpecifier:specifier])];
}

+ (UITableViewCellStyle)cellStyleForSpecifier:(PSSpecifier *)specifier {
    switch ([specifier cellType]) {
    case PSLinkCell:
    case PSLinkListCell:
    case PSTitleValueCell: return UITableViewCellStyleValue1;
    default: return UITableViewCellStyleDefault;
    }
}

+ (CGFloat)heightForSpecifier:(PSSpecifier *)specifier width:(CGFloat)width {
    constexpr CGFloat giant = 65, row = 44, above = 12;
    switch ([specifier cellType]) {
    case PSGiantIconCell:
    case PSGiantCell: return giant;
    case PSStaticTextCell: {
        const host::TextSize text =
            host::textSize(host::utf16([specifier name]), {}, width - 2 * host::rowMargin);
        return MAX(row, text.height + 2 * above);
    }
    default: return 0;
    }
}

@end
