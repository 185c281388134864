// PSRootController: the stack of pages, and how values are read and stored. A value is in its domain's file
// when the setter returns, so whoever is told by the notification finds it there.
#import <CoreFoundation/CoreFoundation.h>
#import <Preferences/PSRootController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/DomainFile.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"

namespace key = host::key;

@implementation PSRootController

@synthesize specifier = _specifier;

+ (id)readPreferenceValue:(PSSpecifier *)specifier {
    NSString *name = host::textProperty(specifier, key::key);
    id value = name ? host::storedValue(host::textProperty(specifier, key::domain), name) : nil;
    return value ? value : [specifier propertyForKey:key::defaultValue];
}

+ (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
    NSString *name = host::textProperty(specifier, key::key);
    if (name && host::storeValue(host::textProperty(specifier, key::domain), name, value))
        [self writePreference:specifier];
}

+ (void)writePreference:(PSSpecifier *)specifier {
    NSString *name = host::textProperty(specifier, key::notification);
    if ([name length]) {
        CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(), (CFStringRef)name,
                                             nullptr, nullptr, true);
    }
}

- (void)dealloc {
    [_specifier release];
    [super dealloc];
}

- (id)readPreferenceValue:(PSSpecifier *)specifier {
    return [[self class] readPreferenceValue:specifier];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
    [[self class] setPreferenceValue:value specifier:specifier];
}

- (void)showController:(UIViewController *)controller animate:(BOOL)animate {
    if (controller)
        [self pushViewController:controller animated:animate];
}

@end
