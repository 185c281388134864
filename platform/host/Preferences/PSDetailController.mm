// PSDetailController: a page with one pane. `pane` and its default follow the public format documentation of
// preference bundles.
#import <Preferences/PSDetailController.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"

namespace key = host::key;

/// The class that a row names for its pane, if it is one.
static Class paneClass(PSSpecifier *specifier) {
    const Class named = [specifier editPaneClass];
    if ([named isSubclassOfClass:[PSEditingPane class]])
        return named;
    if (id wanted = [specifier propertyForKey:key::pane])
        host::complain(@"%@ of row %@ is no PSEditingPane", wanted, [specifier identifier]);
    return [PSEditingPane class];
}

@implementation PSDetailController

- (void)dealloc {
    [_pane setViewController:nil];
    [_pane release];
    [_valueBefore release];
    [super dealloc];
}

- (void)setSpecifier:(PSSpecifier *)specifier {
    [super setSpecifier:specifier];
    [self setTitle:[specifier name]];
}

- (void)viewDidLoad {
    [super viewDidLoad];
    [[self view] setBackgroundColor:[UIColor whiteColor]];
    [self loadPane];
}

- (CGRect)paneFrame {
    return [[self view] bounds];
}

- (PSEditingPane *)pane {
    return _pane;
}

- (void)setPane:(PSEditingPane *)pane {
    [_pane setViewController:nil];
    [_pane removeFromSuperview];
    [_pane autorelease];
    _pane = [pane retain];
    [pane setViewController:self];
    [pane setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    if (pane)
        [[self view] addSubview:pane];
}

- (void)loadPane {
    const Class wanted = paneClass([self specifier]);
    host::guarded(NSStringFromClass(wanted), [&] {
        [self setPane:[[[wanted alloc] initWithFrame:[self paneFrame]] autorelease]];
        [_pane setPreferenceSpecifier:[self specifier]];
        [_pane setPreferenceValue:host::valueOf([self specifier])];
        [self _hostKeepValue:[_pane preferenceValue]];
    });
}

- (void)_hostKeepValue:(id)value {
    [value retain];
    [_valueBefore release];
    _valueBefore = value;
}

- (void)saveChanges {
    PSSpecifier *opener = [[[self specifier] retain] autorelease];
    host::guarded(NSStringFromClass([_pane class]), [&] {
        id value = [_pane preferenceValue];
        if (value == _valueBefore || [value isEqual:_valueBefore])
            return;
        [self _hostKeepValue:value];
        host::setValueOf(opener, value);
    });
    UIViewController *parent = [self parentController];
    if ([parent isKindOfClass:[PSListController class]])
        [static_cast<PSListController *>(parent) reloadSpecifier:opener];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    [self saveChanges];
}

@end
