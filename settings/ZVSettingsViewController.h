// The base of every list-style settings page of the bundle.
#pragma once

#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>

/// A list page that
/// - shows the values of the settings mirror (settings/SharedState.h) and writes changes both through the
///   platform and into that mirror;
/// - passes names, titles and the titles of choices through the bundle's default string table;
/// - reloads its rows when it comes back after another page covered it.
///
/// Specifier properties: `key` and `default` as everywhere; "valueLocalized", with any value, leaves the
/// titles of the choices as they are.
@interface ZVSettingsViewController : PSListController {
    BOOL _needsReloadSpecifiers; // from each disappearance to the next appearance
}

/// Translates the names and the titles of the choices in place. Returns `specifiers` itself.
- (NSArray *)localizedSpecifiersForSpecifiers:(NSArray *)specifiers;

@end
