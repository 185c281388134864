// The Darwin notify center, after the CFNotificationCenter reference and notify(3). A post is recorded at
// once and delivered to this process's observers in the next turn of the main loop; there are no other
// processes.
#include <CoreFoundation/CFNotificationCenter.h>
#include <notify.h>

#include "host/EventLog.h"
#include "host/Failure.h"
#include "host/Text.h"
#include "host/Work.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

struct __CFNotificationCenter {
    struct Observation {
        unsigned long long number;
        const void *observer;
        CFNotificationCallback callback;
        std::string name;
    };

    unsigned long long lastNumber = 0;
    std::vector<Observation> observations;
    std::set<std::string> posted; ///< names whose delivery is still to come
};

namespace {

using Center = __CFNotificationCenter;

// Lives as long as the process, like the center of the phone.
Center &darwinCenter() {
    static auto &center = *new Center;
    return center;
}

std::string text(CFStringRef name) {
    return host::utf8((NSString *)name);
}

std::string required(CFStringRef name) {
    if (!name)
        host::fail("the Darwin notify center needs a name");
    return text(name);
}

bool isObserving(unsigned long long number) {
    return std::any_of(darwinCenter().observations.begin(), darwinCenter().observations.end(),
                       [number](const Center::Observation &each) { return each.number == number; });
}

// An observer may be removed by the one called before it.
void deliver(const std::string &name) {
    Center &center = darwinCenter();
    center.posted.erase(name);
    const std::vector<Center::Observation> all = center.observations;
    for (const Center::Observation &each : all) {
        if (each.name != name || !isObserving(each.number))
            continue;
        each.callback(&center, const_cast<void *>(each.observer), (CFStringRef)host::string(name), nullptr,
                      nullptr);
    }
}

void post(const std::string &name) {
    host::record(host::EventKind::notification, name);
    if (darwinCenter().posted.insert(name).second)
        host::later([name] { deliver(name); });
}

} // namespace

CFNotificationCenterRef CFNotificationCenterGetDarwinNotifyCenter(void) {
    return &darwinCenter();
}

void CFNotificationCenterAddObserver(CFNotificationCenterRef center, const void *observer,
                                     CFNotificationCallback callback, CFStringRef name, const void *object,
                                     CFNotificationSuspensionBehavior behavior) {
    center->observations.push_back({++center->lastNumber, observer, callback, required(name)});
}

void CFNotificationCenterRemoveObserver(CFNotificationCenterRef center, const void *observer,
                                        CFStringRef name, const void *object) {
    const std::string wanted = text(name);
    std::erase_if(center->observations, [&](const Center::Observation &each) {
        return each.observer == observer && (!name || each.name == wanted);
    });
}

void CFNotificationCenterRemoveEveryObserver(CFNotificationCenterRef center, const void *observer) {
    CFNotificationCenterRemoveObserver(center, observer, nullptr, nullptr);
}

void CFNotificationCenterPostNotification(CFNotificationCenterRef center, CFStringRef name,
                                          const void *object, CFDictionaryRef userInfo,
                                          Boolean deliverImmediately) {
    post(required(name));
}

uint32_t notify_post(const char *name) {
    if (!name)
        return NOTIFY_STATUS_INVALID_NAME;
    post(name);
    return NOTIFY_STATUS_OK;
}
