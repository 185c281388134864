#include "databases/KnownNumbers.h"

#import "databases/ZVPickerRecord.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using Answer = zv::KnownNumbers::Answer;

class KnownNumbers : public testing::Test {
protected:
    NSMutableDictionary *add(NSString *number) {
        auto *record = [[[ZVPickerRecord alloc] initWithNumber:number name:@"Ann" type:nil] autorelease];
        [m_contacts addObject:record];
        return record;
    }

    /// What a question gives; the record goes to `m_record`.
    Answer take(zv::KnownNumbers &numbers, const std::string &number) {
        m_record = nil;
        const Answer answer = numbers.take(number.data(), number.size(), &m_record);
        [m_record autorelease];
        return answer;
    }

    NSMutableArray *m_contacts = [NSMutableArray array];
    NSMutableDictionary *m_record = nil;
};

TEST_F(KnownNumbers, GiveTheRecordOfANumberOnce) {
    const id ann = add(@"5550101");
    zv::KnownNumbers numbers(m_contacts);
    EXPECT_EQ(take(numbers, "5550101"), Answer::known);
    EXPECT_EQ(m_record, ann);
    EXPECT_EQ(take(numbers, "5550101"), Answer::alreadyTaken);
    EXPECT_EQ(m_record, nil);
}

TEST_F(KnownNumbers, TellAStrangerOnce) {
    add(@"5550101");
    zv::KnownNumbers numbers(m_contacts);
    EXPECT_EQ(take(numbers, "555010"), Answer::stranger);
    EXPECT_EQ(take(numbers, "55501011"), Answer::stranger);
    EXPECT_EQ(take(numbers, "555010"), Answer::alreadyTaken);
}

TEST_F(KnownNumbers, TakeTheLastOfSeveralRecordsWithOneNumber) {
    add(@"5550101");
    const id last = add(@"5550101");
    zv::KnownNumbers numbers(m_contacts);
    EXPECT_EQ(take(numbers, "5550101"), Answer::known);
    EXPECT_EQ(m_record, last);
}

TEST_F(KnownNumbers, PassOverRecordsWithoutADialableNumber) {
    for (NSString *number in @[ @"", @"555 0101", @"５５５", @"ext." ])
        add(number);
    [m_contacts addObject:[NSMutableDictionary dictionaryWithObject:@"Nobody" forKey:@"name"]];
    zv::KnownNumbers numbers(m_contacts);
    EXPECT_EQ(take(numbers, "555"), Answer::stranger);
    EXPECT_EQ(take(numbers, "0101"), Answer::stranger);
    EXPECT_EQ(take(numbers, ""), Answer::alreadyTaken);
}

TEST_F(KnownNumbers, KeepRecordsThatNobodyElseKeepsAndLetThemGo) {
    NSMutableDictionary *record = add(@"5550101");
    const NSUInteger before = [record retainCount];
    {
        zv::KnownNumbers numbers(m_contacts);
        [m_contacts removeAllObjects];
        EXPECT_EQ([record retainCount], before);
    }
    EXPECT_EQ([record retainCount], before - 1);
}

TEST_F(KnownNumbers, FindEachOfThousandsWhateverTheirLength) {
    constexpr int count = 5000;
    const std::string tail(200, '7');
    const auto numberAt = [&](int i) { return std::to_string(i) + (i % 10 == 0 ? tail : ""); };
    for (int i = 0; i < count; ++i)
        add([NSString stringWithUTF8String:numberAt(i).c_str()]);
    zv::KnownNumbers numbers(m_contacts);
    for (int i = count; i < 2 * count; ++i)
        EXPECT_EQ(take(numbers, numberAt(i)), Answer::stranger);
    for (int i = 0; i < count; ++i) {
        EXPECT_EQ(take(numbers, numberAt(i)), Answer::known) << i;
        EXPECT_EQ(m_record, [m_contacts objectAtIndex:NSUInteger(i)]);
    }
    for (int i = 0; i < 2 * count; ++i)
        EXPECT_EQ(take(numbers, numberAt(i)), Answer::alreadyTaken) << i;
}

} // namespace
