// What the pages share: one copy for the process, used on the main thread only.
#pragma once

#import <Foundation/Foundation.h>

#include <stdint.h>

@class ZelvoraSettingsController;

namespace zv {

/// The root page that was made last and still lives. Not retained: the page clears it when it goes.
extern ZelvoraSettingsController *_sharedInstance;

/// The root page's own settings, owned. They are kept in no file (see `saveSettings:forKey:`), so what the
/// root page's actions look up here is absent and their defaults apply.
extern NSMutableDictionary *_sharedSettings;

/// The call-history limit, in calls, chosen last; it waits here for its confirmation.
extern int32_t _pendingCallHistoryLimit;

/// What the main preference file holds, for every list-style page. Nil until the first page is about to
/// disappear, then kept as long as the process.
extern NSMutableDictionary *_settings;

} // namespace zv
