// The recent calls, as records for the number pickers.
#pragma once

#import <Foundation/Foundation.h>

#include "databases/CallHistorySchema.h"

namespace zv {

/// Replaces the contact records in `records` by one record for each number in the call-history database at
/// `path`, the number called last first. A number that a contact has takes that contact's record, of several
/// the one that comes last in `records`; its "type" becomes the date or time of the newest call, unless the
/// call has no date.
///
/// `now` is in seconds since 1970. A call shows its time ("HH:mm") where `now` minus the date as stored is
/// less than a day, else its date. What a Core Data store holds counts from 2001 and is subtracted all the
/// same, so that its calls always show the date: deliberate. A database that cannot be read leaves `records`
/// empty.
void replaceWithRecentCalls(NSMutableArray *records, const char *path, CallHistorySchema schema,
                            NSTimeInterval now);

} // namespace zv
