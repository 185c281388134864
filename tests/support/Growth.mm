#include "support/Growth.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <ctime>
#include <limits>

namespace support {
namespace {

constexpr int fewestTurns = 3, mostTurns = 30;

double processorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

double secondsOf(const std::function<void()> &work) {
    @autoreleasepool {
        const double start = processorSeconds();
        work();
        return processorSeconds() - start;
    }
}

} // namespace

testing::AssertionResult growsAtMost(double factor, const std::function<void()> &little,
                                     const std::function<void()> &much) {
    double shortest = std::numeric_limits<double>::max();
    double shortestOfMuch = shortest;
    for (int turn = 1; turn <= mostTurns; ++turn) {
        shortest = std::min(shortest, secondsOf(little));
        shortestOfMuch = std::min(shortestOfMuch, secondsOf(much));
        if (turn >= fewestTurns && shortestOfMuch <= factor * shortest)
            return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << shortestOfMuch / shortest << " times the time";
}

} // namespace support
