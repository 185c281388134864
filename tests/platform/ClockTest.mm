#include "host/Clock.h"

#include "host/Control.h"
#include "support/TestDevice.h"

#import <Foundation/Foundation.h>

#include <gmock/gmock.h>

namespace {

std::vector<std::string> heard;
double heardAt = 0;
int deallocated = 0;

} // namespace

@interface ClockListener : NSObject
- (void)hear:(NSString *)word;
- (void)hearAgain:(NSString *)word;
- (void)raise:(id)unused;
@end

@implementation ClockListener

- (void)dealloc {
    ++deallocated;
    [super dealloc];
}

- (void)hear:(NSString *)word {
    heard.emplace_back(word ? [word UTF8String] : "nil");
    heardAt = host::now();
}

- (void)hearAgain:(NSString *)word {
    [self hear:word];
    [self performSelector:@selector(hear:) withObject:@"again" afterDelay:1];
}

- (void)raise:(id)unused {
    [NSException raise:NSGenericException format:@"on purpose"];
}

@end

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Clock : public testing::Test {
protected:
    support::TestDevice device;
    ClockListener *listener = [ClockListener new];

    void SetUp() override {
        heard.clear();
        deallocated = 0;
    }
    void TearDown() override { [listener release]; }

    void hearAfter(NSString *word, double delay) {
        [listener performSelector:@selector(hear:) withObject:word afterDelay:delay];
    }
};

TEST_F(Clock, ADelayedCallComesAtItsMoment) {
    const double start = host::now();
    hearAfter(@"three", 3);
    host::advance(2.9);
    EXPECT_THAT(heard, IsEmpty());
    host::advance(1);
    EXPECT_THAT(heard, ElementsAre("three"));
    EXPECT_DOUBLE_EQ(heardAt, start + 3);
    EXPECT_DOUBLE_EQ(host::now(), start + 3.9);
}

TEST_F(Clock, CallsComeInTheOrderOfTheirMomentsThenOfAsking) {
    hearAfter(@"later", 2);
    hearAfter(@"first", 1);
    hearAfter(@"second", 1);
    host::advance(5);
    EXPECT_THAT(heard, ElementsAre("first", "second", "later"));
}

TEST_F(Clock, ThreeRearmingsFireOnceCountedFromTheLast) {
    for (int i = 0; i < 3; ++i) {
        [NSObject cancelPreviousPerformRequestsWithTarget:listener selector:@selector(hear:) object:nil];
        hearAfter(nil, 3);
        host::advance(2);
    }
    EXPECT_THAT(heard, IsEmpty());
    host::advance(1);
    EXPECT_THAT(heard, ElementsAre("nil"));
    EXPECT_THAT(host::pendingCalls(), IsEmpty());
}

TEST_F(Clock, CancellingComparesTheArgumentByIsEqual) {
    hearAfter([NSMutableString stringWithString:@"same"], 1);
    hearAfter(@"other", 1);
    hearAfter(nil, 1);
    [NSObject cancelPreviousPerformRequestsWithTarget:listener selector:@selector(hear:) object:@"same"];
    host::advance(1);
    EXPECT_THAT(heard, ElementsAre("other", "nil"));
}

TEST_F(Clock, CancellingATargetCancelsAllItsCalls) {
    hearAfter(@"one", 1);
    [listener performSelector:@selector(hearAgain:) withObject:@"two" afterDelay:1];
    [NSObject cancelPreviousPerformRequestsWithTarget:listener];
    host::advance(5);
    EXPECT_THAT(heard, IsEmpty());
}

TEST_F(Clock, TargetAndArgumentLiveUntilTheCall) {
    @autoreleasepool {
        ClockListener *target = [[ClockListener new] autorelease];
        ClockListener *argument = [[ClockListener new] autorelease];
        [target performSelector:@selector(isEqual:) withObject:argument afterDelay:1];
    }
    EXPECT_EQ(deallocated, 0);
    host::advance(1);
    EXPECT_EQ(deallocated, 2);
}

TEST_F(Clock, CancellingLetsTargetAndArgumentGo) {
    ClockListener *target = [ClockListener new];
    [target performSelector:@selector(hear:) withObject:@"never" afterDelay:1];
    [target release];
    [NSObject cancelPreviousPerformRequestsWithTarget:target];
    EXPECT_EQ(deallocated, 1);
}

TEST_F(Clock, ACallAddedOnTheWayComesAtItsOwnMoment) {
    [listener performSelector:@selector(hearAgain:) withObject:@"first" afterDelay:1];
    host::advance(1.5);
    EXPECT_THAT(heard, ElementsAre("first"));
    host::advance(0.5);
    EXPECT_THAT(heard, ElementsAre("first", "again"));
}

TEST_F(Clock, ADelayOfZeroWaitsForTheNextTurnOnly) {
    hearAfter(@"soon", 0);
    EXPECT_THAT(heard, IsEmpty());
    host::waitUntilIdle();
    EXPECT_THAT(heard, ElementsAre("soon"));
}

TEST_F(Clock, CallsAreHeldWhileAFingerScrolls) {
    hearAfter(@"held", 1);
    [listener performSelector:@selector(hear:)
                   withObject:@"common"
                   afterDelay:1
                      inModes:@[ NSRunLoopCommonModes ]];
    host::setTracking(true);
    host::advance(5);
    EXPECT_THAT(heard, ElementsAre("common"));
    host::setTracking(false);
    host::waitUntilIdle();
    EXPECT_THAT(heard, ElementsAre("common", "held"));
}

TEST_F(Clock, PendingCallsAreListedTheNextFirst) {
    hearAfter(@"b", 3);
    [listener performSelector:@selector(hearAgain:) withObject:nil afterDelay:1];
    const auto calls = host::pendingCalls();
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[0].selector, "hearAgain:");
    EXPECT_EQ(calls[1].selector, "hear:");
    EXPECT_DOUBLE_EQ(calls[1].delay, 3);
    EXPECT_DOUBLE_EQ(calls[1].due, host::now() + 3);
}

TEST_F(Clock, AnExceptionInACallLeavesTheOthersWaiting) {
    [listener performSelector:@selector(raise:) withObject:nil afterDelay:1];
    hearAfter(@"after", 1);
    BOOL raised = NO;
    @try {
        host::advance(1);
    } @catch (NSException *) {
        raised = YES;
    }
    EXPECT_TRUE(raised);
    host::advance(1);
    EXPECT_THAT(heard, ElementsAre("after"));
}

TEST_F(Clock, InRealTimeTheRunLoopMakesTheCall) {
    host::DeviceOptions options = host::device();
    options.virtualTime = false;
    host::start(options);
    hearAfter(@"real", 0.01);
    while (heard.empty())
        [[NSRunLoop mainRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.02]];
    EXPECT_THAT(heard, ElementsAre("real"));
}

TEST_F(Clock, AdvanceNeedsVirtualTime) {
    host::DeviceOptions options = host::device();
    options.virtualTime = false;
    host::start(options);
    EXPECT_DEATH(host::advance(1), "virtual time");
}

} // namespace
