#include "host/Text.h"

#import <Foundation/Foundation.h>

#include <climits>
#include <gtest/gtest.h>

namespace {

// The same text in every class that GNUstep may use for it.
std::vector<NSString *> forms(NSString *text) {
    NSMutableString *changeable = [NSMutableString stringWithString:text];
    return {text, [NSString stringWithFormat:@"%@", text], changeable, [[changeable copy] autorelease],
            [[@"x" stringByAppendingString:text] substringFromIndex:1]};
}

TEST(StringNumbers, OverflowGivesTheEndOfTheRange) {
    for (NSString *text : forms(@"9999999999")) {
        EXPECT_EQ([text intValue], INT_MAX);
        EXPECT_EQ([text integerValue], 9999999999);
        EXPECT_EQ([text longLongValue], 9999999999);
    }
    EXPECT_EQ([@"2147483648" intValue], INT_MAX);
    EXPECT_EQ([@"-2147483648" intValue], INT_MIN);
    EXPECT_EQ([@"-2147483649" intValue], INT_MIN);
    EXPECT_EQ([@"9223372036854775807" integerValue], NSIntegerMax);
    EXPECT_EQ([@"9223372036854775808" integerValue], NSIntegerMax);
    EXPECT_EQ([@"-99999999999999999999999" longLongValue], LLONG_MIN);
}

TEST(StringNumbers, DigitsCountUpToTheFirstOtherCharacter) {
    EXPECT_EQ([@" \t\n+12ab3" intValue], 12);
    EXPECT_EQ([@"-7" intValue], -7);
    EXPECT_EQ([@"0042" intValue], 42);
    EXPECT_EQ([@"- 7" intValue], 0);
    EXPECT_EQ([@"0x10" intValue], 0);
    EXPECT_EQ([@"" intValue], 0);
    EXPECT_EQ([@"abc" integerValue], 0);
    for (NSString *text : forms(@"12\u4e2d"))
        EXPECT_EQ([text intValue], 12);
}

TEST(StringEquality, IsLiteral) {
    for (NSString *composed : forms(@"\u00e9")) {
        for (NSString *decomposed : forms(@"e\u0301")) {
            EXPECT_FALSE([composed isEqualToString:decomposed]);
            EXPECT_FALSE([composed isEqual:decomposed]);
            EXPECT_EQ([composed compare:decomposed], NSOrderedSame);
        }
    }
    EXPECT_FALSE([@"\u212B" isEqualToString:@"\u00C5"]);
}

TEST(StringEquality, HoldsBetweenAllClasses) {
    for (NSString *text : {@"", @"ascii", @"\u4e2d\U0001F600"}) {
        for (NSString *one : forms(text)) {
            for (NSString *other : forms(text)) {
                EXPECT_TRUE([one isEqualToString:other]);
                EXPECT_TRUE([one isEqual:other]);
                EXPECT_EQ([one hash], [other hash]);
            }
            EXPECT_FALSE([one isEqualToString:@"x"]);
            EXPECT_FALSE([one isEqualToString:nil]);
            EXPECT_FALSE([one isEqual:@1]);
        }
    }
}

TEST(StringOrder, IsByCharacterBeyondTheFirstPlaneToo) {
    for (NSString *emoji : forms(@"x\U0001F600")) {
        for (NSString *wide : forms(@"x\uFF21")) {
            EXPECT_EQ([wide compare:emoji], NSOrderedAscending);
            EXPECT_EQ([emoji compare:wide], NSOrderedDescending);
        }
    }
    EXPECT_EQ([@"\U0001F600" compare:@"\U0001F601"], NSOrderedAscending);
    EXPECT_EQ([@"\u4e2d" compare:@"\U0001F600"], NSOrderedAscending);
}

TEST(StringOrder, IsByCharacterAndShorterFirst) {
    NSArray *sorted =
        @[ @"", @"#", @"*", @"+", @",", @"0", @"1", @"10", @"2", @";", @"A", @"a", @"ab", @"\u4e2d" ];
    for (NSUInteger i = 1; i < [sorted count]; ++i)
        EXPECT_EQ([[sorted objectAtIndex:i - 1] compare:[sorted objectAtIndex:i]], NSOrderedAscending) << i;
}

class LoneSurrogate : public testing::Test {
protected:
    NSString *whole = @"a\U0001F600b";
};

TEST_F(LoneSurrogate, ACutPairIsAStringOfThatLength) {
    for (NSString *text : forms(whole)) {
        NSString *cut = [text substringToIndex:2];
        ASSERT_EQ([cut length], 2u);
        EXPECT_EQ([cut characterAtIndex:1], 0xD83D);
        NSString *rest = [text substringFromIndex:2];
        ASSERT_EQ([rest length], 2u);
        EXPECT_EQ([rest characterAtIndex:0], 0xDE00);
    }
}

TEST_F(LoneSurrogate, CutStringsAreWorkedWithLikeOthers) {
    for (NSString *text : forms(whole)) {
        NSString *cut = [text substringToIndex:2];
        EXPECT_EQ([[cut stringByAppendingString:@"x"] length], 3u);
        EXPECT_EQ([[@"x" stringByAppendingString:cut] length], 3u);
        EXPECT_EQ(([[NSString stringWithFormat:@"%@-%@", cut, cut] length]), 5u);
        EXPECT_EQ([[NSMutableString stringWithString:cut] length], 2u);
        EXPECT_EQ([[[cut mutableCopy] autorelease] length], 2u);
        EXPECT_TRUE([[[cut copy] autorelease] isEqualToString:cut]);
        EXPECT_TRUE([[cut stringByAppendingString:[text substringFromIndex:2]] isEqualToString:text]);
        EXPECT_EQ([[cut stringByReplacingOccurrencesOfString:@"a" withString:@"bc"] length], 3u);
    }
}

TEST_F(LoneSurrogate, UTF8OfItIsNullAndNothingIsRaised) {
    for (NSString *text : forms(whole)) {
        NSString *cut = [text substringToIndex:2];
        EXPECT_EQ([cut UTF8String], nullptr);
        EXPECT_EQ([[NSMutableString stringWithString:cut] UTF8String], nullptr);
        EXPECT_EQ([cut cStringUsingEncoding:NSUTF8StringEncoding], nullptr);
        EXPECT_EQ([cut dataUsingEncoding:NSUTF8StringEncoding], nil);
        EXPECT_STREQ([text UTF8String], "a\xF0\x9F\x98\x80"
                                        "b");
    }
}

TEST_F(LoneSurrogate, UnitsOfAnyKindMakeAString) {
    const std::u16string units = u"\xDE00\xDE00x\xD83D\xDE00\xD83D\xD83D";
    NSString *text = host::string(units);
    EXPECT_EQ(host::utf16(text), units);
    NSMutableString *changeable =
        [NSMutableString stringWithCharacters:reinterpret_cast<const unichar *>(units.data())
                                       length:units.size()];
    EXPECT_EQ(host::utf16(changeable), units);
    [changeable appendString:@"y"];
    EXPECT_EQ(host::utf16(changeable), units + u"y");
}

TEST_F(LoneSurrogate, AByteOrderMarkAtTheStartIsACharacter) {
    for (const std::u16string &units : {std::u16string(u"\uFEFFa\xD83D"), std::u16string(u"\xFFFE\xDE00")})
        EXPECT_EQ(host::utf16(host::string(units)), units);
}

TEST_F(LoneSurrogate, ItCanBeAKey) {
    NSString *cut = [whole substringToIndex:2];
    NSDictionary *dictionary = [NSDictionary dictionaryWithObject:@"v" forKey:cut];
    for (NSString *text : forms(whole))
        EXPECT_TRUE([[dictionary objectForKey:[text substringToIndex:2]] isEqual:@"v"]);
}

TEST(StringPaths, AnExtensionFollowsTheLastDotOfTheLastName) {
    const std::pair<NSString *, NSString *> examples[] = {
        {@"a.txt", @"a"},     {@"a.b.txt", @"a.b"}, {@"x/y.txt", @"x/y"}, {@"x.d/y", @"x.d/y"},
        {@"a.", @"a"},        {@"a", @"a"},         {@"", @""},           {@"a.txt/", @"a"},
        {@"/tmp/", @"/tmp"},  {@"/", @"/"},         {@"/a.txt", @"/a"},   {@"归属地.txt", @"归属地"},
        {@"x/a.txt/", @"x/a"}};
    for (const auto &[path, expected] : examples)
        for (NSString *text : forms(path))
            EXPECT_EQ(host::utf8([text stringByDeletingPathExtension]), host::utf8(expected));
}

TEST(StringPaths, AHiddenFileHasNoExtensionWhereverItLies) {
    for (NSString *path : {@".txt", @"x/.txt", @"/.txt", @"x/y.d/.txt"})
        for (NSString *text : forms(path))
            EXPECT_EQ(host::utf8([text stringByDeletingPathExtension]), host::utf8(path));
}

} // namespace
