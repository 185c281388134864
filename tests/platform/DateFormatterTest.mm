#include "host/Text.h"
#include "support/TestDevice.h"

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

namespace {

class DateFormatter : public testing::Test {
protected:
    NSDateFormatter *formatter = nil;
    NSDate *march = [NSDate dateWithTimeIntervalSince1970:1425642000]; // 6 March 2015, 11:40 in Greenwich

    void TearDown() override { [formatter release]; }

    std::string shortDate(const char *language, const char *region, const char *version = "8.1") {
        const support::TestDevice device{{.systemVersion = version, .language = language, .region = region}};
        formatter = [NSDateFormatter new];
        [formatter setTimeZone:[NSTimeZone timeZoneForSecondsFromGMT:0]];
        [formatter setDateStyle:NSDateFormatterShortStyle];
        [formatter setTimeStyle:NSDateFormatterNoStyle];
        return formatted();
    }

    std::string formatted() { return host::utf8([formatter stringFromDate:march]); }
};

TEST_F(DateFormatter, TheLocaleIsTheDevices) {
    EXPECT_EQ(shortDate("de", "DE"), "06.03.15");
    EXPECT_TRUE([[[formatter locale] localeIdentifier] isEqual:@"de_DE"]);
    EXPECT_TRUE([[[NSLocale currentLocale] objectForKey:NSLocaleCountryCode] isEqual:@"DE"]);
}

TEST_F(DateFormatter, TheRegionDecidesAboutTheForm) {
    EXPECT_EQ(shortDate("en", "GB"), "06/03/2015");
}

TEST_F(DateFormatter, AmericanShortDates) {
    EXPECT_EQ(shortDate("en", "US"), "3/6/15");
}

TEST_F(DateFormatter, ChineseShortDatesHaveTheFormOfTheSystemsTime) {
    EXPECT_EQ(shortDate("zh-Hans", "CN"), "15/3/6");
    EXPECT_TRUE([[formatter stringForObjectValue:march] isEqual:@"15/3/6"]);
}

TEST_F(DateFormatter, ChineseShortDatesBeforeVersion8HaveHyphens) {
    EXPECT_EQ(shortDate("zh-Hans", "CN", "7.1.2"), "15-3-6");
}

TEST_F(DateFormatter, OtherChineseFormsAreLeftAlone) {
    EXPECT_EQ(shortDate("zh-Hant", "TW"), "2015/3/6");
}

TEST_F(DateFormatter, TheLastOfStyleAndPatternWins) {
    EXPECT_EQ(shortDate("zh-Hans", "CN"), "15/3/6");
    [formatter setDateFormat:@"HH:mm"];
    EXPECT_EQ(formatted(), "11:40");
    [formatter setDateStyle:NSDateFormatterShortStyle];
    EXPECT_EQ(formatted(), "15/3/6");
    [formatter setDateFormat:@"yyyy"];
    [formatter setTimeStyle:NSDateFormatterNoStyle];
    EXPECT_EQ(formatted(), "15/3/6");
}

TEST_F(DateFormatter, NoDateHasNoText) {
    EXPECT_EQ(shortDate("zh-Hans", "CN"), "15/3/6");
    EXPECT_EQ([formatter stringFromDate:nil], nil);
}

TEST(Locale, TheDevicesLanguageComesFirst) {
    const support::TestDevice device{{.language = "ja", .region = "JP"}};
    NSArray *expected = @[ @"ja", @"en" ];
    EXPECT_TRUE([[NSLocale preferredLanguages] isEqual:expected]);
    EXPECT_TRUE([[[NSLocale autoupdatingCurrentLocale] localeIdentifier] isEqual:@"ja_JP"]);
}

} // namespace
