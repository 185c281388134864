#include "Foundation/ProgramBundle.h"
#include "host/Text.h"
#include "support/TestDevice.h"

#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

@interface ClassOfTheProgram : NSObject
@end

@implementation ClassOfTheProgram
@end

namespace {

class Bundle : public testing::Test {
protected:
    support::TestDevice device{{.language = "zh-Hans", .region = "CN"}};

    void SetUp() override {
        device.write("/B.bundle/Info.plist",
                     "<plist><dict><key>CFBundleIdentifier</key><string>b</string></dict></plist>");
    }

    void writeTable(const std::string &content,
                    const std::string &file = "zh-Hans.lproj/Localizable.strings") {
        device.write("/B.bundle/" + file, content);
    }

    NSBundle *bundle() { return [NSBundle bundleWithPath:host::string(device.path("/B.bundle"))]; }

    std::string localized(NSString *key, NSString *value = nil, NSString *table = nil) {
        return host::utf8([bundle() localizedStringForKey:key value:value table:table]);
    }
};

TEST_F(Bundle, UTF8WithoutAMarkIsRead) {
    writeTable("/* c */\n\"Save\" = \"\u5b58\u50a8 \U0001F600\";\n");
    EXPECT_EQ(localized(@"Save"), "\u5b58\u50a8 \U0001F600");
}

TEST_F(Bundle, UTF8WithAMarkAndUTF16AreRead) {
    writeTable("\xEF\xBB\xBF\"a\" = \"\u4e2d\";", "zh-Hans.lproj/Marked.strings");
    NSString *table = @"\"a\" = \"\u4e2d\";";
    NSMutableData *data = [NSMutableData dataWithBytes:"\xFF\xFE" length:2];
    [data appendData:[table dataUsingEncoding:NSUTF16LittleEndianStringEncoding]];
    writeTable({static_cast<const char *>([data bytes]), [data length]}, "zh-Hans.lproj/Wide.strings");
    EXPECT_EQ(localized(@"a", nil, @"Marked"), "\u4e2d");
    EXPECT_EQ(localized(@"a", nil, @"Wide"), "\u4e2d");
}

TEST_F(Bundle, XMLTablesAreRead) {
    writeTable("<plist><dict><key>a</key><string>b</string></dict></plist>");
    EXPECT_EQ(localized(@"a"), "b");
}

TEST_F(Bundle, TheTablesStringIsTakenEvenWhenEmpty) {
    writeTable("\"a\" = \"\"; \"\" = \"nothing\";");
    EXPECT_EQ(localized(@"a", @"value"), "");
    EXPECT_EQ(localized(@"", @""), "nothing");
}

TEST_F(Bundle, AMissingKeyGivesTheValueOrItself) {
    writeTable("\"a\" = \"b\";");
    EXPECT_EQ(localized(@"x", @"value"), "value");
    EXPECT_EQ(localized(@"x", @""), "x");
    EXPECT_EQ(localized(@"x", nil), "x");
    EXPECT_EQ(localized(@"", @""), "");
}

TEST_F(Bundle, NoKeyGivesTheValueOrNothing) {
    EXPECT_EQ(localized(nil, @"value"), "value");
    EXPECT_NE([bundle() localizedStringForKey:nil value:nil table:nil], nil);
    EXPECT_EQ(localized(nil, nil), "");
}

TEST_F(Bundle, WhatIsNoTextComesBackAsItIs) {
    writeTable("\"a\" = \"b\";");
    id number = @7;
    EXPECT_EQ([bundle() localizedStringForKey:number value:number table:nil], number);
}

TEST_F(Bundle, NoTableNameMeansLocalizable) {
    writeTable("\"a\" = \"b\";");
    writeTable("\"a\" = \"other\";", "zh-Hans.lproj/Page.strings");
    EXPECT_EQ(localized(@"a", nil, @""), "b");
    EXPECT_EQ(localized(@"a", nil, @"Page"), "other");
    EXPECT_EQ(localized(@"a", nil, @"Missing"), "a");
}

TEST_F(Bundle, ADamagedTableIsNoTableAndQuiet) {
    writeTable("\"a\" = \"b\"; \"c\" = ");
    testing::internal::CaptureStderr();
    EXPECT_EQ(localized(@"a"), "a");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(Bundle, ATableThatIsNoDictionaryOrHoldsNoStringIsIgnored) {
    writeTable("(a, b)");
    EXPECT_EQ(localized(@"a"), "a");
    writeTable("{ a = (b); }", "zh-Hans.lproj/Array.strings");
    EXPECT_EQ(localized(@"a", nil, @"Array"), "a");
}

TEST_F(Bundle, OlderAndEnglishFoldersAreFallenBackTo) {
    writeTable("a = older;", "zh_CN.lproj/Older.strings");
    writeTable("a = english;", "en.lproj/Older.strings");
    writeTable("a = english;", "en.lproj/English.strings");
    EXPECT_EQ(localized(@"a", nil, @"Older"), "older");
    EXPECT_EQ(localized(@"a", nil, @"English"), "english");
}

TEST_F(Bundle, NoBundleHasNoText) {
    NSBundle *none = nil;
    EXPECT_EQ([none localizedStringForKey:@"a" value:@"b" table:nil], nil);
}

TEST_F(Bundle, ClassesOfTheProgramBelongToTheBundleThatIsSet) {
    EXPECT_EQ([NSBundle bundleForClass:[ClassOfTheProgram class]], [NSBundle mainBundle]);
    host::setProgramBundle(bundle());
    EXPECT_EQ([NSBundle bundleForClass:[ClassOfTheProgram class]], bundle());
    EXPECT_NE([NSBundle bundleForClass:[NSString class]], bundle());
    host::setProgramBundle(nil);
    EXPECT_EQ([NSBundle bundleForClass:[ClassOfTheProgram class]], [NSBundle mainBundle]);
}

} // namespace
