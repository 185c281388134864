// PSEditingPane: what edits the value of a PSDetailController's row.
#import <Preferences/PSEditingPane.h>
#import <Preferences/PSSpecifier.h>

@implementation PSEditingPane

@synthesize preferenceSpecifier = _specifier, viewController = _viewController;

- (void)dealloc {
    [_specifier release];
    [_value release];
    [super dealloc];
}

- (void)setPreferenceValue:(id)value {
    [value retain];
    [_value release];
    _value = value;
}

- (id)preferenceValue {
    return _value;
}

@end
