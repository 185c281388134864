#include "settings/Notifications.h"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>

namespace zv {

void postNotification(const char *name) {
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(),
                                         (CFStringRef)[NSString stringWithUTF8String:name], NULL, NULL, true);
}

} // namespace zv
