// The test of the vibration that tells that a call is connected.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "AudioToolbox/Vibration.h"
#include "support/BundleState.h"

#include <climits>
#include <cmath>
#include <nlohmann/json.hpp>

using host::EventKind;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

using Phases = std::vector<std::pair<bool, long>>; // on, milliseconds

struct Vibration {
    int sound;
    double intensity;
    Phases phases;
};

std::vector<Vibration> vibrations() {
    std::vector<Vibration> result;
    for (const std::string &request : host::eventTexts(EventKind::vibration)) {
        const auto json = nlohmann::json::parse(request);
        Vibration vibration{json["sound"], json["intensity"], {}};
        for (const auto &phase : json["pattern"])
            vibration.phases.emplace_back(phase[0].get<bool>(), phase[1].get<long>());
        result.push_back(vibration);
    }
    return result;
}

class VibrationTests : public support::BundleTest {
protected:
    void open() {
        BundleTest::open();
        host::forgetEvents();
    }

    static void store(NSString *key, double value) {
        [support::sharedSettings() setObject:[NSNumber numberWithDouble:value] forKey:key];
    }

    Vibration test() {
        person.tap("Test Vibration");
        const auto all = vibrations();
        EXPECT_EQ(all.size(), 1U);
        return all.empty() ? Vibration{} : all.back();
    }
};

TEST_F(VibrationTests, WithoutSettingsHalfASecondIsPlayed) {
    open();
    const Vibration vibration = test();
    EXPECT_EQ(vibration.sound, 4095);
    EXPECT_NEAR(vibration.intensity, 0.3, 1e-6);
    EXPECT_THAT(vibration.phases, ElementsAre(Pair(true, 500)));
}

TEST_F(VibrationTests, TheRequestHoldsBooleansAndIntegersInTurn) {
    open();
    store(@"ConnectedVibrateTotalDuration", 1);
    store(@"ConnectedVibrateOnDuration", 0.3);
    store(@"ConnectedVibrateOffDuration", 0.2);
    test();
    const host::VibrationRequest &request = host::lastVibration();
    EXPECT_EQ(request.unused, nil);
    EXPECT_EQ([request.pattern count], 2U);
    EXPECT_EQ([[request.pattern objectForKey:@"Intensity"] floatValue], 0.3F);
    NSArray *expected = @[
        [NSNumber numberWithBool:YES], @300, [NSNumber numberWithBool:NO], @200,
        [NSNumber numberWithBool:YES], @300
    ];
    NSArray *phases = [request.pattern objectForKey:@"VibePattern"];
    EXPECT_TRUE([phases isEqual:expected]);
    for (NSUInteger index = 0; index + 1 < [phases count]; index += 2) {
        EXPECT_TRUE([[phases objectAtIndex:index] isKindOfClass:[[expected objectAtIndex:0] class]]) << index;
        EXPECT_FALSE([[phases objectAtIndex:index + 1] isKindOfClass:[[expected objectAtIndex:0] class]]);
    }
}

TEST_F(VibrationTests, EachSettingThatIsAbsentHasItsOwnDefault) {
    open();
    store(@"ConnectedVibrateTotalDuration", 1.2);
    EXPECT_THAT(test().phases, ElementsAre(Pair(true, 500), Pair(false, 0), Pair(true, 500), Pair(false, 0),
                                           Pair(true, 200)));
    host::forgetEvents();
    store(@"ConnectedVibrateOffDuration", 0.5);
    EXPECT_THAT(test().phases, ElementsAre(Pair(true, 500), Pair(false, 500), Pair(true, 200)));
    EXPECT_NEAR(vibrations().back().intensity, 0.3, 1e-6);
}

