#include "databases/MomentText.h"

#include <gtest/gtest.h>

// Counts how often it is asked, and writes what its format says.
@interface CountingFormatter : NSDateFormatter {
@public
    int _count;
}
@end

@implementation CountingFormatter
- (NSString *)stringFromDate:(NSDate *)date {
    ++_count;
    return [super stringFromDate:date];
}
@end

namespace {

constexpr double minute = 60;
constexpr double hour = 3600;
constexpr double day = 86400;
constexpr double midnight = 447292800; // 6 March 2015, 00:00 UTC, in seconds since 2001

class MomentText : public testing::Test {
protected:
    void use(NSString *zone, NSString *format) {
        [NSTimeZone setDefaultTimeZone:[NSTimeZone timeZoneWithName:zone]];
        m_formatter = [[CountingFormatter alloc] init];
        [m_formatter setDateFormat:format];
    }
    CountingFormatter *m_formatter = nil;
};

TEST_F(MomentText, OfOneDayIsWrittenOnce) {
    use(@"UTC", @"yyyy-MM-dd");
    zv::MomentText dates(m_formatter, day);
    EXPECT_STREQ([dates.text(midnight + day - 1) UTF8String], "2015-03-06");
    EXPECT_STREQ([dates.text(midnight + 5 * hour) UTF8String], "2015-03-06");
    EXPECT_STREQ([dates.text(midnight) UTF8String], "2015-03-06");
    EXPECT_EQ(m_formatter->_count, 1);
    EXPECT_STREQ([dates.text(midnight - 1) UTF8String], "2015-03-05");
    EXPECT_EQ(m_formatter->_count, 2);
}

TEST_F(MomentText, OfOneMinuteIsWrittenOnce) {
    use(@"UTC", @"HH:mm");
    zv::MomentText times(m_formatter, minute);
    EXPECT_STREQ([times.text(midnight + 119.5) UTF8String], "00:01");
    EXPECT_STREQ([times.text(midnight + 60) UTF8String], "00:01");
    EXPECT_EQ(m_formatter->_count, 1);
    EXPECT_STREQ([times.text(midnight + 59.9) UTF8String], "00:00");
}

TEST_F(MomentText, FollowsTheLocalDay) {
    use(@"America/St_Johns", @"yyyy-MM-dd"); // 3:30 behind in March before the clocks change
    zv::MomentText dates(m_formatter, day);
    EXPECT_STREQ([dates.text(midnight + 3.5 * hour) UTF8String], "2015-03-06");
    EXPECT_STREQ([dates.text(midnight + 3.5 * hour - 1) UTF8String], "2015-03-05");
    EXPECT_STREQ([dates.text(midnight - 20 * hour) UTF8String], "2015-03-05");
    EXPECT_EQ(m_formatter->_count, 2);
}

TEST_F(MomentText, OfADayOnWhichTheClocksChangeIsThatDay) {
    use(@"Europe/London", @"yyyy-MM-dd HH"); // 29 March 2015: 01:00 becomes 02:00
    double change = midnight + 23 * day + hour;
    zv::MomentText hours(m_formatter, hour);
    EXPECT_STREQ([hours.text(change) UTF8String], "2015-03-29 02");
    EXPECT_STREQ([hours.text(change - 1) UTF8String], "2015-03-29 00");
    EXPECT_STREQ([hours.text(change - hour - 1) UTF8String], "2015-03-28 23");
}

TEST_F(MomentText, OfMomentsBefore2001IsTheirOwn) {
    use(@"UTC", @"yyyy-MM-dd");
    zv::MomentText dates(m_formatter, day);
    EXPECT_STREQ([dates.text(-1) UTF8String], "2000-12-31");
    EXPECT_STREQ([dates.text(0) UTF8String], "2001-01-01");
    EXPECT_STREQ([dates.text(-978307200) UTF8String], "1970-01-01");
}

TEST_F(MomentText, IsGivenBackWithItsFormatterInTheEnd) {
    NSString *first = nil, *last = nil;
    @autoreleasepool {
        use(@"UTC", @"yyyy-MM-dd HH:mm");
        [m_formatter retain];
        zv::MomentText dates(m_formatter, day);
        first = [dates.text(midnight) retain];
        last = [dates.text(midnight - day) retain];
    }
    for (id given in @[ m_formatter, first, last ])
        EXPECT_EQ([given retainCount], 2U) << "held by this list and this test";
    [m_formatter release];
    [first release];
    [last release];
}

TEST_F(MomentText, LivesUntilTheNextOne) {
    use(@"UTC", @"yyyy-MM-dd");
    zv::MomentText dates(m_formatter, day);
    NSString *kept = [dates.text(midnight) retain];
    (void)dates.text(midnight - day);
    EXPECT_STREQ([kept UTF8String], "2015-03-06");
    [kept release];
}

} // namespace
