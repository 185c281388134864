// PSViewController: what all pages of Settings have in common.
#import <Preferences/PSRootController.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSViewController.h>

@implementation PSViewController

- (void)dealloc {
    [_specifier release];
    [super dealloc];
}

- (void)setParentController:(UIViewController *)controller {
    _parentController = controller;
}

- (UIViewController *)parentController {
    return _parentController;
}

- (void)setRootController:(PSRootController *)controller {
    _rootController = controller;
}

- (PSRootController *)rootController {
    return _rootController;
}

- (void)setSpecifier:(PSSpecifier *)specifier {
    [specifier retain];
    [_specifier release];
    _specifier = specifier;
}

- (PSSpecifier *)specifier {
    return _specifier;
}

- (id)readPreferenceValue:(PSSpecifier *)specifier {
    return [PSRootController readPreferenceValue:specifier];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
    [PSRootController setPreferenceValue:value specifier:specifier];
}

- (void)pushController:(UIViewController *)controller {
    [self pushController:controller animate:YES];
}

- (void)pushController:(UIViewController *)controller animate:(BOOL)animate {
    [_rootController showController:controller animate:animate];
}

@end
