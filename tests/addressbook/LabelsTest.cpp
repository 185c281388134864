#include "AddressBook/Labels.h"

#include <gtest/gtest.h>
#include <string>

namespace {

using host::localizedLabel;

struct Row {
    const char *stored, *english, *chinese;
};

constexpr Row kPhoneLabels[] = {
    {"_$!<Mobile>!$_", "mobile", "手机"},
    {"iPhone", "iPhone", "iPhone"},
    {"_$!<Home>!$_", "home", "住宅"},
    {"_$!<Work>!$_", "work", "工作"},
    {"_$!<Main>!$_", "main", "主要"},
    {"_$!<HomeFAX>!$_", "home fax", "住宅传真"},
    {"_$!<WorkFAX>!$_", "work fax", "工作传真"},
    {"_$!<OtherFAX>!$_", "other fax", "其他传真"},
    {"_$!<Pager>!$_", "pager", "传呼"},
    {"_$!<Other>!$_", "other", "其他"},
};

TEST(Labels, PhoneLabelsAreShownInEnglishAndChinese) {
    for (const Row &row : kPhoneLabels) {
        EXPECT_EQ(localizedLabel(row.stored, "en"), row.english);
        EXPECT_EQ(localizedLabel(row.stored, "zh-Hans"), row.chinese);
    }
}

TEST(Labels, EveryLanguageOfTheSystemHasWordsOfItsOwn) {
    for (const char *language : {"zh-Hans", "zh-Hant", "ja", "ko", "de", "fr", "es", "ru"}) {
        for (const Row &row : kPhoneLabels) {
            const std::string shown = localizedLabel(row.stored, language);
            EXPECT_FALSE(shown.empty()) << row.stored << ' ' << language;
            EXPECT_EQ(shown.find("_$!<"), std::string::npos) << row.stored << ' ' << language;
        }
        EXPECT_NE(localizedLabel("_$!<Home>!$_", language), "home") << language;
    }
}

TEST(Labels, ALabelThatSomebodyTypedStaysAsItIs) {
    EXPECT_EQ(localizedLabel("boat", "de"), "boat");
    EXPECT_EQ(localizedLabel("Mobile", "de"), "Mobile");
    EXPECT_EQ(localizedLabel("", "de"), "");
}

TEST(Labels, AMarkedLabelThatIsNotKnownLosesItsMarks) {
    EXPECT_EQ(localizedLabel("_$!<Satellite>!$_", "de"), "Satellite");
    EXPECT_EQ(localizedLabel("_$!<>!$_", "de"), "");
}

TEST(Labels, HalfMarksAreNoMarks) {
    for (const char *label : {"_$!<Home", "Home>!$_", "_$!<", ">!$_", "_$!<!$_", "x_$!<Home>!$_"})
        EXPECT_EQ(localizedLabel(label, "en"), label);
}

} // namespace
