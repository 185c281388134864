#include "host/Control.h"

#import <UIKit/UIApplication.h>

void host::leaveAndReturn() {
    @autoreleasepool {
        for (NSString *name in @[
                 UIApplicationWillResignActiveNotification, UIApplicationDidEnterBackgroundNotification,
                 UIApplicationWillEnterForegroundNotification, UIApplicationDidBecomeActiveNotification
             ])
            [[NSNotificationCenter defaultCenter] postNotificationName:name
                                                                object:[UIApplication sharedApplication]];
    }
    waitUntilIdle();
}
