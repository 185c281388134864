// System sounds on a machine without a vibrator: requests are recorded (System Sound Services reference).
#include <AudioToolbox/AudioToolbox.h>

#include "AudioToolbox/Vibration.h"
#include "Foundation/PropertyList.h"
#include "host/EventLog.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <string>

namespace host {
namespace {

VibrationRequest last;
bool refuseNext = false;

// Whatever a page put in, the event's JSON stays well formed: it has no infinity and no "not a number".
double amount(id value) {
    const double number = [value isKindOfClass:[NSNumber class]] ? [value doubleValue] : 0;
    return std::isfinite(number) ? number : 0;
}

bool isInteger(id value) {
    return [value isKindOfClass:[NSNumber class]] && std::strchr("fd", *[value objCType]) == nullptr;
}

std::string number(id value) {
    if (isInteger(value))
        return std::to_string([value longLongValue]);
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", amount(value));
    return text;
}

std::string phases(NSArray *pattern) {
    std::string text;
    for (NSUInteger i = 0; i + 1 < [pattern count]; i += 2) {
        const bool on = amount([pattern objectAtIndex:i]) != 0;
        text += std::string(text.empty() ? "[" : ", [") + (on ? "true, " : "false, ") +
                number([pattern objectAtIndex:i + 1]) + "]";
    }
    return "[" + text + "]";
}

std::string description(SystemSoundID sound, NSDictionary *pattern) {
    id vibePattern = [pattern objectForKey:@"VibePattern"];
    return "{\"sound\": " + std::to_string(sound) +
           ", \"pattern\": " + phases([vibePattern isKindOfClass:[NSArray class]] ? vibePattern : nil) +
           ", \"intensity\": " + number([pattern objectForKey:@"Intensity"]) + "}";
}

void remember(SystemSoundID sound, id unused, NSDictionary *pattern) {
    [last.pattern release];
    last = {sound, unused, [pattern copy]};
}

void raiseIfRefused() {
    if (!refuseNext)
        return;
    refuseNext = false;
    [NSException raise:NSInternalInconsistencyException format:@"the vibration was refused"];
}

} // namespace

const VibrationRequest &lastVibration() {
    return last;
}

void refuseNextVibration() {
    refuseNext = true;
}

} // namespace host

void AudioServicesPlaySystemSoundWithVibration(SystemSoundID sound, id unused, NSDictionary *pattern) {
    host::raiseIfRefused();
    // The request goes to another process as a property list.
    if (pattern && !host::propertyListDocument(pattern)) {
        host::record(host::EventKind::log, "a vibration was asked for that is no property list");
        return;
    }
    host::remember(sound, unused, pattern);
    host::record(host::EventKind::vibration, host::description(sound, pattern));
}

void AudioServicesStopSystemSound(SystemSoundID sound) {
    host::record(host::EventKind::vibration, "{\"sound\": " + std::to_string(sound) + ", \"stop\": true}");
}
