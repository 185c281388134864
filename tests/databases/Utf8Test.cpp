#include "databases/Utf8.h"

#include <gtest/gtest.h>
#include <string>

namespace {

// Bytes and UTF-16 units as "3/1", "bad" where the text is not valid.
std::string measure(const char *text) {
    zv::Utf8Measure measured = zv::measureUtf8(text);
    return measured.isValid ? std::to_string(measured.bytes) + "/" + std::to_string(measured.utf16Units)
                            : "bad";
}

TEST(Utf8, MeasuresBytesAndUtf16Units) {
    EXPECT_EQ(measure(""), "0/0");
    EXPECT_EQ(measure("Li"), "2/2");
    EXPECT_EQ(measure("é"), "2/1");
    EXPECT_EQ(measure("王芳"), "6/2");
    EXPECT_EQ(measure("😀"), "4/2");
    EXPECT_EQ(measure("a\xC2\x80\xE0\xA0\x80\xEE\x80\x80\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"), "17/8");
}

TEST(Utf8, IsNotValidWhereNothingIsGiven) {
    EXPECT_EQ(measure(nullptr), "bad");
}

TEST(Utf8, IsNotValidWithABrokenCharacter) {
    for (const char *text : {"\x80", "\xBF", "a\xFF", "\xFE", "\xC3", "\xC3(", "\xE7\x94", "\xE7\x94(",
                             "\xF0\x9F\x98", "\xF0\x9F\x98(", "\xE7", "\xF0"})
        EXPECT_EQ(measure(text), "bad") << text;
}

TEST(Utf8, IsNotValidWithOverlongFormsSurrogatesOrNumbersThatAreTooHigh) {
    for (const char *text : {"\xC0\xAF", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80",
                             "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80"})
        EXPECT_EQ(measure(text), "bad") << text;
}

} // namespace
