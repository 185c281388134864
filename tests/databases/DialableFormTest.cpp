#include "databases/DialableForm.h"

#include <gtest/gtest.h>
#include <string>

namespace {

std::string dialable(const std::string &text) {
    return zv::DialableForm(text.c_str()).bytes();
}

TEST(DialableForm, KeepsDigitsAndTheFiveSigns) {
    EXPECT_EQ(dialable("+1 555-010-7777"), "+15550107777");
    EXPECT_EQ(dialable("*#06#"), "*#06#");
    EXPECT_EQ(dialable("1,2;3"), "1,2;3");
    EXPECT_EQ(dialable("+1 (555) 010-9999"), "+15550109999");
    EXPECT_EQ(dialable("(0) 123,45;6#"), "0123,45;6#");
}

TEST(DialableForm, OfATextWithoutDialableCharactersIsEmpty) {
    EXPECT_EQ(dialable(""), "");
    EXPECT_EQ(dialable("ABC"), "");
    EXPECT_EQ(dialable("ext."), "");
    EXPECT_TRUE(zv::DialableForm(nullptr).isEmpty());
}

TEST(DialableForm, OfALongTextIsItsFirst255Bytes) {
    EXPECT_EQ(dialable(std::string(300, '7')), std::string(255, '7'));
    EXPECT_EQ(dialable(std::string(254, ' ') + "12"), "1");
}

TEST(DialableForm, DropsEveryByteOfACharacterThatTheLimitCuts) {
    EXPECT_EQ(dialable(std::string(254, '1') + "\xE7\x94\xB5"
                                               "2"),
              std::string(254, '1'));
    EXPECT_EQ(dialable("\xF0\x9F\x93\x9E"
                       "5"),
              "5");
}

} // namespace
