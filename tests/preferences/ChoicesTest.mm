// Rows with a list of choices, their pages, and radio groups.
#include "preferences/PreferencesTest.h"

using preferences::checked;
using preferences::stored;
using preferences::storedText;
using preferences::texts;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Choices = preferences::Test;

TEST_F(Choices, ARowShowsTheShortTitleOfItsValueElseTheTitle) {
    preferences::open("Jukebox");
    EXPECT_EQ(person.valueOf("Sleep Timer"), "Off");
    EXPECT_EQ(person.valueOf("Start Page"), "Songs");
}

TEST_F(Choices, ARowShowsNothingForAValueWithoutTitle) {
    PSListController *page = preferences::open("Jukebox");
    [page setPreferenceValue:@17 specifier:[page specifierForID:@"sleep"]];
    [page reloadSpecifierID:@"sleep"];
    EXPECT_EQ(person.valueOf("Sleep Timer"), "");
}

TEST_F(Choices, ThePageListsTheTitlesInTheOrderOfTheValues) {
    preferences::open("Jukebox");
    person.tap("Sleep Timer");
    EXPECT_EQ(person.title(), "Sleep Timer");
    EXPECT_THAT(person.rows(), ElementsAre("Never", "15 Minutes", "30 Minutes", "One Hour"));
    EXPECT_THAT(texts("footer"), ElementsAre("The music fades out in the last minute."));
    EXPECT_THAT(checked(), ElementsAre("Never"));
}

TEST_F(Choices, AValueThatIsNoChoiceChecksNothing) {
    PSListController *page = preferences::open("Jukebox");
    [page setPreferenceValue:@17 specifier:[page specifierForID:@"sleep"]];
    person.tap("Sleep Timer");
    EXPECT_THAT(checked(), IsEmpty());
    person.tap("15 Minutes");
    EXPECT_THAT(checked(), ElementsAre("15 Minutes"));
}

TEST_F(Choices, ATapMovesTheCheckmarkStoresTheValueAndStaysOnThePage) {
    preferences::open("Jukebox");
    person.tap("Sleep Timer");
    person.tap("30 Minutes");
    EXPECT_THAT(checked(), ElementsAre("30 Minutes"));
    EXPECT_TRUE([stored(preferences::jukebox, "sleep") isEqual:@30]);
    EXPECT_EQ(person.title(), "Sleep Timer");
}

TEST_F(Choices, TheRowShowsTheNewChoiceAfterwards) {
    preferences::open("Jukebox");
    person.tap("Sleep Timer");
    person.tap("One Hour");
    person.back();
    EXPECT_EQ(person.valueOf("Sleep Timer"), "1 h");
}

TEST_F(Choices, TheSetterOfTheRowIsCalledOnTheRowsTarget) {
    preferences::open("Jukebox");
    person.tap("Output");
    EXPECT_THAT(person.rows(), ElementsAre("This Phone", "Kitchen Radio"));
    EXPECT_THAT(checked(), IsEmpty());
    person.tap("Kitchen Radio");
    EXPECT_EQ(preferences::trace(), "output kitchen");
    person.back();
    EXPECT_EQ(person.valueOf("Output"), "Kitchen");
}

TEST_F(Choices, ADeferredChoiceIsStoredWhenThePageLeaves) {
    preferences::open("Jukebox");
    person.tap("Start Page");
    person.tap("Albums");
    EXPECT_THAT(checked(), ElementsAre("Albums"));
    EXPECT_EQ(stored(preferences::jukebox, "start"), nil);
    person.back();
    EXPECT_EQ(storedText(preferences::jukebox, "start"), "albums");
    EXPECT_EQ(person.valueOf("Start Page"), "Albums");
}

TEST_F(Choices, TheListPageShowsTitlesThatThePageLocalizedItself) {
    PSListController *page = preferences::open("Jukebox");
    PSSpecifier *sleep = [page specifierForID:@"sleep"];
    NSMutableDictionary *titles = [NSMutableDictionary dictionaryWithDictionary:[sleep titleDictionary]];
    [titles setObject:@"Not at all" forKey:@0];
    [sleep setTitleDictionary:titles];
    person.tap("Sleep Timer");
    EXPECT_TRUE(person.sees("Not at all"));
}

TEST_F(Choices, AValueWithoutTitleIsListedAsItIs) {
    preferences::open("Weathercock");
    person.tap("Mixed");
    person.tap("Too Few Titles");
    EXPECT_THAT(person.rows(), ElementsAre("One", "2", "3"));
}

TEST_F(Choices, TenThousandChoicesMakeNoMoreCellsThanAreSeen) {
    PSListController *page = preferences::open("Jukebox");
    PSSpecifier *sleep = [page specifierForID:@"sleep"];
    NSMutableArray *values = [NSMutableArray array];
    for (int i = 0; i < 10000; i++)
        [values addObject:[NSNumber numberWithInt:i]];
    [sleep setValues:values titles:values];
    person.tap("Sleep Timer");
    EXPECT_LT(
        [[[(PSListController *)[[page navigationController] topViewController] table] visibleCells] count],
        30u);
}

TEST_F(Choices, ATitleValueRowTranslatesItsValueByItsTitles) {
    preferences::open("Jukebox");
    EXPECT_EQ(person.valueOf("Plan"), "Free of Charge");
    EXPECT_EQ(person.valueOf("Songs"), "1234");
}

TEST_F(Choices, ARadioGroupChecksTheRowOfItsValue) {
    preferences::open("Jukebox");
    EXPECT_EQ(preferences::accessory("All Songs"), "checkmark");
    EXPECT_EQ(preferences::accessory("Nothing"), "none");
}

TEST_F(Choices, ATapInARadioGroupMovesTheCheckmarkAndStoresTheGroupsValue) {
    PSListController *page = preferences::open("Jukebox");
    person.tap("The Song");
    EXPECT_EQ(preferences::accessory("The Song"), "checkmark");
    EXPECT_EQ(preferences::accessory("All Songs"), "none");
    EXPECT_EQ(storedText(preferences::jukebox, "repeat"), "one");
    PSSpecifier *group = [page specifierForID:@"repeat"];
    EXPECT_TRUE([[[group propertyForKey:@"radioGroupCheckedSpecifier"] name] isEqual:@"The Song"]);
}

TEST_F(Choices, AChoiceRowPerformsItsActionToo) {
    preferences::open("Jukebox");
    person.tap("All Songs");
    EXPECT_EQ(preferences::trace(), "repeat tapped");
    EXPECT_EQ(storedText(preferences::jukebox, "repeat"), "all");
}

TEST_F(Choices, ARadioGroupWithoutAKeyOnlyMovesTheCheckmark) {
    preferences::open("Jukebox");
    person.tap("Equalizer");
    EXPECT_THAT(checked(), IsEmpty());
    person.tap("Bass");
    EXPECT_THAT(checked(), ElementsAre("Bass"));
}

} // namespace
