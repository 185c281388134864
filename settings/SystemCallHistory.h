// The call history of the running system.
#pragma once

#import <UIKit/UIKit.h>

#include "databases/CallHistory.h"
#include "settings/Paths.h"

namespace zv {

/// The form of the running system's call history. The version is read anew at each call: nothing keeps it.
inline CallHistorySchema systemCallHistorySchema() {
    return callHistorySchema([[[UIDevice currentDevice] systemVersion] floatValue]);
}

/// The file of the call history in that form.
inline const char *systemCallHistoryPath() {
    return [located(path::callHistory(systemCallHistorySchema())) fileSystemRepresentation];
}

/// Control of that history; for use at once, since the path lives as long as the autorelease pool.
inline CallHistory systemCallHistory() {
    return {systemCallHistoryPath(), systemCallHistorySchema()};
}

} // namespace zv
