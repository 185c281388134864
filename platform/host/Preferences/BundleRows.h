// Rows that name a preference bundle. After PreferenceLoader's public entry format.
#pragma once

#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>

#include "Preferences/SpecifierLoader.h"

namespace host {

/// What stands on the page for a row: the row itself; for one that names a bundle and is no page
/// (`isController` not set), the rows that the bundle's principal class gives; nothing when the bundle is not
/// installed.
[[nodiscard]] NSArray *rowsOfBundle(PSSpecifier *specifier, const PageSource &source);

/// Gives a row the action that loads the bundle at this path of this machine at the first tap.
void loadLazily(PSSpecifier *specifier, NSString *path);

/// Where the bundle of a row is on this machine: `bundlePath`, else below the phone's folders of preference
/// bundles; nil when it is in none of them.
[[nodiscard]] NSString *installedBundle(PSSpecifier *specifier);

/// Loads the bundle at the path and gives the row the class of its page. When that fails the row opens a page
/// that says why, and the answer is that reason; nil otherwise.
NSString *loadPageClass(PSSpecifier *specifier, NSString *path);

/// Makes the row open a page with nothing but a line saying `reason`.
void openFailurePage(PSSpecifier *specifier, NSString *reason);

} // namespace host
