// Rows with text: keyboards, texts beside the field, and when a value is stored.
#include "preferences/PreferencesTest.h"

using preferences::account;
using preferences::stored;
using preferences::storedText;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TextRows : public preferences::Test {
protected:
    TextRows() {
        preferences::open("Jukebox");
        person.tap("Account");
    }

    double keyboard(const std::string &row) { return person.field(row).amount("keyboard"); }
    PSSpecifier *specifier(const std::string &identifier) {
        UINavigationController *stack = [preferences::open("Jukebox") navigationController];
        person.tap("Account");
        return [static_cast<PSListController *>([stack topViewController])
            specifierForID:preferences::text(identifier)];
    }
};

TEST_F(TextRows, EachKeyChoosesItsKeyboard) {
    EXPECT_EQ(keyboard("Name"), UIKeyboardTypeDefault);
    EXPECT_EQ(keyboard("Home Page"), UIKeyboardTypeURL);
    EXPECT_EQ(keyboard("E-Mail"), UIKeyboardTypeEmailAddress);
    EXPECT_EQ(keyboard("Copy To"), UIKeyboardTypeEmailAddress);
    EXPECT_EQ(keyboard("Age"), UIKeyboardTypeNumberPad);
    EXPECT_EQ(keyboard("Budget"), UIKeyboardTypeDecimalPad);
    EXPECT_EQ(keyboard("Server"), UIKeyboardTypeNumbersAndPunctuation);
    EXPECT_EQ(keyboard("PIN"), UIKeyboardTypeNumberPad);
    EXPECT_EQ(keyboard("Telephone"), UIKeyboardTypePhonePad);
}

TEST_F(TextRows, CapitalisationAndCorrectionAreTakenFromTheItem) {
    EXPECT_EQ([specifier("name") autoCapsType], UITextAutocapitalizationTypeWords);
    EXPECT_EQ([specifier("name") autoCorrectionType], UITextAutocorrectionTypeNo);
    EXPECT_EQ([specifier("slogan") autoCapsType], UITextAutocapitalizationTypeSentences);
    EXPECT_EQ([specifier("shout") autoCapsType], UITextAutocapitalizationTypeAllCharacters);
}

TEST_F(TextRows, AnEmptyFieldShowsItsPlaceholder) {
    EXPECT_EQ(person.field("Name").text("placeholder"), "First and last name");
    EXPECT_EQ(person.valueOf("Name"), "");
}

TEST_F(TextRows, TheDefaultStandsInTheField) {
    EXPECT_EQ(person.valueOf("Slogan"), "la la la");
}

TEST_F(TextRows, PromptAndSuffixStandBesideTheField) {
    const host::Element row = person.row("Home Page");
    std::vector<std::string> labels;
    for (const host::Element *text : row.all("StaticText"))
        labels.push_back(text->label);
    EXPECT_THAT(labels, testing::UnorderedElementsAre("Home Page", "https://", ".example"));
}

TEST_F(TextRows, ATapOnTheRowFocusesItsField) {
    person.tap("Name");
    EXPECT_EQ(person.focusedField().label, "Name");
}

TEST_F(TextRows, TheRoomForTheKeyboardGoesWithIt) {
    const auto offsetOfTheEnd = [&] {
        person.scrollTo(1e9);
        return host::screen().all("Table").at(0)->amount("offset");
    };
    const double before = offsetOfTheEnd();
    person.tap("Slogan");
    EXPECT_EQ(offsetOfTheEnd(), before + 216);
    person.pressReturn();
    EXPECT_EQ(offsetOfTheEnd(), before);
}

TEST_F(TextRows, NothingIsStoredWhileTyping) {
    person.type("Name", "Ada");
    EXPECT_EQ(stored(account, "name"), nil);
}

TEST_F(TextRows, ReturnStoresTheText) {
    person.type("Name", "Ada");
    person.pressReturn();
    EXPECT_EQ(storedText(account, "name"), "Ada");
    EXPECT_EQ(person.focusedField().type, "");
    EXPECT_THAT(preferences::notifications(), ElementsAre("org.example.jukebox/name"));
}

TEST_F(TextRows, GoingToAnotherFieldStoresTheText) {
    person.type("Name", "Ada");
    person.tap("Slogan");
    EXPECT_EQ(storedText(account, "name"), "Ada");
}

TEST_F(TextRows, LeavingThePageStoresTheText) {
    person.type("Name", "Ada");
    person.back();
    EXPECT_EQ(storedText(account, "name"), "Ada");
}

TEST_F(TextRows, AnUnchangedTextIsNotStored) {
    person.type("Slogan", "");
    person.pressReturn();
    EXPECT_EQ(stored(account, "slogan"), nil);
    person.retype("Name", "");
    person.pressReturn();
    EXPECT_THAT(preferences::notifications(), IsEmpty());
}

TEST_F(TextRows, ASecureRowHidesItsText) {
    EXPECT_EQ(person.field("Password").type, "SecureTextField");
    person.type("Password", "sesame");
    person.pressReturn();
    EXPECT_EQ(storedText(account, "password"), "sesame");
    EXPECT_FALSE(person.sees("sesame"));
}

TEST_F(TextRows, ARowWithoutValueBeginsWithTheBestGuess) {
    EXPECT_EQ(person.valueOf("Nickname"), "Hummingbird");
    EXPECT_EQ(stored(account, "nickname"), nil);
}

TEST_F(TextRows, ReturnMayLeaveThePage) {
    person.retype("Nickname", "Wren");
    person.pressReturn();
    EXPECT_EQ(storedText(account, "nickname"), "Wren");
    EXPECT_EQ(person.title(), "Jukebox");
}

TEST_F(TextRows, ADisabledFieldTakesNoText) {
    EXPECT_EQ(person.valueOf("Shout"), "LA");
    EXPECT_NE(person.tryTap("Shout"), host::Outcome::done);
    EXPECT_EQ(person.focusedField().type, "");
}

TEST_F(TextRows, TheRowThatIsTypedIntoStandsAboveTheKeyboard) {
    const auto lowest = [&] { return person.row("Notes").rect.y + person.row("Notes").rect.height; };
    const double keyboardTop = host::screen().rect.height - 216;
    ASSERT_GT(lowest(), keyboardTop);
    person.tap("Notes");
    EXPECT_LE(lowest(), keyboardTop);
    person.retype("Slogan", "la");
    person.pressReturn();
    EXPECT_GT(lowest(), keyboardTop) << "the room is taken back";
}

TEST_F(TextRows, ATextOfSeveralLinesIsStoredWhenEditingEnds) {
    EXPECT_EQ(person.valueOf("Notes"), "Two lines\nof notes");
    EXPECT_GT(person.row("Notes").rect.height, 44);
    person.retype("Notes", "One\nTwo\nThree");
    EXPECT_EQ(stored(account, "notes"), nil);
    person.tap("Slogan");
    EXPECT_EQ(storedText(account, "notes"), "One\nTwo\nThree");
}

TEST_F(TextRows, TextBeyondTheBasicPlaneIsKept) {
    person.type("Name", "Ada \xF0\x9F\x8E\xB5 \xE9\x9F\xB3");
    person.pressReturn();
    EXPECT_EQ(person.valueOf("Name"), "Ada \xF0\x9F\x8E\xB5 \xE9\x9F\xB3");
    EXPECT_TRUE([stored(account, "name") isEqual:preferences::text("Ada \xF0\x9F\x8E\xB5 \xE9\x9F\xB3")]);
}

} // namespace
