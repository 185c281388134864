#include "listeditor/CallTime.h"

#include <cstdint>
#include <gtest/gtest.h>

using zv::CallTime;
using zv::callTime;
using zv::roundedUpMinutes;
using zv::secondsInMinutes;

namespace {

constexpr std::int32_t longest = INT32_MAX;

TEST(CallTimes, NoLifetimeIsNoTime) {
    EXPECT_EQ(callTime(0), (CallTime{0, 0, 0}));
}

TEST(CallTimes, ASecondMoreThanAMinuteIsTwoMinutes) {
    EXPECT_EQ(callTime(61), (CallTime{0, 0, 2}));
}

TEST(CallTimes, AnHourIsOneHour) {
    EXPECT_EQ(callTime(3600), (CallTime{0, 1, 0}));
}

TEST(CallTimes, ASecondLessThanADayIsADay) {
    EXPECT_EQ(callTime(86399), (CallTime{1, 0, 0}));
}

TEST(CallTimes, DaysHoursAndMinutesAreSplit) {
    EXPECT_EQ(callTime(90061), (CallTime{1, 1, 2}));
}

TEST(CallTimes, MinutesAreRoundedUp) {
    EXPECT_EQ(roundedUpMinutes(0), 0);
    EXPECT_EQ(roundedUpMinutes(1), 1);
    EXPECT_EQ(roundedUpMinutes(60), 1);
    EXPECT_EQ(roundedUpMinutes(90061), 1502);
}

TEST(CallTimes, RoundingUpTheLongestLifetimeWrapsAround) {
    EXPECT_EQ(roundedUpMinutes(longest), -35791393);
    EXPECT_EQ(callTime(longest), (CallTime{-24855, -3, -13}));
}

TEST(CallTimes, NegativeLifetimesAreCutTowardsZero) {
    EXPECT_EQ(roundedUpMinutes(-59), 0);
    EXPECT_EQ(roundedUpMinutes(-120), -1);
    EXPECT_EQ(callTime(-90000), (CallTime{-1, 0, -59}));
}

TEST(CallTimes, MinutesBecomeSeconds) {
    EXPECT_EQ(secondsInMinutes(5), 300);
    EXPECT_EQ(secondsInMinutes(1502), 90120);
    EXPECT_EQ(secondsInMinutes(-1), -60);
}

TEST(CallTimes, SecondsKeepTheLower32BitsOfTheProduct) {
    EXPECT_EQ(secondsInMinutes(35791395), -2147483596);
    EXPECT_EQ(secondsInMinutes(longest), -60);
}

} // namespace
