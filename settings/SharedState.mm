#include "settings/SharedState.h"

namespace zv {

ZelvoraSettingsController *_sharedInstance = nil;
NSMutableDictionary *_sharedSettings = nil;
int32_t _pendingCallHistoryLimit = 0;
NSMutableDictionary *_settings = nil;

} // namespace zv
