// The translations as a reader of each language meets them: nothing left in English, and the language's own
// punctuation.
#include "Resources.h"

#include "host/SystemText.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <initializer_list>
#include <map>
#include <regex>
#include <set>
#include <utility>

namespace {

using namespace resources;

using Words = std::set<std::string>;

/// Names are the same everywhere; the rest are words that the language has in common with English.
const std::map<std::string, Words> sameAsInEnglish{
    {"de",
     {"Zelvora", "Alipay", "PayPal", "OK", "Respring", "Blacklist", "Whitelist", "Layout", "Name", "Optional",
      "Pause", "Region", "Standard", "Support", "Vibration"}},
    {"es", {"Zelvora", "Alipay", "PayPal", "OK", "Respring", "Piano"}},
    {"fr",
     {"Zelvora", "Alipay", "PayPal", "OK", "Respring", "Action", "Messages", "Pause", "Piano", "Silence",
      "Standard", "Vibration"}},
    {"ja", {"Zelvora", "Alipay", "PayPal", "OK"}},
    {"ko", {"Zelvora", "PayPal"}},
    {"ru", {"Zelvora", "Alipay", "PayPal"}},
    {"zh-Hans", {"Zelvora", "PayPal"}},
    {"zh-Hant", {"Zelvora", "PayPal"}}};

/// Calls `check(language, name, key, value)` for each text of each language but English.
template<typename Check>
void forEachTranslation(Check check) {
    for (const auto &language : languages())
        if (language != "en")
            for (const auto &name : tableNames(language))
                for (const auto &[key, value] : table(language, name))
                    check(language, name, key, value);
}

TEST(Wording, OnlyWordsThatTheLanguagesShareAreLeftInEnglish) {
    std::map<std::string, Words> found;
    forEachTranslation([&](const auto &language, const auto &, const auto &key, const auto &value) {
        if (value == key)
            found[language].insert(value);
    });
    EXPECT_EQ(found, sameAsInEnglish);
}

TEST(Wording, NoEnglishWordIsLeftInASentence) {
    static const std::regex english(
        "\\b(the|and|of|with|your|you|are|is|not|this|that|for|from|by|when|after|call|calls|number|list)\\b",
        std::regex::icase);
    forEachTranslation([](const auto &language, const auto &name, const auto &, const auto &value) {
        EXPECT_FALSE(std::regex_search(value, english)) << where(language, name) << ": " << value;
    });
}

TEST(Wording, NoTextIsLeftInLatinLettersWhereOthersAreUsed) {
    forEachTranslation([](const auto &language, const auto &name, const auto &, const auto &value) {
        const auto isOther = [](unsigned char c) { return c >= 0x80; };
        if (language != "de" && language != "es" && language != "fr")
            EXPECT_TRUE(std::any_of(value.begin(), value.end(), isOther) ||
                        sameAsInEnglish.at(language).contains(value))
                << where(language, name) << ": " << value;
    });
}

bool endsWithOneOf(const std::string &text, std::initializer_list<const char *> ends) {
    return std::any_of(ends.begin(), ends.end(), [&](const char *end) { return text.ends_with(end); });
}

bool isSentence(const std::string &english) {
    return endsWithOneOf(english, {".", "?", "!"});
}

TEST(Wording, NoTwoTextsOfAPageReadAlike) {
    for (const auto &language : languages())
        for (const auto &name : pageNames()) {
            std::set<std::string> texts;
            for (const auto &[key, value] : table(language, name))
                EXPECT_TRUE(texts.insert(value).second) << where(language, name) << ": " << value;
        }
}

// Russian alone declines what a list is sorted by.
TEST(Wording, OneTextReadsTheSameOnEveryPage) {
    std::map<std::pair<std::string, std::string>, std::string> said;
    forEachTranslation([&](const auto &language, const auto &name, const auto &key, const auto &value) {
        if (language == "ru" && name == "Keypad" && key == "Name")
            return;
        const auto &first = said.try_emplace({language, key}, value).first->second;
        EXPECT_EQ(value, first) << where(language, name) << ": " << key;
    });
}

TEST(Wording, SentencesStaySentences) {
    forEachTranslation([](const auto &language, const auto &name, const auto &key, const auto &value) {
        if (isSentence(key))
            EXPECT_TRUE(endsWithOneOf(value, {".", "?", "!", "。", "？", "！"}))
                << where(language, name) << ": " << value;
        EXPECT_EQ(key.ends_with('?'), endsWithOneOf(value, {"?", "？"})) << where(language, name) << value;
    });
}

// Full-width marks, and no space beside them; a dot between digits is not one.
TEST(Wording, ChineseAndJapaneseHaveTheirOwnPunctuation) {
    static const std::regex narrow("[\\x80-\\xFF][.,:;!?()\"']|[.,:;!?()\"'][\\x80-\\xFF]");
    static const std::regex spaced("(。|，|、|：|；|？|！) | (。|，|、|：|；|？|！)");
    forEachTranslation([](const auto &language, const auto &name, const auto &, const auto &value) {
        if (!language.starts_with("zh") && language != "ja")
            return;
        EXPECT_FALSE(std::regex_search(value, narrow)) << where(language, name) << ": " << value;
        EXPECT_FALSE(std::regex_search(value, spaced)) << where(language, name) << ": " << value;
    });
}

/// Whether each of the marks follows a space at which no line is broken.
bool followUnbrokenSpaces(const std::string &text, const std::set<std::string> &marks) {
    for (const auto &mark : marks)
        for (auto at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
            const auto before = text.substr(0, at);
            if (!endsWithOneOf(before, {"\u00A0", "\u202F"}))
                return false;
        }
    return true;
}

TEST(Wording, FrenchMarksStandApartFromTheirWord) {
    forEachTranslation([](const auto &language, const auto &name, const auto &, const auto &value) {
        if (language == "fr")
            EXPECT_TRUE(followUnbrokenSpaces(value, {"!", "?", ":", ";", "»"}))
                << where(language, name) << ": " << value;
    });
}

TEST(Wording, SpanishQuestionsAndExclamationsAreOpened) {
    forEachTranslation([](const auto &language, const auto &name, const auto &, const auto &value) {
        if (language != "es")
            return;
        EXPECT_EQ(value.ends_with("?"), value.find("¿") != std::string::npos) << where(language, name);
        EXPECT_EQ(value.ends_with("!"), value.find("¡") != std::string::npos) << where(language, name);
    });
}

TEST(Wording, QuotesAndApostrophesAreThoseOfPrint) {
    forEachTranslation([](const auto &language, const auto &name, const auto &, const auto &value) {
        EXPECT_EQ(value.find_first_of("'\""), std::string::npos) << where(language, name) << ": " << value;
    });
}

// Edit and Done take turns on a button beside others that the system labels itself. Russian has a shorter
// word for Edit, because the system's leaves the title of a list no room.
TEST(Wording, WordsOfTheSystemAreTheSystems) {
    for (const auto &language : languages())
        for (const char *word : {"Cancel", "Edit", "Done"})
            if (language != "ru" || word != std::string("Edit"))
                EXPECT_EQ(table(language, "Localizable")[word], host::systemText(word, language)) << language;
}

} // namespace
