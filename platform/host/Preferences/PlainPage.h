// Pages that come without a class of their own.
#pragma once

#import <Preferences/PSListController.h>

namespace host {

/// Property of a row: the path, on this machine, of the bundle that it opens.
inline NSString *const bundleProperty = @"_hostBundle";
/// Property of a row: the path, on this machine, of the property list that is its page.
inline NSString *const pageFileProperty = @"_hostPageFile";
/// Property of a row: why its page cannot be shown.
inline NSString *const failureProperty = @"_hostFailure";

} // namespace host

/// A page made of property lists alone, as PreferenceLoader offers it to bundles without a program: its
/// bundle is that of the row that opened it, or of the page before it.
@interface PLCustomListController : PSListController
@end

/// A page with nothing but a line that says why the wanted page cannot be shown.
@interface HostFailurePage : PSListController
@end
