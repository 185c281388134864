#include "listeditor/SortedKeys.h"

#include <gmock/gmock.h>
#include <random>
#include <string>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

NSDictionary *dictionaryOfKeys(NSArray *keys) {
    NSMutableDictionary *dictionary = [NSMutableDictionary dictionary];
    for (NSString *key in keys)
        [dictionary setObject:@"" forKey:key];
    return dictionary;
}

std::vector<std::string> sorted(NSArray *keys) {
    const zv::SortedKeys sortedKeys(dictionaryOfKeys(keys));
    std::vector<std::string> result;
    for (NSUInteger index = 0; index < sortedKeys.count(); ++index)
        result.emplace_back([sortedKeys[index] UTF8String]);
    return result;
}

std::vector<std::string> sortedByCompare(NSArray *keys) {
    NSArray *order = [[dictionaryOfKeys(keys) allKeys] sortedArrayUsingSelector:@selector(compare:)];
    std::vector<std::string> result;
    for (NSString *key in order)
        result.emplace_back([key UTF8String]);
    return result;
}

NSArray *randomKeys(const char *alphabet, unsigned seed) {
    NSString *letters = [NSString stringWithUTF8String:alphabet];
    std::mt19937 random(seed);
    NSMutableArray *keys = [NSMutableArray array];
    for (int index = 0; index < 400; ++index) {
        NSMutableString *key = [NSMutableString string];
        for (unsigned length = random() % 12; length > 0; --length)
            [key appendFormat:@"%C", [letters characterAtIndex:random() % [letters length]]];
        [keys addObject:key];
    }
    return keys;
}

TEST(SortedListKeys, NothingStaysNothing) {
    EXPECT_THAT(sorted(@[]), IsEmpty());
}

TEST(SortedListKeys, NumbersAreSortedAsTexts) {
    EXPECT_THAT(sorted(@[ @"9", @"120", @"10086" ]), ElementsAre("10086", "120", "9"));
}

TEST(SortedListKeys, TheShorterOfTwoWithTheSameBeginningComesFirst) {
    EXPECT_THAT(sorted(@[ @"123456789", @"12345678", @"1", @"" ]),
                ElementsAre("", "1", "12345678", "123456789"));
}

TEST(SortedListKeys, SignsKeepTheirPlaceAmongTheDigits) {
    EXPECT_THAT(sorted(@[ @"0", @";", @"+", @"*", @",", @"#", @"9" ]),
                ElementsAre("#", "*", "+", ",", "0", "9", ";"));
}

TEST(SortedListKeys, LettersAreSortedWithCase) {
    EXPECT_THAT(sorted(@[ @"a", @"B", @"A", @"b" ]), ElementsAre("A", "B", "a", "b"));
}

TEST(SortedListKeys, OtherLettersComeAfterAscii) {
    EXPECT_THAT(sorted(@[ @"中", @"z", @"文", @"1" ]), ElementsAre("1", "z", "中", "文"));
}

TEST(SortedListKeys, KeysLongerThanAnyBufferAreSorted) {
    NSString *longKey = [@"" stringByPaddingToLength:200 withString:@"7" startingAtIndex:0];
    NSString *longer = [longKey stringByAppendingString:@"1"];
    EXPECT_THAT(sorted(@[ longer, longKey, @"77777777" ]),
                ElementsAre("77777777", [longKey UTF8String], [longer UTF8String]));
}

TEST(SortedListKeys, AsciiKeysAreOrderedAsCompareOrdersThem) {
    for (unsigned seed = 0; seed < 8; ++seed) {
        NSArray *keys = randomKeys("0123456789+*#,;aB", seed);
        EXPECT_EQ(sorted(keys), sortedByCompare(keys)) << seed;
    }
}

TEST(SortedListKeys, MixedKeysAreOrderedAsCompareOrdersThem) {
    for (unsigned seed = 0; seed < 8; ++seed) {
        NSArray *keys = randomKeys("01a中文Äß", seed);
        EXPECT_EQ(sorted(keys), sortedByCompare(keys)) << seed;
    }
}

} // namespace
