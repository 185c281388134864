// The queue behind performSelector:withObject:afterDelay:. Main thread only.
#pragma once

#import <Foundation/NSObject.h>

namespace host {

/// Which run-loop modes a delayed call waits for.
enum class CallMode {
    whenNotTracking, ///< the default mode alone
    always,          ///< the common modes
};

/// Retains `target` and `argument` until the call is performed or cancelled.
void addDelayedCall(id target, SEL selector, id argument, double delay, CallMode mode);

/// Cancels every waiting call to `target`.
void cancelDelayedCalls(id target);
/// Cancels the waiting calls of `selector` to `target` whose argument isEqual: to `argument` (nil equals
/// nil).
void cancelDelayedCalls(id target, SEL selector, id argument);

/// Performs the calls that are due now, not those they add. True when there was one.
bool performDueCalls();

/// Starts the clock anew, without waiting calls.
void resetClock(bool virtualTime);

} // namespace host
