#include "host/Clock.h"

#include "host/DelayedCalls.h"
#include "host/Failure.h"
#include "host/Retained.h"
#include "host/Work.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <chrono>
#include <limits>
#include <optional>

namespace host {
namespace {

struct DelayedCall {
    Retained<> target;
    SEL selector;
    Retained<> argument;
    double due;
    double delay;
    CallMode mode;
    unsigned long long number;
};

bool timeIsVirtual = false;
bool fingerIsDown = false;
double virtualNow = 0;
unsigned long long lastNumber = 0;
NSTimer *timer = nil;

// In the order in which they come due. Lives as long as the process: releasing objects while the
// runtime shuts down is not safe.
std::vector<DelayedCall> &waiting() {
    static auto &calls = *new std::vector<DelayedCall>;
    return calls;
}

double realNow() {
    using namespace std::chrono;
    return duration<double>(system_clock::now().time_since_epoch()).count();
}

bool isHeld(const DelayedCall &call) {
    return fingerIsDown && call.mode == CallMode::whenNotTracking;
}

auto nextCall() {
    return std::find_if_not(waiting().begin(), waiting().end(), isHeld);
}

std::optional<double> nextMoment() {
    const auto next = nextCall();
    return next == waiting().end() ? std::nullopt : std::optional(next->due);
}

} // namespace
} // namespace host

@interface HostClockAlarm : NSObject
+ (void)ring:(NSTimer *)timer;
@end

namespace host {
namespace {

// In real time one timer stands for the next call.
void armTimer() {
    if (timeIsVirtual)
        return;
    [timer invalidate];
    [timer release];
    timer = nil;
    const std::optional<double> moment = nextMoment();
    if (!moment)
        return;
    timer = [[NSTimer timerWithTimeInterval:std::max(0.0, *moment - now())
                                     target:[HostClockAlarm class]
                                   selector:@selector(ring:)
                                   userInfo:nil
                                    repeats:NO] retain];
    [[NSRunLoop mainRunLoop] addTimer:timer forMode:NSDefaultRunLoopMode];
}

template<typename Matches>
void cancelWhere(const Matches &matches) {
    // The last references go after the queue is in order again: a dealloc may add or cancel calls.
    std::vector<DelayedCall> cancelled;
    std::vector<DelayedCall> kept;
    for (DelayedCall &call : waiting())
        (matches(call) ? cancelled : kept).push_back(std::move(call));
    waiting().swap(kept);
    armTimer();
}

bool areEqual(id one, id other) {
    return one == other || [one isEqual:other];
}

} // namespace

double now() {
    return timeIsVirtual ? virtualNow : realNow();
}

void advance(double seconds) {
    if (!timeIsVirtual)
        fail("advance() needs virtual time");
    const double end = virtualNow + seconds;
    bool atRest = comesToRest();
    while (atRest && nextMoment().value_or(std::numeric_limits<double>::infinity()) <= end) {
        virtualNow = std::max(virtualNow, *nextMoment());
        atRest = comesToRest();
    }
    virtualNow = end;
}

std::vector<PendingCall> pendingCalls() {
    std::vector<PendingCall> calls;
    for (const DelayedCall &call : waiting())
        calls.push_back({sel_getName(call.selector), call.due, call.delay});
    return calls;
}

void setTracking(bool tracking) {
    fingerIsDown = tracking;
    armTimer();
}

void addDelayedCall(id target, SEL selector, id argument, double delay, CallMode mode) {
    if (!isMainThread())
        fail("delayed calls belong to the main thread");
    const double due = now() + std::max(0.0, delay);
    const auto later = std::find_if(waiting().begin(), waiting().end(),
                                    [due](const DelayedCall &call) { return call.due > due; });
    waiting().insert(later, DelayedCall{Retained<>(target), selector, Retained<>(argument), due, delay, mode,
                                        ++lastNumber});
    armTimer();
}

void cancelDelayedCalls(id target) {
    cancelWhere([target](const DelayedCall &call) { return call.target.get() == target; });
}

void cancelDelayedCalls(id target, SEL selector, id argument) {
    cancelWhere([=](const DelayedCall &call) {
        return call.target.get() == target && sel_isEqual(call.selector, selector) &&
               areEqual(call.argument.get(), argument);
    });
}

bool performDueCalls() {
    const unsigned long long newest = lastNumber;
    bool any = false;
    for (;;) {
        const auto next = std::find_if(waiting().begin(), waiting().end(), [newest](const DelayedCall &call) {
            return !isHeld(call) && call.number <= newest;
        });
        if (next == waiting().end() || next->due > now())
            return any;
        const DelayedCall call = std::move(*next);
        waiting().erase(next);
        armTimer();
        any = true;
        @autoreleasepool {
            [call.target.get() performSelector:call.selector withObject:call.argument.get()];
        }
    }
}

void resetClock(bool virtualTime) {
    cancelWhere([](const DelayedCall &) { return true; });
    timeIsVirtual = virtualTime;
    fingerIsDown = false;
    virtualNow = realNow();
}

} // namespace host

@implementation HostClockAlarm

+ (void)ring:(NSTimer *)timer {
    host::performDueCalls();
}

@end
