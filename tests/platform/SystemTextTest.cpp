#include "host/SystemText.h"

#include <gtest/gtest.h>

namespace {

constexpr host::SystemWord kWords[] = {
    {"Delete", {"删除", "刪除", "削除", "삭제", "Löschen", "Supprimer", "Eliminar", "Удалить"}},
};

TEST(SystemText, AWordIsGivenInTheLanguageOfTheDevice) {
    EXPECT_EQ(host::wordIn(kWords, "Delete", "de"), "Löschen");
    EXPECT_EQ(host::wordIn(kWords, "Delete", "zh-Hans"), "删除");
    EXPECT_EQ(host::wordIn(kWords, "Delete", "zh-Hant"), "刪除");
    EXPECT_EQ(host::wordIn(kWords, "Delete", "ru"), "Удалить");
}

TEST(SystemText, ARegionDoesNotChangeTheLanguageButForChinese) {
    EXPECT_EQ(host::wordIn(kWords, "Delete", "fr-CA"), "Supprimer");
    EXPECT_EQ(host::wordIn(kWords, "Delete", "zh-Hans-CN"), "删除");
    EXPECT_EQ(host::wordIn(kWords, "Delete", "zh-TW"), "刪除");
    EXPECT_EQ(host::wordIn(kWords, "Delete", "zh-HK"), "刪除");
}

TEST(SystemText, OtherLanguagesGetEnglish) {
    EXPECT_EQ(host::wordIn(kWords, "Delete", "en-GB"), "Delete");
    EXPECT_EQ(host::wordIn(kWords, "Delete", "pl"), "Delete");
    EXPECT_EQ(host::wordIn(kWords, "Delete", ""), "Delete");
}

TEST(SystemText, TheWordsOfUIKitCanBeAskedForInAnyLanguage) {
    EXPECT_EQ(host::systemText("Save", "zh-Hans"), "存储");
    EXPECT_EQ(host::systemText("Cancel", "de"), "Abbrechen");
}

TEST(SystemText, AnUnknownWordStaysAsItIs) {
    EXPECT_EQ(host::wordIn(kWords, "Explode", "de"), "Explode");
}

} // namespace
