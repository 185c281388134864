#include "host/Control.h"
#include "host/DelayedCalls.h"
#include "host/Work.h"

#import <Foundation/Foundation.h>

namespace host {
namespace {

constexpr int mostTurns = 10'000;

// One turn of the main run loop without waiting. True when something was done that may lead to more.
bool turn() {
    @autoreleasepool {
        const bool worked = doWork();
        const bool performed = performDueCalls();
        [[NSRunLoop mainRunLoop] acceptInputForMode:NSDefaultRunLoopMode beforeDate:[NSDate distantPast]];
        return worked || performed;
    }
}

} // namespace

bool comesToRest() {
    for (int turns = 0; turns < mostTurns; ++turns) {
        if (!turn())
            return true;
    }
    record(EventKind::log, "the main run loop never comes to rest");
    return false;
}

void waitUntilIdle() {
    (void)comesToRest();
}

} // namespace host
