// Work for the main thread: what a class wants done in the next turn of the main run loop, and what
// other threads hand over.
#pragma once

#include <functional>

namespace host {

[[nodiscard]] bool isMainThread();

/// Carries out `work` in the next turn of the main run loop; in the order of asking. From any thread.
void later(std::function<void()> work);

/// Carries out `work` on the main thread and waits for it. At once when this is the main thread;
/// otherwise the main thread must be running its run loop. `work` must not throw.
void onMain(const std::function<void()> &work);

/// Connects the queue with the main run loop. Main thread; start() does it.
void watchForWork();

/// Carries out what is in the queue now, not what that adds. True when there was something.
bool doWork();

/// Turns the main run loop until nothing is left that is due now. False when it never comes to rest:
/// it gives up, and says so in the event log, after 10,000 turns.
bool comesToRest();

} // namespace host
