#include "AudioToolbox/Vibration.h"

#include "host/EventLog.h"
#include "support/TestDevice.h"

#import <AudioToolbox/AudioToolbox.h>
#include <climits>
#include <cmath>
#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Vibration : public testing::Test {
protected:
    support::TestDevice device;

    static void play(NSDictionary *pattern) {
        AudioServicesPlaySystemSoundWithVibration(kSystemSoundID_Vibrate, nil, pattern);
    }
    static std::vector<std::string> played() { return host::eventTexts(host::EventKind::vibration); }
};

TEST_F(Vibration, ARequestIsRecordedAsJSON) {
    play(@{
        @"VibePattern" : @[ [NSNumber numberWithBool:YES], @200, [NSNumber numberWithBool:NO], @300 ],
        @"Intensity" : [NSNumber numberWithFloat:0.3f]
    });
    EXPECT_THAT(
        played(),
        ElementsAre(R"({"sound": 4095, "pattern": [[true, 200], [false, 300]], "intensity": 0.300000012})"));
}

TEST_F(Vibration, TheLastRequestIsKeptAsACopy) {
    NSMutableDictionary *request = [NSMutableDictionary dictionaryWithObject:@[] forKey:@"VibePattern"];
    play(request);
    [request removeAllObjects];
    EXPECT_EQ(host::lastVibration().sound, 4095u);
    EXPECT_EQ(host::lastVibration().unused, nil);
    EXPECT_TRUE([host::lastVibration().pattern isEqual:@{@"VibePattern" : @[]}]);
}

TEST_F(Vibration, OddRequestsStayWellFormed) {
    play(nil);
    play(@{@"VibePattern" : @"text", @"Intensity" : @"strong"});
    play(@{@"VibePattern" : @[ @1 ]});
    EXPECT_THAT(played(), testing::Each(R"({"sound": 4095, "pattern": [], "intensity": 0})"));
}

TEST_F(Vibration, MillisecondsAreRecordedToTheLastAndWhatIsNoNumberAsNothing) {
    play(@{
        @"VibePattern" : @[ [NSNumber numberWithBool:YES], [NSNumber numberWithLongLong:LLONG_MAX] ],
        @"Intensity" : [NSNumber numberWithFloat:HUGE_VALF]
    });
    play(@{@"VibePattern" : @[ @1, @"text" ], @"Intensity" : [NSNumber numberWithFloat:NAN]});
    EXPECT_THAT(played(),
                ElementsAre(R"({"sound": 4095, "pattern": [[true, 9223372036854775807]], "intensity": 0})",
                            R"({"sound": 4095, "pattern": [[true, 0]], "intensity": 0})"));
}

TEST_F(Vibration, WhatIsNoPropertyListIsNotPlayed) {
    play(@{@"VibePattern" : [NSNull null]});
    EXPECT_THAT(played(), IsEmpty());
    EXPECT_THAT(host::eventTexts(host::EventKind::log), testing::SizeIs(1));
}

TEST_F(Vibration, ARefusedRequestRaisesOnceAndIsNotPlayed) {
    host::refuseNextVibration();
    BOOL raised = NO;
    @try {
        play(@{});
    } @catch (NSException *) {
        raised = YES;
    }
    EXPECT_TRUE(raised);
    EXPECT_THAT(played(), IsEmpty());
    play(@{});
    EXPECT_THAT(played(), testing::SizeIs(1));
}

TEST_F(Vibration, StoppingIsRecorded) {
    AudioServicesStopSystemSound(kSystemSoundID_Vibrate);
    EXPECT_THAT(played(), ElementsAre(R"({"sound": 4095, "stop": true})"));
}

} // namespace
