#include "Foundation/PropertyList.h"
#include "host/Text.h"

#include <gtest/gtest.h>

namespace {

// Inside of an XML document.
id readXML(const std::string &inside) {
    return host::propertyList(
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD "
        "PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
        "<plist version=\"1.0\">" +
        inside + "</plist>\n");
}

void expectEqual(id read, id expected) {
    EXPECT_TRUE([read isEqual:expected]) << host::utf8([read description]);
}

TEST(XMLPropertyList, EveryKindOfValueIsRead) {
    expectEqual(readXML("<string>text</string>"), @"text");
    expectEqual(readXML("<integer>-12</integer>"), @-12);
    expectEqual(readXML("<integer>0x1F</integer>"), @31);
    expectEqual(readXML("<integer> +7 </integer>"), @7);
    expectEqual(readXML("<integer>18446744073709551615</integer>"), @18446744073709551615ull);
    expectEqual(readXML("<integer>-9223372036854775808</integer>"), @(LLONG_MIN));
    expectEqual(readXML("<real>0.25</real>"), @0.25);
    expectEqual(readXML("<real>1e3</real>"), @1000.0);
    expectEqual(readXML("<date>2015-03-06T12:00:01Z</date>"),
                [NSDate dateWithTimeIntervalSince1970:1425643201]);
    expectEqual(readXML("<data>\n\tAAEC\n\t/w==\n</data>"), [NSData dataWithBytes:"\0\1\2\377" length:4]);
    expectEqual(readXML("<array><true/><false/></array>"),
                @[ [NSNumber numberWithBool:YES], [NSNumber numberWithBool:NO] ]);
    expectEqual(readXML("<dict><key>a</key><string>1</string></dict>"), @{@"a" : @"1"});
}

TEST(XMLPropertyList, NumbersKeepTheirKind) {
    EXPECT_EQ(*[readXML("<real>1</real>") objCType], *@encode(double));
    EXPECT_NE(*[readXML("<integer>1</integer>") objCType], *@encode(double));
    EXPECT_EQ([readXML("<true/>") class], [[NSNumber numberWithBool:YES] class]);
    EXPECT_TRUE(std::isnan([readXML("<real>nan</real>") doubleValue]));
    EXPECT_EQ([readXML("<real>-infinity</real>") doubleValue], -HUGE_VAL);
}

TEST(XMLPropertyList, EmptyElementsAreEmptyValues) {
    expectEqual(readXML("<string/>"), @"");
    expectEqual(readXML("<string></string>"), @"");
    expectEqual(readXML("<dict/>"), @{});
    expectEqual(readXML("<array />"), @[]);
    expectEqual(readXML("<data></data>"), [NSData data]);
    expectEqual(readXML("<dict><key/><string/></dict>"), @{@"" : @""});
}

TEST(XMLPropertyList, ReferencesAndCharacterDataAreResolved) {
    expectEqual(readXML("<string>&lt;&amp;&gt;&quot;&apos;</string>"), @"<&>\"'");
    expectEqual(readXML("<string>&#x4e2d;&#20013;&#128512;</string>"), @"\u4e2d\u4e2d\U0001F600");
    expectEqual(readXML("<string>a<![CDATA[<&>]]>b</string>"), @"a<&>b");
}

TEST(XMLPropertyList, ALiteralBackslashUStaysAsItIs) {
    expectEqual(readXML("<string>\\U4e2d \\n</string>"), @"\\U4e2d \\n");
}

TEST(XMLPropertyList, CommentsAndInternalSubsetsAreSkipped) {
    expectEqual(host::propertyList("<!-- <dict> --><!DOCTYPE plist [<!ELEMENT x (y)>]>\n<plist><!--x-->"
                                   "<array><!--y--><string>a</string></array></plist>"),
                @[ @"a" ]);
}

TEST(XMLPropertyList, OfEqualKeysTheLastCounts) {
    expectEqual(readXML("<dict><key>a</key><string>1</string><key>a</key><string>2</string></dict>"),
                @{@"a" : @"2"});
}

TEST(XMLPropertyList, TheRootMayStandWithoutItsPlistElementAndWhatFollowsIsIgnored) {
    expectEqual(host::propertyList("<dict><key>a</key><string>b</string></dict>\n&garbage"), @{@"a" : @"b"});
}

TEST(XMLPropertyList, EncodingsWithAMarkAreRead) {
    NSString *document = @"<plist version=\"1.0\"><string>\u4e2d\U0001F600</string></plist>";
    for (const NSStringEncoding encoding :
         {NSUTF16BigEndianStringEncoding, NSUTF16LittleEndianStringEncoding}) {
        NSMutableData *data = [NSMutableData data];
        [data appendBytes:encoding == NSUTF16BigEndianStringEncoding ? "\xFE\xFF" : "\xFF\xFE" length:2];
        [data appendData:[document dataUsingEncoding:encoding]];
        expectEqual(host::propertyList({static_cast<const char *>([data bytes]), [data length]}),
                    @"\u4e2d\U0001F600");
    }
    expectEqual(host::propertyList("\xEF\xBB\xBF" + host::utf8(document)), @"\u4e2d\U0001F600");
}

TEST(XMLPropertyList, ControlCharactersAreKept) {
    expectEqual(readXML(std::string("<string>a\x01\r\n\t\0b</string>", 24)),
                [NSString stringWithCharacters:reinterpret_cast<const unichar *>(u"a\x01\r\n\t\0b")
                                        length:7]);
}

class DamagedPropertyList : public testing::TestWithParam<const char *> {};

TEST_P(DamagedPropertyList, ReadsAsNil) {
    EXPECT_EQ(readXML(GetParam()), nil) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedPropertyList,
    testing::Values("", "text", "<string>a", "<string>a</key>", "<foo/>", "<dict><string/></dict>",
                    "<dict><key>a</key></dict>", "<dict><key>a</key><string>b</string>", "<dict><key>a",
                    "<array><string/>", "<string/><string/>", "<string>&foo;</string>",
                    "<string>&#xD800;</string>", "<string>& </string>", "<string>\xff\xfe</string>",
                    "<integer>abc</integer>", "<integer/>", "<integer>1 2</integer>",
                    "<integer>18446744073709551616</integer>", "<integer>-9223372036854775809</integer>",
                    "<real/>", "<real>1,5</real>", "<real>x</real>", "<date>yesterday</date>",
                    "<date>2015-02-30T00:00:00Z</date>", "<data>A!A=</data>", "<true>x</true>",
                    "<!-- <string/>", "<string>a<![CDATA[b</string>", "</dict>"));

TEST(XMLPropertyListDamage, ATruncatedDocumentReadsAsNilWhereverItIsCut) {
    const std::string document = *host::propertyListDocument(
        @{@"a" : @[ @"b", @1, @2.5 ],
          @"c" : @"\u4e2d&"});
    const std::size_t end = document.rfind("</plist>") + 8;
    for (std::size_t length = 1; length < end; ++length) {
        const id read = host::propertyList(document.substr(0, length));
        EXPECT_EQ(read, nil) << length;
    }
}

TEST(XMLPropertyListDamage, NestingBeyondTheLimitReadsAsNilWithoutExhaustingTheStack) {
    std::string deep;
    for (int i = 0; i < 2'000'000; ++i)
        deep += "<array>";
    EXPECT_EQ(readXML(deep), nil);
    EXPECT_EQ(host::propertyList(std::string(5'000'000, '(')), nil);
}

TEST(PropertyList, EmptyInputIsAnEmptyDictionary) {
    expectEqual(host::propertyList(""), @{});
    expectEqual(host::propertyList(" \n\t"), @{});
}

TEST(TextPropertyList, TheOldStyleIsRead) {
    expectEqual(
        host::propertyList("// first\n{ a = b; \"c d\" = (1, '2', /* c */ {}); data = <00 fF>; }"),
        (@{@"a" : @"b",
           @"c d" : @[ @"1", @"2", @{} ],
           @"data" : [NSData dataWithBytes:"\0\377" length:2]}));
}

TEST(TextPropertyList, EscapesAreResolved) {
    expectEqual(host::propertyList("{ a = \"\\\"\\n\\U4e2d\\ud83d\\ude00\\101\\\\\"; }"),
                @{@"a" : @"\"\n\u4e2d\U0001F600A\\"});
}

TEST(TextPropertyList, AStringTableIsADictionaryWithoutBraces) {
    expectEqual(host::propertyList("/* title */\n\"Save\" = \"\xE5\xAD\x98\xE5\x82\xA8\";\nkey;\n"),
                (@{@"Save" : @"\u5b58\u50a8", @"key" : @"key"}));
}

class DamagedTextPropertyList : public testing::TestWithParam<const char *> {};

TEST_P(DamagedTextPropertyList, ReadsAsNil) {
    EXPECT_EQ(host::propertyList(GetParam()), nil) << GetParam();
}

INSTANTIATE_TEST_SUITE_P(All, DamagedTextPropertyList,
                         testing::Values("{ a = b }", "{ a = ; }", "{ = b; }", "{ a b; }", "{ a = b; } c",
                                         "(a, b", "(a b)", "\"a", "\"a\" = \"b", "\"a\" = \"b\"; /*", "<0>",
                                         "(<0>)", "(<xy>)", "\"a\\", "a = \"\xff\";", "a = \"\xff\\n\";",
                                         "\x01\x02", "{", "a = b"));

TEST(PropertyListOfFile, NoFileIsNil) {
    EXPECT_EQ(host::propertyListOfFile(nil), nil);
    EXPECT_EQ(host::propertyListOfFile(@""), nil);
    EXPECT_EQ(host::propertyListOfFile(@"/"), nil);
    EXPECT_EQ(host::propertyListOfFile(@"/no/such/file"), nil);
}

} // namespace
