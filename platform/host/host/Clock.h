// Time for delayed calls (performSelector:withObject:afterDelay:). In virtual time nothing happens
// until advance() is called, so that no test sleeps.
#pragma once

#include <string>
#include <vector>

namespace host {

/// Seconds since 1970, of the virtual clock where that is in use. The virtual clock starts at the moment
/// of start().
[[nodiscard]] double now();

/// Moves the virtual clock on, carrying out every delayed call that comes due on the way, in order, each at
/// its own moment. Only in virtual time.
void advance(double seconds);

struct PendingCall {
    std::string selector; ///< name of the selector that will be performed
    double due;           ///< moment, on the clock of now()
    double delay;         ///< seconds it was asked to wait
};

/// Delayed calls that are waiting, the next one first.
[[nodiscard]] std::vector<PendingCall> pendingCalls();

/// While a finger drags a list the main run loop is in its tracking mode: delayed calls of the default mode
/// are held, and carried out when the finger lifts.
void setTracking(bool tracking);

} // namespace host
