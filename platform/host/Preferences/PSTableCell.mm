// PSTableCell: a row that shows a specifier. Sizes and colours follow the look of Settings on iOS 7 and 8.
#import <Preferences/PSListController.h>
#import <Preferences/PSTableCell.h>

#include "host/Text.h"
#include "Preferences/CellTypes.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PSListController+Host.h"
#include "Preferences/PSTableCell+Host.h"
#include "UIKit/UIView+Host.h"

namespace key = host::key;

/// The value of the first control in a row; the title of the chosen segment.
static std::string shownOnControl(const host::Element &row) {
    const host::Element *control = row.find([](const host::Element &element) {
        return element.type == "Switch" || element.type == "Slider" || element.type == "TextField" ||
               element.type == "SecureTextField" || element.type == "TextView" ||
               (element.type == "Button" && element.selected);
    });
    if (!control)
        return "";
    return control->type == "Button" ? control->label : control->value;
}

@implementation PSTableCell

@synthesize specifier = _specifier, type = _type, cellTarget = _cellTarget;

+ (int)cellTypeFromString:(NSString *)name {
    return host::cellType(name);
}

+ (NSString *)stringFromCellType:(int)type {
    return host::cellTypeName(type);
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier];
    if (self) {
        _specifier = [specifier retain];
        _type = [specifier cellType];
        _cellEnabled = YES;
    }
    return self;
}

- (void)dealloc {
    [_value release];
    [_specifier release];
    [super dealloc];
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    [self setSpecifier:specifier];
    [self setType:[specifier cellType]];
    [self setAccessibilityIdentifier:[specifier identifier]];
    [self setTitle:[specifier name]];
    [self setIcon:[self _hostIcon]];
    [self setAlignment:[host::numberProperty(specifier, key::alignment) integerValue]];
    [self setValue:host::valueOf(specifier)];
    if (_type == PSListItemCell)
        [self setChecked:[_cellTarget _hostIsChosen:specifier]];
    else
        [self setAccessoryType:[self _hostAccessory]];
    [self setSelectionStyle:host::takesTaps(specifier) && ![self _hostIsTextRow]
                                ? UITableViewCellSelectionStyleDefault
                                : UITableViewCellSelectionStyleNone];
    [self setCellEnabled:host::flagProperty(specifier, key::enabled, true)];
}

/// Made once a specifier: later refreshes find the image among its properties.
- (UIImage *)_hostIcon {
    id icon = [_specifier propertyForKey:key::iconImage];
    if (!icon)
        icon = [_specifier propertyForKey:key::icon];
    if (!icon && host::flagProperty(_specifier, key::hasIcon))
        icon = @"icon.png";
    UIImage *image = host::imageOf(_specifier, icon);
    [_specifier setProperty:image forKey:key::iconImage];
    return image;
}

- (UITableViewCellAccessoryType)_hostAccessory {
    const bool link = _type == PSLinkCell || _type == PSLinkListCell || [_specifier detailControllerClass];
    return link && !host::flagProperty(_specifier, key::hidesDisclosureIndicator)
               ? UITableViewCellAccessoryDisclosureIndicator
               : UITableViewCellAccessoryNone;
}

- (BOOL)_hostIsTextRow {
    return _type == PSEditTextCell || _type == PSSecureEditTextCell || _type == PSEditTextViewCell;
}

- (BOOL)_hostShowsTitle {
    return YES;
}

- (void)setTitle:(NSString *)title {
    const bool shown = [self _hostShowsTitle];
    [[self textLabel] setText:shown ? title : nil];
    [[self textLabel] setNumberOfLines:_type == PSStaticTextCell ? 0 : 1];
    if (!shown)
        [self setAccessibilityLabel:title];
}

- (NSString *)title {
    return [self _hostShowsTitle] ? [[self textLabel] text] : [self accessibilityLabel];
}

/// With titles for its values, a row shows those and nothing for a value that has none.
- (void)setValue:(id)value {
    [value retain];
    [_value release];
    _value = value;
    const bool titled = [_specifier titleDictionary] || [_specifier shortTitleDictionary];
    [[self detailTextLabel] setText:titled || _type == PSLinkListCell ? host::titleOfValue(_specifier, value)
                                                                      : host::shownText(value)];
}

- (id)value {
    return _value;
}

- (void)setIcon:(UIImage *)icon {
    [[self imageView] setImage:icon];
}

- (UIImage *)icon {
    return [[self imageView] image];
}

/// The numbers are those of NSTextAlignment, also in documents that call 2 centred.
- (void)setAlignment:(NSInteger)alignment {
    _alignment = alignment;
    [[self textLabel] setTextAlignment:static_cast<NSTextAlignment>(alignment)];
}

- (void)setChecked:(BOOL)checked {
    _checked = checked;
    [self setAccessoryType:checked ? UITableViewCellAccessoryCheckmark : UITableViewCellAccessoryNone];
}

- (BOOL)isChecked {
    return _checked;
}

- (UIColor *)_hostTitleColor {
    if (!_cellEnabled)
        return host::disabledColor();
    if (_type != PSButtonCell)
        return [UIColor blackColor];
    return host::flagProperty(_specifier, key::isDestructive) ? host::destructiveColor() : [self tintColor];
}

- (void)setCellEnabled:(BOOL)enabled {
    _cellEnabled = enabled;
    [self setUserInteractionEnabled:enabled];
    [[self textLabel] setTextColor:[self _hostTitleColor]];
    [[self detailTextLabel] setTextColor:enabled ? host::detailColor() : host::disabledColor()];
}

- (BOOL)cellEnabled {
    return _cellEnabled;
}

- (BOOL)canBeSelected {
    return host::takesTaps(_specifier);
}

- (UILabel *)titleLabel {
    return [self textLabel];
}

- (UILabel *)valueLabel {
    return [self detailTextLabel];
}

- (UIImageView *)iconImageView {
    return [self imageView];
}

/// What a row shows is its control's value where it has a control.
- (BOOL)_hostDescribe:(host::Element &)element {
    if (![super _hostDescribe:element])
        return NO;
    element.identifier = host::utf8([_specifier identifier]);
    element.label = host::utf8([self title]);
    element.enabled = _cellEnabled;
    if (element.value.empty())
        element.value = shownOnControl(element);
    return YES;
}

- (void)_hostTapped {
    // the page acts for rows without a control
}

- (void)_hostChangeValue:(id)value {
    [value retain];
    [_value release];
    _value = value;
    if (_cellTarget)
        [_cellTarget _hostRow:_specifier changedTo:value];
    else
        host::setValueOf(_specifier, value);
}

@end
