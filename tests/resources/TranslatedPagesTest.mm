// Every page in every language: what the tables translate is never seen in English. Each test needs a process
// of its own, since a phone keeps its language.
#include "Resources.h"

#include "host/SystemText.h"
#include "host/Text.h"
#include "support/BundleTest.h"
#include "support/CallHistoryBuilder.h"
#include "UIKit/TextMeasure.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <set>

namespace {

using namespace resources;

host::DeviceOptions phoneSpeaking(const std::string &language) {
    auto phone = support::tallPhone();
    phone.language = language;
    return phone;
}

std::string lowerCase(std::string text) {
    for (char &c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

/// Expects the text to fit the element, on as many lines as the element is high.
void expectNotCut(const host::Element &element) {
    const host::Face face{element.amount("size"),
                          element.text("weight") == "bold" ? host::Weight::bold : host::Weight::regular};
    const auto room = std::max(1.0, std::round(element.rect.height / host::lineHeight(face)));
    const auto text = host::utf16(host::string(element.label));
    const auto lines = room == 1 && host::textWidth(text, face) > element.rect.width
                           ? 2
                           : host::lineCount(text, face, element.rect.width);
    EXPECT_LE(lines, room) << '"' << element.label << "\" is cut";
}

class TranslatedPages : public support::BundleTest, public testing::WithParamInterface<std::string> {
protected:
    TranslatedPages() : BundleTest(phoneSpeaking(GetParam())) {
        support::CallHistoryBuilder(device.path("/var/mobile/Library/CallHistoryDB/CallHistory.storedata"),
                                    zv::CallHistorySchema::coreData)
            .call("555-0101", 1425600000);
        for (const auto &name : tableNames(GetParam()))
            for (const auto &[english, translation] : table(GetParam(), name))
                if (english != translation)
                    _english.insert(lowerCase(english));
        for (const auto &name : tableNames(GetParam()))
            for (const auto &[english, translation] : table(GetParam(), name))
                _english.erase(lowerCase(translation));
        // Some languages say OK where English says Done.
        for (const char *word : {"Done", "Cancel", "Save", "Edit", "Delete", "Back"})
            _english.erase(lowerCase(system(word)));
    }

    /// The text of a page in the phone's language.
    [[nodiscard]] static std::string shown(const std::string &table, const std::string &english) {
        return resources::table(GetParam(), table)[english];
    }
    [[nodiscard]] static std::string system(const std::string &english) {
        return std::string(host::systemText(english, GetParam()));
    }

    void expectWellSaid(const host::Element &element) const {
        for (const auto &text : {element.label, element.value, element.text("placeholder")})
            EXPECT_FALSE(_english.contains(lowerCase(text))) << '"' << text << "\" is English";
        if (element.type == "StaticText")
            expectNotCut(element);
        for (const auto &child : element.children)
            expectWellSaid(child);
    }
    /// What is on the screen is in the phone's language and has room.
    void expectWellSaid() const { expectWellSaid(host::screen()); }

    /// Opens the row with this English label of the root page and looks at what it shows.
    void visit(const std::string &label) const {
        SCOPED_TRACE(label);
        person.tap(shown("Zelvora", label));
        EXPECT_EQ(person.title(), shown("Zelvora", label));
        expectWellSaid();
    }

private:
    std::set<std::string> _english;
};

TEST_P(TranslatedPages, TheRootPageIsTranslated) {
    open();
    EXPECT_TRUE(person.sees(shown("Zelvora", "Enable Zelvora")));
    expectWellSaid();
}

TEST_P(TranslatedPages, EveryPageBehindTheRootPageIsTranslated) {
    open();
    for (const auto &item : itemsOf("Zelvora")) {
        if (!item.contains("detail"))
            continue;
        visit(text(item, "label"));
        person.back();
    }
}

TEST_P(TranslatedPages, EveryChoiceOfAChildPageIsTranslated) {
    open();
    for (const auto &name : pageNames()) {
        if (name == "Zelvora")
            continue;
        visit(name);
        for (const auto &item : itemsOf(name))
            if (text(item, "cell") == "PSLinkListCell") {
                person.tap(shown(name, text(item, "label")));
                expectWellSaid();
                person.back();
            }
        person.back();
    }
}

TEST_P(TranslatedPages, EveryEntryEditorIsTranslated) {
    open();
    for (const auto &item : itemsOf("Zelvora")) {
        if (!item.contains("_custom"))
            continue;
        visit(text(item, "label"));
        tapRow(0, 0);
        expectWellSaid();
        person.tapButton(system("Cancel"));
        person.back();
    }
}

TEST_P(TranslatedPages, ThePickersAreTranslated) {
    open();
    visit("Blacklist");
    for (const char *picker : {"Select Contacts", "Select Call History"}) {
        person.tap(shown("Localizable", picker));
        EXPECT_EQ(person.title(), shown("Localizable", picker));
        expectWellSaid();
        person.tapButton(system("Done"));
    }
}

TEST_P(TranslatedPages, TheEditButtonIsTranslated) {
    open();
    visit("Blacklist");
    person.tapButton(shown("Localizable", "Edit"));
    EXPECT_THAT(person.buttons(), testing::Contains(shown("Localizable", "Done")));
    person.tapButton(shown("Localizable", "Done"));
    EXPECT_THAT(person.buttons(), testing::Contains(shown("Localizable", "Edit")));
}

TEST_P(TranslatedPages, TheCallTimeIsTranslated) {
    open();
    visit("Keep Calls");
    const auto row = rows(0).at(0).text;
    EXPECT_THAT(row, testing::HasSubstr(" " + shown("Localizable", "hours") + " "));
    EXPECT_THAT(row, testing::EndsWith(" " + shown("Localizable", "minutes")));
}

TEST_P(TranslatedPages, TheToolsSheetIsTranslated) {
    open();
    tapRightButton();
    EXPECT_THAT(person.buttons(),
                testing::ElementsAre(shown("Localizable", "Respring"), shown("Localizable", "Cancel")));
}

TEST_P(TranslatedPages, TheQuestionBeforeARaiseAndItsAnswerAreTranslated) {
    open();
    visit("History Limit");
    person.tap(shown("Zelvora", "200 Calls"));
    EXPECT_TRUE(person.sees(shown("Localizable", "Are you sure you want to continue?")));
    expectWellSaid();
    person.answer(shown("Localizable", "OK"));
    EXPECT_TRUE(person.sees(shown("Localizable", "Succeed!")));
    expectWellSaid();
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedPages, testing::ValuesIn(languages()), [](const auto &info) {
    std::string name = info.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
});

} // namespace
