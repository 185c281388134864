// PSControlTableCell, PSSwitchTableCell: rows with a control at their right end.
#import <Preferences/PSSwitchTableCell.h>

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PSTableCell+Host.h"

namespace key = host::key;

@implementation PSControlTableCell

@synthesize control = _control;

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier];
    if (self) {
        _control = [self newControl];
        [_control addTarget:self
                      action:@selector(controlChanged:)
            forControlEvents:UIControlEventValueChanged];
    }
    return self;
}

- (void)dealloc {
    [_control removeTarget:self action:nullptr forControlEvents:UIControlEventAllEvents];
    [_control release];
    [super dealloc];
}

- (UIControl *)newControl {
    return [[UIControl alloc] initWithFrame:CGRectZero];
}

- (void)setValue:(id)value {
    [super setValue:value];
    [self updateControl];
}

- (void)updateControl {
    // a bare control shows no value
}

- (id)controlValue {
    return [self value];
}

- (void)controlChanged:(UIControl *)control {
    [self _hostChangeValue:[self controlValue]];
}

- (void)setTitle:(NSString *)title {
    [super setTitle:title];
    [_control setAccessibilityLabel:title];
}

- (void)setCellEnabled:(BOOL)enabled {
    [super setCellEnabled:enabled];
    [_control setEnabled:enabled];
}

@end

@implementation PSSwitchTableCell

- (UIControl *)newControl {
    UISwitch *control = [[UISwitch alloc] initWithFrame:CGRectZero];
    [self setAccessoryView:control];
    return control;
}

- (BOOL)isNegated {
    return host::flagProperty([self specifier], key::negate);
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    UIColor *warning = host::flagProperty(specifier, key::alternateColors) ? [UIColor orangeColor] : nil;
    [static_cast<UISwitch *>(_control) setOnTintColor:warning];
    [super refreshCellContentsWithSpecifier:specifier];
    [self _hostShowLoading:host::flagProperty(specifier, key::controlLoading)];
}

/// A value that is still on its way: a turning wheel in place of the switch.
- (void)_hostShowLoading:(BOOL)loading {
    UIView *shown = _control;
    if (loading) {
        UIActivityIndicatorView *wheel = [[[UIActivityIndicatorView alloc]
            initWithActivityIndicatorStyle:UIActivityIndicatorViewStyleGray] autorelease];
        [wheel startAnimating];
        shown = wheel;
    }
    if ([self accessoryView] != shown && (loading || [self accessoryView] != _control))
        [self setAccessoryView:shown];
}

- (void)updateControl {
    id value = [self value];
    const BOOL on = [value respondsToSelector:@selector(boolValue)] && [value boolValue];
    const BOOL shown = value ? on != [self isNegated] : NO;
    [static_cast<UISwitch *>(_control) setOn:shown animated:NO];
}

- (id)controlValue {
    return [NSNumber numberWithBool:[static_cast<UISwitch *>(_control) isOn] != [self isNegated]];
}

@end
