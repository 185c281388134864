// The Darwin notify center: notifications without content between processes (CFNotificationCenter reference).
#pragma once

#include <CoreFoundation/CFBase.h>

typedef struct __CFNotificationCenter *CFNotificationCenterRef;

/// `object` and `userInfo` are NULL in the Darwin center.
typedef void (*CFNotificationCallback)(CFNotificationCenterRef center, void *observer, CFStringRef name,
                                       const void *object, CFDictionaryRef userInfo);

typedef CFIndex CFNotificationSuspensionBehavior;
enum {
    CFNotificationSuspensionBehaviorDrop = 1,
    CFNotificationSuspensionBehaviorCoalesce = 2,
    CFNotificationSuspensionBehaviorHold = 3,
    CFNotificationSuspensionBehaviorDeliverImmediately = 4,
};

#ifdef __cplusplus
extern "C" {
#endif

/// The one center of the process; not owned by the caller.
CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void);

/// Calls `callback` on the main thread after posts of `name`, which must not be NULL. Posts that come before
/// the main run loop turns are delivered as one. `object` and `behavior` are ignored by the Darwin center.
void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,
                                     CFNotificationCallback callback, CFStringRef name, const void *object,
                                     CFNotificationSuspensionBehavior behavior);

/// A NULL `name` means all names.
void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center, const void *observer,
                                        CFStringRef name, const void *object);
void CFNotificationCenterRemoveEveryObserver(CFNotificationCenterRef center, const void *observer);

/// Posts `name`, which must not be NULL. The Darwin center ignores everything else.
void CFNotificationCenterPostNotification(CFNotificationCenterRef center, CFStringRef name,
                                          const void *object, CFDictionaryRef userInfo,
                                          Boolean deliverImmediately);

#ifdef __cplusplus
}
#endif
