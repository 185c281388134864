// System sounds and vibration (System Sound Services reference). The two functions with patterns are not in
// the public reference; they are known from the developer community.
#pragma once

#include <stdint.h>

#import <Foundation/Foundation.h>

typedef uint32_t SystemSoundID;

enum { kSystemSoundID_Vibrate = 0x00000FFF };

#ifdef __cplusplus
extern "C" {
#endif

/// Plays a sound with a vibration pattern and returns at once. `unused` is nil. `pattern` holds property-list
/// objects: "VibePattern", an array of alternating booleans (on or off) and milliseconds, and "Intensity", 0
/// to 1.
void AudioServicesPlaySystemSoundWithVibration(SystemSoundID sound, id unused, NSDictionary *pattern);

void AudioServicesStopSystemSound(SystemSoundID sound);

#ifdef __cplusplus
}
#endif
