// Hand-made binary documents; those of other writers are in PropertyListExchangeTest.
#include "Foundation/PropertyList.h"
#include "host/Text.h"

#include <gtest/gtest.h>

namespace {

// A document of objects given as their bytes, the first the root; offsets and references of two bytes.
std::string binary(const std::vector<std::string> &objects) {
    const auto number = [](std::size_t value, int size) {
        std::string bytes;
        for (int i = size - 1; i >= 0; --i)
            bytes += static_cast<char>(value >> (8 * i) & 0xFF);
        return bytes;
    };
    std::string document = "bplist00";
    std::string offsets;
    for (const std::string &object : objects) {
        offsets += number(document.size(), 2);
        document += object;
    }
    const std::size_t table = document.size();
    return document + offsets + std::string(6, '\0') + "\2\2" + number(objects.size(), 8) + number(0, 8) +
           number(table, 8);
}

std::string bytes(const char *literal, std::size_t size) {
    return {literal, size};
}

template<std::size_t size>
std::string bytes(const char (&literal)[size]) {
    return bytes(literal, size - 1);
}

void expectEqual(id read, id expected) {
    EXPECT_TRUE([read isEqual:expected]) << host::utf8([read description]);
}

TEST(BinaryPropertyList, EveryKindOfValueIsRead) {
    expectEqual(host::propertyList(binary({"\x53"
                                           "abc"})),
                @"abc");
    expectEqual(host::propertyList(binary({bytes("\x62\x4e\x2d\xd8\x3d")})),
                [NSString stringWithCharacters:reinterpret_cast<const unichar *>(u"\x4e2d\xd83d") length:2]);
    expectEqual(host::propertyList(binary({"\x08"})), [NSNumber numberWithBool:NO]);
    expectEqual(host::propertyList(binary({"\x09"})), [NSNumber numberWithBool:YES]);
    expectEqual(host::propertyList(binary({"\x10\xff"})), @255);
    expectEqual(host::propertyList(binary({bytes("\x13\xff\xff\xff\xff\xff\xff\xff\xff")})), @-1);
    expectEqual(host::propertyList(binary({bytes("\x14\0\0\0\0\0\0\0\0\xff\xff\xff\xff\xff\xff\xff\xff")})),
                @18446744073709551615ull);
    expectEqual(host::propertyList(binary({bytes("\x22\x3f\x80\0\0")})), @1.0f);
    expectEqual(host::propertyList(binary({bytes("\x23\x3f\xd0\0\0\0\0\0\0")})), @0.25);
    expectEqual(host::propertyList(binary({bytes("\x33\0\0\0\0\0\0\0\0")})),
                [NSDate dateWithTimeIntervalSinceReferenceDate:0]);
    expectEqual(host::propertyList(binary({bytes("\x42\0\xff")})), [NSData dataWithBytes:"\0\377" length:2]);
    expectEqual(host::propertyList(binary({bytes("\xa2\0\1\0\1"), "\x51x"})), (@[ @"x", @"x" ]));
    expectEqual(host::propertyList(binary({bytes("\xd1\0\1\0\2"), "\x51k", "\x51v"})), @{@"k" : @"v"});
}

TEST(BinaryPropertyList, ALongStringHasItsLengthBehindTheMarker) {
    expectEqual(host::propertyList(binary({"\x5f\x10\x14" + std::string(20, 'x')})), @"xxxxxxxxxxxxxxxxxxxx");
}

TEST(BinaryPropertyList, AListThatContainsItselfReadsAsNil) {
    EXPECT_EQ(host::propertyList(binary({bytes("\xa1\0\0")})), nil);
    EXPECT_EQ(host::propertyList(binary({bytes("\xa1\0\1"), bytes("\xa1\0\0")})), nil);
}

TEST(BinaryPropertyList, SharedObjectsAreMadeOnce) {
    std::vector<std::string> objects;
    for (char i = 1; i <= 60; ++i)
        objects.push_back(bytes("\xa2\0") + i + bytes("\0") + i);
    objects.push_back("\x51x");
    const id read = host::propertyList(binary(objects));
    ASSERT_EQ([read count], 2u);
    EXPECT_EQ([read objectAtIndex:0], [read objectAtIndex:1]);
}

TEST(BinaryPropertyList, NestingBeyondTheLimitReadsAsNil) {
    std::vector<std::string> objects;
    for (int i = 1; i < 5000; ++i)
        objects.push_back(bytes("\xa1") + static_cast<char>(i >> 8) + static_cast<char>(i & 0xFF));
    objects.push_back("\x51x");
    EXPECT_EQ(host::propertyList(binary(objects)), nil);
}

class DamagedBinaryPropertyList : public testing::TestWithParam<std::string> {};

TEST_P(DamagedBinaryPropertyList, ReadsAsNil) {
    EXPECT_EQ(host::propertyList(GetParam()), nil);
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedBinaryPropertyList,
    testing::Values("bplist00", std::string("bplist00") + std::string(32, '\0'),
                    std::string("bplist00") + std::string(32, '\xff'), binary({bytes("\0")}),
                    binary({bytes("\xa1\0\7")}), binary({bytes("\xa1")}),
                    binary({bytes("\x5f\x13\xff\xff\xff\xff\xff\xff\xff\xff")}), binary({bytes("\x5f\x50")}),
                    binary({bytes("\x15")}), binary({bytes("\x14\1\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0")}),
                    binary({bytes("\x33\x7f\xf8\0\0\0\0\0\0")}), binary({bytes("\xd1\0\1\0\1"), "\x09"}),
                    binary({bytes("\x51\xff")}), binary({bytes("\x80\1")}), binary({"\x51x"}).substr(0, 30)));

} // namespace
