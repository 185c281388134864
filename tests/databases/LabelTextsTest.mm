#include "databases/LabelTexts.h"

#include <gtest/gtest.h>
#include <string>

namespace {

int copies = 0;

NSString *copyCounted(NSString *label) {
    ++copies;
    return [label isEqualToString:@"none"] ? nil : [[label stringByAppendingString:@"!"] retain];
}

class LabelTexts : public testing::Test {
protected:
    LabelTexts() { copies = 0; }
    std::string text(const char *label) {
        NSString *found = m_texts.text(label);
        return found ? [found UTF8String] : "(none)";
    }
    zv::LabelTexts m_texts{copyCounted};
};

TEST_F(LabelTexts, LocalizesALabelOnce) {
    for (int time = 0; time < 3; ++time) {
        EXPECT_EQ(text("home"), "home!");
        EXPECT_EQ(text("work"), "work!");
    }
    EXPECT_EQ(copies, 2);
    EXPECT_EQ(m_texts.text("home"), m_texts.text("home"));
}

TEST_F(LabelTexts, RemembersThatALabelHasNoText) {
    EXPECT_EQ(text("none"), "(none)");
    EXPECT_EQ(text("none"), "(none)");
    EXPECT_EQ(copies, 1);
}

TEST_F(LabelTexts, HasNoTextForALabelThatIsMissingOrNotUtf8) {
    EXPECT_EQ(text(nullptr), "(none)");
    EXPECT_EQ(text("\xFF"), "(none)");
    EXPECT_EQ(copies, 0);
}

TEST_F(LabelTexts, AnswersRightForMoreLabelsThanItHolds) {
    for (int round = 0; round < 2; ++round) {
        for (int number = 0; number < 1000; ++number) {
            std::string label = "label " + std::to_string(number);
            EXPECT_EQ(text(label.c_str()), label + "!");
        }
    }
}

TEST_F(LabelTexts, TakesAnEmptyLabelAsAnyOther) {
    EXPECT_EQ(text(""), "!");
}

} // namespace
