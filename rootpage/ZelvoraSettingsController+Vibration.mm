#import "rootpage/ZelvoraSettingsController.h"

#import <AudioToolbox/AudioToolbox.h>

#include "rootpage/VibrationPattern.h"
#include "settings/SharedState.h"

// Exported by AudioToolbox, declared in none of its headers: plays `request` (a property list) at once,
// without waiting for its end.
extern "C" void AudioServicesPlaySystemSoundWithVibration(SystemSoundID sound, id unused,
                                                          NSDictionary *request);

namespace {

constexpr float defaultIntensity = 0.3F;
constexpr NSInteger defaultTotal = 500, defaultOn = 500; // milliseconds
constexpr NSInteger defaultOff = 0;                      // unlike the other durations, on purpose

NSArray *phaseArray(const zv::VibrationPattern<NSInteger> &pattern) {
    NSMutableArray *phases = [NSMutableArray array];
    for (const auto &phase : pattern) {
        [phases addObject:[NSNumber numberWithBool:phase.on]];
        [phases addObject:[NSNumber numberWithInteger:phase.milliseconds]];
    }
    return phases;
}

NSInteger storedMilliseconds(NSString *key, NSInteger otherwise) {
    id seconds = [zv::_sharedSettings objectForKey:key];
    return seconds ? zv::milliseconds<NSInteger>([seconds floatValue]) : otherwise;
}

float storedIntensity() {
    id intensity = [zv::_sharedSettings objectForKey:@"ConnectedVibrateIntensity"];
    return intensity ? [intensity floatValue] : defaultIntensity;
}

} // namespace

@implementation ZelvoraSettingsController (Vibration)

// What the platform raises ends the attempt in silence: there is nothing to tell a person about it.
- (void)vibrateWithIntensity:(float)intensity
               totalDuration:(NSInteger)total
                  onDuration:(NSInteger)on
                 offDuration:(NSInteger)off {
    @try {
        NSMutableDictionary *request = [NSMutableDictionary dictionary];
        [request setObject:phaseArray({total, on, off}) forKey:@"VibePattern"];
        [request setObject:[NSNumber numberWithFloat:intensity] forKey:@"Intensity"];
        AudioServicesPlaySystemSoundWithVibration(kSystemSoundID_Vibrate, nil, request);
    } @catch (NSException *) {
    }
}

- (void)vibrateTestAction:(PSSpecifier *)specifier {
    [self vibrateWithIntensity:storedIntensity()
                 totalDuration:storedMilliseconds(@"ConnectedVibrateTotalDuration", defaultTotal)
                    onDuration:storedMilliseconds(@"ConnectedVibrateOnDuration", defaultOn)
                   offDuration:storedMilliseconds(@"ConnectedVibrateOffDuration", defaultOff)];
}

@end
