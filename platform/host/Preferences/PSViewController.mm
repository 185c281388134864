// PSViewController: what all pages of Settings have in common.
#import <Preferences/PSRootController.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSViewController.h>

@implementation PSViewController

@synthesize parentController = _parentController, rootController = _rootController;
@synthesize specifier = _specifier;

- (void)dealloc {
    [_specifier release];
    [super dealloc];
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
