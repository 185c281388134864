#import "databases/ZVPickerRecord.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>

namespace {

class PickerRecord : public testing::Test {
protected:
    // Whether the record takes the object without an exception.
    bool takes(id object, NSString *key) {
        @try {
            [m_record setObject:object forKey:key];
            return true;
        } @catch (NSException *exception) {
            return false;
        }
    }

    ZVPickerRecord *m_record = [[[ZVPickerRecord alloc] initWithNumber:@"1" name:@"Ann"
                                                                  type:nil] autorelease];
    NSDictionary *m_like = [NSDictionary dictionaryWithObjectsAndKeys:@"1", @"number", @"Ann", @"name", nil];
};

TEST_F(PickerRecord, HoldsWhatItWasMadeOf) {
    EXPECT_EQ([m_record count], 2U);
    EXPECT_STREQ([[m_record objectForKey:@"number"] UTF8String], "1");
    EXPECT_STREQ([[m_record objectForKey:@"name"] UTF8String], "Ann");
    EXPECT_EQ([m_record objectForKey:@"type"], nil);
    EXPECT_EQ([m_record objectForKey:@"other"], nil);
}

TEST_F(PickerRecord, IsEqualToADictionaryOfTheSameMembers) {
    EXPECT_TRUE([m_record isEqual:m_like]);
    EXPECT_TRUE([m_like isEqual:m_record]);
    [m_record setObject:@"home" forKey:@"type"];
    EXPECT_FALSE([m_record isEqual:m_like]);
    EXPECT_FALSE([m_like isEqual:m_record]);
}

TEST_F(PickerRecord, IsFoundByAKeyThatIsAnotherString) {
    NSString *key = [NSMutableString stringWithString:@"number"];
    EXPECT_STREQ([[m_record objectForKey:key] UTF8String], "1");
    EXPECT_STREQ([[m_record valueForKey:@"name"] UTF8String], "Ann");
}

TEST_F(PickerRecord, CanBeChangedAndCleared) {
    [m_record setObject:@"home" forKey:@"type"];
    [m_record setObject:@"3/6/15" forKey:@"type"];
    EXPECT_STREQ([[m_record objectForKey:@"type"] UTF8String], "3/6/15");
    [m_record removeObjectForKey:@"name"];
    EXPECT_EQ([m_record objectForKey:@"name"], nil);
    [m_record removeAllObjects];
    EXPECT_EQ([m_record count], 0U);
}

TEST_F(PickerRecord, TakesOtherKeysToo) {
    [m_record setObject:@"x" forKey:@"other"];
    [m_record setObject:@"y" forKey:[NSNumber numberWithInt:7]];
    EXPECT_EQ([m_record count], 4U);
    EXPECT_STREQ([[m_record objectForKey:@"other"] UTF8String], "x");
    [m_record removeObjectForKey:@"other"];
    [m_record removeObjectForKey:@"missing"];
    EXPECT_EQ([m_record count], 3U);
}

TEST_F(PickerRecord, RefusesNilAsAnyDictionaryDoes) {
    EXPECT_FALSE(takes(nil, @"name"));
    EXPECT_FALSE(takes(@"x", nil));
    EXPECT_EQ([m_record objectForKey:nil], nil);
}

TEST_F(PickerRecord, HoldsEachMemberOnceUntilItIsReplacedOrGone) {
    NSObject *member = [[[NSObject alloc] init] autorelease];
    @autoreleasepool {
        ZVPickerRecord *record = [[[ZVPickerRecord alloc] init] autorelease];
        for (NSString *key in @[ @"number", @"name", @"type", @"other" ]) {
            [record setObject:member forKey:key];
            [record setObject:member forKey:key];
        }
        EXPECT_EQ([member retainCount], 5U);
        [record setObject:@"x" forKey:@"name"];
        [record removeObjectForKey:@"type"];
        EXPECT_EQ([member retainCount], 3U);
        [record setObject:member forKey:@"name"];
        [record setObject:member forKey:@"type"];
    }
    EXPECT_EQ([member retainCount], 1U);
}

TEST_F(PickerRecord, GivesEachKeyAndObjectOnce) {
    [m_record setObject:@"x" forKey:@"other"];
    std::vector<std::string> seen;
    for (NSString *key in m_record)
        seen.emplace_back([key UTF8String]);
    EXPECT_THAT(seen, testing::UnorderedElementsAre("number", "name", "other"));
    seen.clear();
    NSEnumerator *objects = [m_record objectEnumerator];
    while (NSString *object = [objects nextObject])
        seen.emplace_back([object UTF8String]);
    EXPECT_THAT(seen, testing::UnorderedElementsAre("1", "Ann", "x"));
    EXPECT_EQ([[m_record allValues] count], 3U);
}

TEST_F(PickerRecord, GivesManyKeysInSeveralBatches) {
    for (int number = 0; number < 100; ++number)
        [m_record setObject:@"x" forKey:[NSString stringWithFormat:@"key %d", number]];
    NSMutableSet *seen = [NSMutableSet set];
    int count = 0;
    for (NSString *key in m_record) {
        [seen addObject:key];
        ++count;
    }
    EXPECT_EQ(count, 102);
    EXPECT_EQ([seen count], 102U);
}

TEST_F(PickerRecord, CanBeCopied) {
    NSDictionary *copy = [[m_record copy] autorelease];
    NSMutableDictionary *mutableCopy = [[m_record mutableCopy] autorelease];
    [m_record setObject:@"Bob" forKey:@"name"];
    EXPECT_TRUE([copy isEqual:m_like]);
    [mutableCopy setObject:@"home" forKey:@"type"];
    EXPECT_EQ([mutableCopy count], 3U);
}

TEST_F(PickerRecord, CanBeMadeAsAnyDictionary) {
    EXPECT_EQ([[ZVPickerRecord dictionary] count], 0U);
    EXPECT_EQ([[ZVPickerRecord dictionaryWithCapacity:3] count], 0U);
    EXPECT_TRUE([[ZVPickerRecord dictionaryWithDictionary:m_like] isEqual:m_like]);
    EXPECT_EQ([[[[ZVPickerRecord alloc] init] autorelease] count], 0U);
}

} // namespace
