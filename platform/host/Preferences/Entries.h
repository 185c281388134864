// The rows of the Settings root list that come from /Library/PreferenceLoader/Preferences. After
// PreferenceLoader's public entry format.
#pragma once

#import <Foundation/Foundation.h>

#include <string_view>

namespace host {

/// The specifiers of all entry files of the device, sorted by name. Files without an entry, entries filtered
/// out on this system version and entries of missing bundles are left out.
[[nodiscard]] NSArray *entrySpecifiers(id target);

/// Whether a `filter` dictionary admits a system version: CoreFoundationVersion is an array of the lowest
/// version and, where wanted, the upper bound, which is excluded. Anything else admits every version.
[[nodiscard]] bool filterAdmits(id filter, std::string_view systemVersion);

/// kCFCoreFoundationVersionNumber of a system version ("8.1.2"): that of the newest known version not above
/// it.
[[nodiscard]] double coreFoundationVersion(std::string_view systemVersion);

} // namespace host
