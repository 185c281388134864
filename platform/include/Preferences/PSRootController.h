// The stack of settings pages.
#pragma once

#import <UIKit/UIKit.h>

@class PSSpecifier;

@interface PSRootController : UINavigationController {
    PSSpecifier *_specifier;
}

/// The row that opened the stack; nil for that of Settings itself.
@property (nonatomic, retain) PSSpecifier *specifier;

/// The stored value of the specifier's `key` in its domain `defaults`; without one, its property `default`.
+ (id)readPreferenceValue:(PSSpecifier *)specifier;

/// Stores the value at once (nil removes the key), keeping the domain's other keys, then `writePreference:`.
/// Without a `key` nothing happens.
+ (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;

/// Tells others that a preference is written: posts the specifier's `PostNotification`, if it names one.
+ (void)writePreference:(PSSpecifier *)specifier;

- (id)readPreferenceValue:(PSSpecifier *)specifier;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;

/// Pushes a page.
- (void)showController:(UIViewController *)controller animate:(BOOL)animate;

@end
