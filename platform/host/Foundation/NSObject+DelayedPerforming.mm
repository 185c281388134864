// Delayed performing, as Apple's NSObject and NSRunLoop class references describe it, on the host's own
// clock instead of the run loop's: tests can then move time on, and the waiting calls can be shown.
#include "host/DelayedCalls.h"

#import <Foundation/Foundation.h>

@implementation NSObject (HostDelayedPerforming)

- (void)performSelector:(SEL)selector withObject:(id)argument afterDelay:(NSTimeInterval)delay {
    host::addDelayedCall(self, selector, argument, delay, host::CallMode::whenNotTracking);
}

- (void)performSelector:(SEL)selector
             withObject:(id)argument
             afterDelay:(NSTimeInterval)delay
                inModes:(NSArray *)modes {
    const BOOL common = [modes containsObject:NSRunLoopCommonModes];
    host::addDelayedCall(self, selector, argument, delay,
                         common ? host::CallMode::always : host::CallMode::whenNotTracking);
}

+ (void)cancelPreviousPerformRequestsWithTarget:(id)target {
    host::cancelDelayedCalls(target);
}

+ (void)cancelPreviousPerformRequestsWithTarget:(id)target selector:(SEL)selector object:(id)argument {
    host::cancelDelayedCalls(target, selector, argument);
}

@end
