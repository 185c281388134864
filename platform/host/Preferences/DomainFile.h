// Preference domains: each is one property list below /var/mobile/Library/Preferences.
#pragma once

#import <Foundation/Foundation.h>

namespace host {

/// The value of a key, read from the domain's file now. nil when the file, or the key in it, is missing or
/// damaged. `domain` nil: the domain of Settings itself.
[[nodiscard]] id storedValue(NSString *domain, NSString *key);

/// Changes one key of the domain's file at once (nil removes it) and keeps the others; a missing or damaged
/// file begins empty. false when the value cannot be written, and the file is as before.
bool storeValue(NSString *domain, NSString *key, id value);

} // namespace host
