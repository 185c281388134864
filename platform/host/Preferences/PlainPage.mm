#include "Preferences/PlainPage.h"

#include "Preferences/Messages.h"
#include "Preferences/PSListController+Host.h"

@implementation PLCustomListController

- (NSBundle *)bundle {
    PSSpecifier *opener = [self specifier];
    if (NSString *path = host::textProperty(opener, host::bundleProperty))
        return [NSBundle bundleWithPath:path];
    if (NSString *file = host::textProperty(opener, host::pageFileProperty))
        return [NSBundle bundleWithPath:[file stringByDeletingLastPathComponent]];
    UIViewController *before = [self parentController];
    return [before isKindOfClass:[PSListController class]] ? [static_cast<PSListController *>(before) bundle]
                                                           : nil;
}

- (NSArray *)specifiers {
    if (_specifiers)
        return _specifiers;
    PSSpecifier *opener = [self specifier];
    NSString *file = host::textProperty(opener, host::pageFileProperty);
    if (!file && !host::textProperty(opener, host::bundleProperty))
        return [super specifiers];
    NSString *name = file ? [[file lastPathComponent] stringByDeletingPathExtension] : @"Root";
    _specifiers = [[self loadSpecifiersFromPlistName:name target:self] retain];
    return _specifiers;
}

@end

@implementation HostFailurePage

- (NSArray *)specifiers {
    if (!_specifiers) {
        _specifiers = [[NSArray alloc] init];
        [self _hostFailed:host::textProperty([self specifier], host::failureProperty)];
    }
    return _specifiers;
}

@end
