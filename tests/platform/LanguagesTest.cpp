#include "host/Languages.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

TEST(Languages, ChineseIsFoundUnderItsOlderNameToo) {
    EXPECT_THAT(host::languageFolders("zh-Hans"), ElementsAre("zh-Hans", "zh_CN", "zh", "en", "English"));
}

TEST(Languages, EnglishIsTheLastResort) {
    EXPECT_THAT(host::languageFolders("de"), ElementsAre("de", "German", "en", "English"));
    EXPECT_THAT(host::languageFolders("en"), ElementsAre("en", "English"));
}

TEST(Languages, LanguageAndRegionMakeTheLocale) {
    EXPECT_EQ(host::localeFor("en", "GB"), "en_GB");
    EXPECT_EQ(host::localeFor("zh-Hans", "CN"), "zh_Hans_CN");
    EXPECT_EQ(host::localeFor("pt-BR", "PT"), "pt_PT");
    EXPECT_EQ(host::localeFor("ja", ""), "ja");
}

} // namespace