TEST_F(VibrationTests, DurationsOfTheCallerAreUsedToTheirLastMillisecond) {
    open();
    [rootPage() vibrateWithIntensity:0.5F totalDuration:LONG_MAX onDuration:LONG_MAX offDuration:-1];
    EXPECT_THAT(vibrations().back().phases, ElementsAre(Pair(true, LONG_MAX)));
    [rootPage() vibrateWithIntensity:0.5F totalDuration:-1 onDuration:-5 offDuration:LONG_MAX];
    EXPECT_THAT(vibrations().back().phases, ElementsAre(Pair(true, -5)));
}

TEST_F(VibrationTests, AnIntensityThatIsNoNumberIsPassedOnToo) {
    open();
    for (const float intensity : {NAN, HUGE_VALF, -1.0F}) {
        [rootPage() vibrateWithIntensity:intensity totalDuration:1 onDuration:1 offDuration:0];
        const float passed = [[host::lastVibration().pattern objectForKey:@"Intensity"] floatValue];
        EXPECT_TRUE(passed == intensity || (std::isnan(passed) && std::isnan(intensity))) << intensity;
    }
    EXPECT_EQ(vibrations().size(), 3U) << "the event log is well formed";
}

TEST_F(VibrationTests, StoredSecondsArePlayedAsMilliseconds) {
    open();
    store(@"ConnectedVibrateTotalDuration", 1.25);
    store(@"ConnectedVibrateOnDuration", 0.5);
    store(@"ConnectedVibrateOffDuration", 0.25);
    store(@"ConnectedVibrateIntensity", 0.75);
    const Vibration vibration = test();
    EXPECT_EQ(vibration.intensity, 0.75);
    EXPECT_THAT(vibration.phases, ElementsAre(Pair(true, 500), Pair(false, 250), Pair(true, 500)));
}

TEST_F(VibrationTests, OfATotalOfAndAQuarterSecondsOneVibrationLastsAsLong) {
    open();
    store(@"ConnectedVibrateTotalDuration", 1.25);
    store(@"ConnectedVibrateOnDuration", 2);
    EXPECT_THAT(test().phases, ElementsAre(Pair(true, 1250)));
}

TEST_F(VibrationTests, HalfAMillisecondIsNothing) {
    open();
    store(@"ConnectedVibrateTotalDuration", 0.0005);
    EXPECT_THAT(test().phases, IsEmpty());
}

TEST_F(VibrationTests, ATotalOfNothingIsStillPlayedAsAnEmptyPattern) {
    open();
    store(@"ConnectedVibrateTotalDuration", 0);
    EXPECT_THAT(test().phases, IsEmpty());
}

TEST_F(VibrationTests, AnIntensityIsPassedOnUnchecked) {
    open();
    store(@"ConnectedVibrateIntensity", 7.5);
    EXPECT_EQ(test().intensity, 7.5);
}

TEST_F(VibrationTests, SettingsMayBeAnythingWithAFloatValue) {
    open();
    [support::sharedSettings() setObject:@"0.25" forKey:@"ConnectedVibrateTotalDuration"];
    EXPECT_THAT(test().phases, ElementsAre(Pair(true, 250)));
}

TEST_F(VibrationTests, TheMainPreferencesAreNotAsked) {
    device.write("/var/mobile/Library/Preferences/zelvora.plist",
                 support::propertyList({{"ConnectedVibrateTotalDuration", "0.25"}}));
    open();
    person.tap("Keypad"); // loads the preferences
    person.back();
    EXPECT_THAT(test().phases, ElementsAre(Pair(true, 500)));
}

TEST_F(VibrationTests, APlatformExceptionEndsTheTestInSilence) {
    open();
    host::refuseNextVibration();
    BOOL raised = NO;
    @try {
        [rootPage() vibrateTestAction:nil];
    } @catch (NSException *) {
        raised = YES;
    }
    EXPECT_FALSE(raised);
    EXPECT_THAT(vibrations(), IsEmpty());
    EXPECT_THAT(host::eventTexts(EventKind::alert), IsEmpty());
}

} // namespace
