// How a page's property list becomes rows: titles, groups, translations, capabilities, the order of loading.
#include "preferences/PreferencesTest.h"

using preferences::German;
using preferences::texts;
using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

using Loading = preferences::Test;

TEST_F(Loading, TheRootTitleNamesAPageThatIsOpenedAsRoot) {
    preferences::open("Jukebox");
    EXPECT_EQ(person.title(), "Jukebox");
}

TEST_F(Loading, APageKnowsTheIdOfItsPropertyList) {
    EXPECT_TRUE([[preferences::open("Jukebox") specifierID] isEqual:@"jukebox-root"]);
}

TEST_F(Loading, ALoadedArrayIsNewEachTimeAndNotKept) {
    PSListController *page = preferences::open("Jukebox");
    NSArray *first = [page loadSpecifiersFromPlistName:@"Root" target:page];
    NSArray *second = [page loadSpecifiersFromPlistName:@"Root" target:page];
    EXPECT_NE(first, second);
    EXPECT_NE([first objectAtIndex:0], [second objectAtIndex:0]);
    EXPECT_EQ([page specifiers], [page specifiers]);
}

TEST_F(Loading, AMissingPageGivesAnEmptyArray) {
    PSListController *page = preferences::open("Jukebox");
    EXPECT_EQ([[page loadSpecifiersFromPlistName:@"Ghost" target:page] count], 0u);
    EXPECT_EQ([[page loadSpecifiersFromPlistName:nil target:page] count], 0u);
}

TEST_F(Loading, AChildPageIsTheIdOfItsRowElseItsUnlocalizedLabel) {
    preferences::open("Jukebox");
    person.tap("Konto");
    EXPECT_THAT(person.rows(), Contains("Nickname"));
    person.back();
    person.tap("Account");
    EXPECT_THAT(person.rows(), Contains("Nickname"));
}

TEST_F(Loading, APageWithoutTitleIsNamedLikeTheRowThatOpenedIt) {
    preferences::open("Jukebox");
    person.tap("Equalizer");
    EXPECT_EQ(person.title(), "Equalizer");
}

TEST_F(Loading, RowsInFrontOfTheFirstGroupFormAGroupWithoutHeader) {
    PSListController *page = preferences::open("Jukebox");
    int group = -1, row = -1;
    EXPECT_TRUE([page getGroup:&group row:&row ofSpecifierID:@"shuffle"]);
    EXPECT_EQ(group, 0);
    EXPECT_EQ(row, 0);
    EXPECT_TRUE([page getGroup:&group row:&row ofSpecifierID:@"playback"]);
    EXPECT_EQ(group, 1);
    EXPECT_EQ(row, -1);
}

TEST_F(Loading, AGroupHeaderIsNoRowAndAGroupMayHaveNoRows) {
    preferences::open("Jukebox");
    person.tap("Equalizer");
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "Flat", "Bass", "Low", "High"));
    EXPECT_THAT(texts("footer"), ElementsAre("A footer alone."));
}

TEST_F(Loading, SpecifiersOfAGroupBeginWithItsHeader) {
    PSListController *page = preferences::open("Jukebox");
    NSArray *members = [page specifiersInGroup:1];
    EXPECT_TRUE([[[members objectAtIndex:0] identifier] isEqual:@"playback"]);
    EXPECT_EQ([members count], static_cast<NSUInteger>([page rowsForGroup:1]) + 1);
    EXPECT_TRUE([[[[page specifiersInGroup:0] objectAtIndex:0] identifier] isEqual:@"shuffle"]);
    EXPECT_EQ([[page specifiersInGroup:99] count], 0u);
}

TEST_F(Loading, HeadersAndFootersStandAroundTheirGroups) {
    preferences::open("Jukebox");
    EXPECT_TRUE(person.sees("Playback") || person.sees("PLAYBACK"));
    EXPECT_THAT(texts("footer"), Contains("Takes effect with the next song."));
}

TEST_F(Loading, LookUpsOfWhatIsNotThereFindNothing) {
    PSListController *page = preferences::open("Jukebox");
    EXPECT_EQ([page specifierForID:@"ghost"], nil);
    EXPECT_EQ([page specifierForID:nil], nil);
    EXPECT_EQ([page specifierAtIndex:-1], nil);
    EXPECT_EQ([page specifierAtIndex:10000], nil);
    EXPECT_EQ([page indexOfSpecifierID:@"ghost"], NSNotFound);
    EXPECT_EQ([page indexForRow:99 inGroup:99], -1);
    EXPECT_FALSE([page getGroup:NULL row:NULL ofSpecifier:nil]);
}

TEST_F(Loading, IndexesCountRowsAndHeaders) {
    PSListController *page = preferences::open("Jukebox");
    EXPECT_EQ([page indexOfSpecifierID:@"playback"], 1);
    EXPECT_EQ([page indexForRow:0 inGroup:1], 2);
    EXPECT_TRUE([[[page specifierAtIndex:2] identifier] isEqual:@"hideExplicit"]);
}

