// The string tables: complete, alike in every language, and safe to look up twice.
#include "Resources.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <set>

namespace {

using namespace resources;

std::set<std::string> keysOf(const Table &table) {
    std::set<std::string> keys;
    for (const auto &[key, value] : table)
        keys.insert(key);
    return keys;
}

TEST(StringTables, NineLanguagesAreSpoken) {
    EXPECT_EQ(languages(),
              (std::vector<std::string>{"de", "en", "es", "fr", "ja", "ko", "ru", "zh-Hans", "zh-Hant"}));
}

TEST(StringTables, EveryPageHasATableInEveryLanguageAndSoHasTheCode) {
    auto expected = pageNames();
    expected.push_back("Localizable");
    std::sort(expected.begin(), expected.end());
    for (const auto &language : languages())
        EXPECT_EQ(tableNames(language), expected) << language;
}

TEST(StringTables, EveryTableParses) {
    for (const auto &language : languages())
        for (const auto &name : tableNames(language))
            EXPECT_FALSE(table(language, name).empty()) << where(language, name);
}

// Without the mark the reader on Linux takes the file for another encoding.
TEST(StringTables, EveryTableStartsWithAByteOrderMark) {
    for (const auto &language : languages())
        for (const auto &name : tableNames(language)) {
            std::ifstream file(std::string(ZV_BUNDLE_PATH) + "/" + where(language, name));
            char mark[3] = {};
            file.read(mark, sizeof mark);
            EXPECT_EQ(std::string(mark, sizeof mark), "\xEF\xBB\xBF") << where(language, name);
        }
}

TEST(StringTables, NoTableHoldsAKeyTwice) {
    static const std::regex entry("^\"((?:[^\"\\\\]|\\\\.)*)\" = ");
    for (const auto &language : languages())
        for (const auto &name : tableNames(language)) {
            std::ifstream file(std::string(ZV_BUNDLE_PATH) + "/" + where(language, name));
            std::set<std::string> keys;
            std::smatch match;
            for (std::string line; std::getline(file, line);)
                if (std::regex_search(line, match, entry))
                    EXPECT_TRUE(keys.insert(match[1]).second) << where(language, name) << ": " << line;
            EXPECT_EQ(keys.size(), table(language, name).size()) << where(language, name);
        }
}

TEST(StringTables, APageTableHoldsTheTextsOfItsPageAndNoOthers) {
    for (const auto &name : pageNames()) {
        const auto texts = textsOf(page(name));
        const std::set<std::string> expected(texts.begin(), texts.end());
        for (const auto &language : languages())
            EXPECT_EQ(keysOf(table(language, name)), expected) << where(language, name);
    }
}

TEST(StringTables, AllLanguagesHoldTheSameTextsOfTheCode) {
    for (const auto &language : languages())
        EXPECT_EQ(keysOf(table(language, "Localizable")), keysOf(table("en", "Localizable"))) << language;
}

TEST(StringTables, NoTranslationIsEmptyOrPadded) {
    for (const auto &language : languages())
        for (const auto &name : tableNames(language))
            for (const auto &[key, value] : table(language, name)) {
                EXPECT_FALSE(value.empty()) << where(language, name) << ": " << key;
                EXPECT_EQ(value.find_first_not_of(' '), 0u) << where(language, name) << ": " << key;
                EXPECT_NE(value.back(), ' ') << where(language, name) << ": " << key;
            }
}

TEST(StringTables, EnglishTextsAreTheirOwnKeys) {
    for (const auto &name : tableNames("en"))
        for (const auto &[key, value] : table("en", name))
            EXPECT_EQ(value, key) << name;
}

// Names and titles of a page go through the code's table once more, each time that the page is shown.
TEST(StringTables, ATranslationLookedUpAgainStaysAsItIs) {
    for (const auto &language : languages()) {
        const auto code = table(language, "Localizable");
        for (const auto &name : tableNames(language))
            for (const auto &[key, value] : table(language, name)) {
                const auto again = code.find(value);
                EXPECT_TRUE(again == code.end() || again->second == value)
                    << where(language, name) << ": \"" << value << "\" becomes \"" << again->second << '"';
            }
    }
}

// The values method of the areas sends its empty first value through the table.
TEST(StringTables, TheEmptyTextHasNoTranslation) {
    for (const auto &language : languages())
        EXPECT_FALSE(table(language, "Localizable").contains("")) << language;
}

std::vector<std::string> formatSpecifiers(const std::string &text) {
    static const std::regex specifier("%(\\d+\\$)?[-+ 0#]*\\d*(\\.\\d+)?(l|ll|q|h)?[@a-zA-Z%]");
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), specifier), end; match != end; ++match)
        found.push_back(match->str());
    return found;
}

TEST(StringTables, FormatSpecifiersAreTheSameInEveryLanguage) {
    for (const auto &language : languages())
        for (const auto &name : tableNames(language))
            for (const auto &[key, value] : table(language, name))
                EXPECT_EQ(formatSpecifiers(value), formatSpecifiers(key)) << where(language, name);
}

std::string digits(const std::string &text) {
    std::string found;
    for (const char c : text)
        if (c >= '0' && c <= '9')
            found += c;
    return found;
}

TEST(StringTables, ChoicesNameTheSameNumbersInEveryLanguage) {
    for (const auto &[name, item] : allItems())
        if (item.contains("validTitles"))
            for (const auto &language : languages())
                for (const std::string title : item["validTitles"])
                    EXPECT_EQ(digits(table(language, name)[title]), digits(title)) << where(language, name);
}

TEST(StringTables, NoTwoChoicesOfAControlReadAlike) {
    for (const auto &[name, item] : allItems()) {
        if (!item.contains("validTitles"))
            continue;
        for (const auto &language : languages()) {
            auto texts = table(language, name);
            std::set<std::string> titles;
            for (const std::string title : item["validTitles"])
                EXPECT_TRUE(titles.insert(texts[title]).second) << where(language, name) << ": " << title;
        }
    }
}

TEST(StringTables, TheTitleOfALimitIsItsNumber) {
    for (const auto &[name, item] : allItems())
        if (text(item, "key") == "CallHistoryLimit")
            for (std::size_t i = 0; i < item["validValues"].size(); i++)
                EXPECT_EQ(digits(item["validTitles"][i]), std::to_string(item["validValues"][i].get<int>()));
}

TEST(StringTables, TheTitleOfADurationIsItsSeconds) {
    for (const auto &[name, item] : allItems()) {
        const auto key = text(item, "key");
        if (!key.ends_with("Duration") || !key.starts_with("ConnectedVibrate"))
            continue;
        for (std::size_t i = 0; i < item["validValues"].size(); i++) {
            const double seconds = item["validValues"][i];
            if (seconds > 0)
                EXPECT_EQ(std::stod(item["validTitles"][i].get<std::string>()), seconds) << key;
        }
    }
}

} // namespace
