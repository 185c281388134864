#include "Foundation/PropertyList.h"
#include "host/Text.h"

#include <gtest/gtest.h>

namespace {

std::string document(id root) {
    return host::propertyListDocument(root).value_or("refused");
}

// The document without its first and last lines.
std::string inside(id root) {
    const std::string text = document(root);
    const std::size_t start = text.find("<plist version=\"1.0\">\n") + 22;
    return text.substr(start, text.rfind("</plist>") - start);
}

NSString *units(std::u16string_view text) {
    return host::string(std::u16string(text));
}

TEST(PropertyListDocument, HasApplesForm) {
    EXPECT_EQ(document(
                  @{@"b" : @"2",
                    @"a" : @[ @"x", @1 ],
                    @"c" : @{}}),
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
              "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
              "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
              "<plist version=\"1.0\">\n"
              "<dict>\n"
              "\t<key>a</key>\n"
              "\t<array>\n"
              "\t\t<string>x</string>\n"
              "\t\t<integer>1</integer>\n"
              "\t</array>\n"
              "\t<key>b</key>\n"
              "\t<string>2</string>\n"
              "\t<key>c</key>\n"
              "\t<dict/>\n"
              "</dict>\n"
              "</plist>\n");
}

TEST(PropertyListDocument, KeysAreSortedByUTF16Unit) {
    NSDictionary *keys =
        [NSDictionary dictionaryWithObjectsAndKeys:@"", @"b", @"", @"B", @"", @"", @"", @"bb", @"", @"\uFF21",
                                                   @"", @"\U0001F600", @"", @"+1", @"", @"\u4e2d", nil];
    const std::string text = inside(keys);
    std::size_t last = 0;
    for (NSString *key in @[ @"", @"+1", @"B", @"b", @"bb", @"\u4e2d", @"\U0001F600", @"\uFF21" ]) {
        const std::size_t at = text.find("<key>" + host::utf8(key) + "</key>");
        ASSERT_NE(at, std::string::npos);
        EXPECT_GE(at, last) << host::utf8(key);
        last = at;
    }
}

TEST(PropertyListDocument, OnlyAmpersandAndAngleBracketsAreEscaped) {
    EXPECT_EQ(inside(@"<a & \"b\"> 'c'"), "<string>&lt;a &amp; \"b\"&gt; 'c'</string>\n");
}

TEST(PropertyListDocument, TextsKeepEveryCharacter) {
    EXPECT_EQ(inside(@"\u4e2d\u00e9\U0001F600\t\n\\U4e2d"),
              "<string>\xE4\xB8\xAD\xC3\xA9\xF0\x9F\x98\x80\t\n\\U4e2d</string>\n");
}

TEST(PropertyListDocument, ALoneSurrogateBecomesTheReplacementCharacter) {
    EXPECT_EQ(inside(units(u"a\xD83D")), "<string>a\xEF\xBF\xBD</string>\n");
    EXPECT_EQ(inside(units(u"\xDE00\xD83D\xDE00")), "<string>\xEF\xBF\xBD\xF0\x9F\x98\x80</string>\n");
    EXPECT_EQ(inside([NSDictionary dictionaryWithObject:@"v" forKey:units(u"\xD83Dk")]),
              "<dict>\n\t<key>\xEF\xBF\xBDk</key>\n\t<string>v</string>\n</dict>\n");
}

TEST(PropertyListDocument, NumbersKeepTheirKind) {
    EXPECT_EQ(inside([NSNumber numberWithBool:YES]), "<true/>\n");
    EXPECT_EQ(inside([NSNumber numberWithBool:NO]), "<false/>\n");
    EXPECT_EQ(inside(@1), "<integer>1</integer>\n");
    EXPECT_EQ(inside(@(LLONG_MIN)), "<integer>-9223372036854775808</integer>\n");
    EXPECT_EQ(inside(@18446744073709551615ull), "<integer>18446744073709551615</integer>\n");
    EXPECT_EQ(inside(@1.0), "<real>1</real>\n");
    EXPECT_EQ(inside([NSNumber numberWithFloat:0.3f]), "<real>0.30000001192092896</real>\n");
    EXPECT_EQ(inside([NSNumber numberWithDouble:-HUGE_VAL]), "<real>-infinity</real>\n");
}

TEST(PropertyListDocument, DatesAndDataHaveTheirForms) {
    EXPECT_EQ(inside([NSDate dateWithTimeIntervalSince1970:1425643201.9]),
              "<date>2015-03-06T12:00:01Z</date>\n");
    EXPECT_EQ(inside([NSData dataWithBytes:"\0\1\2\377" length:4]), "<data>\nAAEC/w==\n</data>\n");
    EXPECT_EQ(inside([NSData data]), "<data>\n</data>\n");
    EXPECT_EQ(inside(@[ [NSMutableData dataWithLength:52] ]),
              "<array>\n\t<data>\n\t" + std::string(68, 'A') + "\n\tAA==\n\t</data>\n</array>\n");
}

TEST(PropertyListDocument, WhatIsNoPropertyListIsRefused) {
    EXPECT_FALSE(host::propertyListDocument(nil));
    EXPECT_FALSE(host::propertyListDocument([NSNull null]));
    EXPECT_FALSE(host::propertyListDocument(@{@"a" : @[ [NSNull null] ]}));
    EXPECT_FALSE(host::propertyListDocument(@{@1 : @"a"}));
    EXPECT_FALSE(host::propertyListDocument(@[ [NSDate distantFuture], [NSObject class] ]));
    EXPECT_FALSE(host::propertyListDocument([NSDate dateWithTimeIntervalSince1970:1e300]));
}

TEST(PropertyListDocument, AnEndlessListIsRefused) {
    NSMutableArray *array = [NSMutableArray array];
    [array addObject:@[ array ]];
    EXPECT_FALSE(host::propertyListDocument(array));
    [array removeAllObjects];
}

TEST(PropertyListDocument, WhatIsWrittenReadsBackTheSame) {
    id root = @{
        @"" : @"",
        @"text" : @"<\u4e2d\U0001F600>&\"'\\\r\n\t",
        @"control" : units(std::u16string_view(u"\x01\x08\x0B\x1F\x7F\0", 6)),
        @"numbers" : @[ @0, @-1, @0.1, @1e300, [NSNumber numberWithBool:YES], @(LLONG_MAX) ],
        @"date" : [NSDate dateWithTimeIntervalSince1970:0],
        @"data" : [NSMutableData dataWithLength:1000],
        @"nested" : @{@"a" : @{@"b" : @[ @[], @{} ]}},
    };
    id read = host::propertyList(*host::propertyListDocument(root));
    EXPECT_TRUE([read isEqual:root]) << document(root);
}

} // namespace