TEST_F(Loading, RowsAskingForMissingCapabilitiesAreLeftOut) {
    PSListController *page = preferences::open("Jukebox");
    EXPECT_NE([page specifierForID:@"pauseCalls"], nil);
    EXPECT_NE([page specifierForID:@"wireless"], nil);
    EXPECT_EQ([page specifierForID:@"float"], nil);
    EXPECT_EQ([page specifierForID:@"noPhone"], nil);
}

TEST_F(Loading, AllKeysOfAnItemAreReadableAsProperties) {
    PSListController *page = preferences::open("Jukebox");
    PSSpecifier *sleep = [page specifierForID:@"sleep"];
    EXPECT_TRUE([[sleep propertyForKey:@"cell"] isEqual:@"PSLinkListCell"]);
    EXPECT_TRUE([[sleep propertyForKey:@"defaults"] isEqual:@"org.example.jukebox"]);
    EXPECT_EQ([[sleep values] count], 4u);
    EXPECT_EQ([sleep detailControllerClass], [PSListItemsController class]);
}

TEST_F(Loading, DataSourcesAreAskedWhenThePageIsBuilt) {
    PSSpecifier *output = [preferences::open("Jukebox") specifierForID:@"output"];
    EXPECT_TRUE([[output values] isEqual:(@[ @"phone", @"kitchen" ])]);
    EXPECT_TRUE([[[output titleDictionary] objectForKey:@"kitchen"] isEqual:@"Kitchen Radio"]);
    EXPECT_TRUE([[[output shortTitleDictionary] objectForKey:@"kitchen"] isEqual:@"Kitchen"]);
}

TEST_F(Loading, AGetterAndASetterThatAreNotNamedAreTheStorage) {
    PSSpecifier *shuffle = [preferences::open("Jukebox") specifierForID:@"shuffle"];
    EXPECT_TRUE(sel_isEqual([shuffle getter], @selector(readPreferenceValue:)));
    EXPECT_TRUE(sel_isEqual([shuffle setter], @selector(setPreferenceValue:specifier:)));
}

TEST_F(Loading, ReloadingSpecifiersLoadsThePageAnew) {
    PSListController *page = preferences::open("Jukebox");
    PSSpecifier *before = [[[page specifierForID:@"shuffle"] retain] autorelease];
    [before setName:@"Changed"];
    [page reloadSpecifiers];
    host::waitUntilIdle();
    EXPECT_NE([page specifierForID:@"shuffle"], before);
    EXPECT_TRUE(person.sees("Shuffle"));
}

TEST_F(Loading, ReloadingShowsAnArrayThatThePageChangedItself) {
    PSListController *page = preferences::open("Jukebox");
    [(NSMutableArray *)[page specifiers] removeObjectAtIndex:0];
    [page reload];
    host::waitUntilIdle();
    EXPECT_THAT(person.rows(), Not(Contains("Shuffle")));
}

TEST_F(Loading, ReloadingASpecifierShowsItsNewNameAndValue) {
    PSListController *page = preferences::open("Jukebox");
    PSSpecifier *plan = [page specifierForID:@"plan"];
    [plan setName:@"Tariff"];
    [page setPreferenceValue:@"paid" specifier:plan];
    [page reloadSpecifierID:@"plan"];
    EXPECT_EQ(person.valueOf("Tariff"), "Subscription");
}

TEST_F(German, TextsComeFromTheTableNamedLikeThePropertyList) {
    PSListController *page = preferences::open("Jukebox");
    EXPECT_EQ(person.title(), "Musikbox");
    EXPECT_THAT(person.rows(), Contains("Zufällige Folge"));
    EXPECT_THAT(texts("footer"), Contains("Gilt ab dem nächsten Lied."));
    EXPECT_TRUE([[[page specifierForID:@"shuffle"] propertyForKey:@"label"] isEqual:@"Shuffle"]);
}

TEST_F(German, ATranslatedLabelStillNamesTheChildPageByItsOwnText) {
    preferences::open("Jukebox");
    person.tap("Account");
    EXPECT_EQ(person.title(), "Dein Konto");
    EXPECT_EQ(person.field("Name").text("placeholder"), "Vor- und Nachname");
}

TEST_F(German, ChoicesAndTheirMessageAreTranslated) {
    preferences::open("Jukebox");
    EXPECT_EQ(person.valueOf("Einschlafen"), "Aus");
    person.tap("Einschlafen");
    EXPECT_THAT(person.rows(), ElementsAre("Nie", "15 Minuten", "30 Minutes", "One Hour"));
    EXPECT_THAT(texts("footer"), ElementsAre("In der letzten Minute wird es leiser."));
}

TEST_F(German, ConfirmationsAreTranslated) {
    preferences::open("Jukebox");
    person.tap("Abmelden");
    EXPECT_THAT(person.buttons(), testing::UnorderedElementsAre("Abmelden", "Bleiben"));
}

TEST_F(German, APlainBundleIsTranslatedToo) {
    preferences::open("Weathercock");
    EXPECT_EQ(person.title(), "Wetterhahn");
    EXPECT_EQ(person.valueOf("Messort"), "Dach");
    person.tap("Einheiten");
    EXPECT_EQ(person.title(), "Maßeinheiten");
}

} // namespace
