// Rows that a page's own code adds and removes.
#include "preferences/PreferencesTest.h"

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

class Changes : public preferences::Test {
protected:
    Changes() {
        PSListController *root = preferences::open("Jukebox");
        person.tap("Equalizer");
        page = static_cast<PSListController *>([[root navigationController] topViewController]);
    }

    static PSSpecifier *row(NSString *name) {
        return [PSSpecifier preferenceSpecifierNamed:name
                                              target:nil
                                                 set:NULL
                                                 get:NULL
                                              detail:Nil
                                                cell:PSStaticTextCell
                                                edit:Nil];
    }

    PSListController *page = nil;
};

TEST_F(Changes, ARowIsInsertedAtAnIndex) {
    [page insertSpecifier:row(@"New") atIndex:2];
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "New", "Flat", "Bass", "Low", "High"));
}

TEST_F(Changes, AnIndexBeyondTheEndIsTheEnd) {
    [page insertSpecifier:row(@"Last") atIndex:1000];
    [page insertSpecifier:row(@"First") atIndex:-5];
    EXPECT_THAT(person.rows(), ElementsAre("First", "Presets", "Flat", "Bass", "Low", "High", "Last"));
}

TEST_F(Changes, RowsAreInsertedAfterARowAndAtTheEndOfAGroup) {
    [page insertSpecifier:row(@"After") afterSpecifierID:@"Flat" animated:YES];
    [page insertSpecifier:row(@"End") atEndOfGroup:1];
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "Flat", "After", "Bass", "End", "Low", "High"));
}

TEST_F(Changes, AfterARowThatIsNotThereNothingIsInserted) {
    [page insertSpecifier:row(@"Lost") afterSpecifierID:@"ghost"];
    [page insertSpecifier:nil atIndex:0];
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "Flat", "Bass", "Low", "High"));
}

TEST_F(Changes, SeveralRowsComeTogether) {
    [page insertContiguousSpecifiers:@[ row(@"One"), row(@"Two") ] afterSpecifierID:@"Bass" animated:YES];
    [page addSpecifiersFromArray:@[ row(@"Three") ]];
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "Flat", "Bass", "One", "Two", "Low", "High", "Three"));
}

TEST_F(Changes, RowsAreRemoved) {
    [page removeSpecifierID:@"Flat" animated:YES];
    [page removeSpecifier:[page specifierForID:@"Bass"]];
    [page removeLastSpecifier];
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "Low"));
}

TEST_F(Changes, RemovingWhatIsNotThereChangesNothing) {
    [page removeSpecifierID:@"ghost"];
    [page removeSpecifier:nil];
    [page removeSpecifierAtIndex:-1];
    [page removeSpecifierAtIndex:1000];
    EXPECT_EQ([page numberOfGroups], 4);
}

TEST_F(Changes, AnInsertedGroupHeaderSplitsItsGroup) {
    [page insertSpecifier:[PSSpecifier groupSpecifierWithName:@"More"] afterSpecifierID:@"Flat"];
    EXPECT_EQ([page numberOfGroups], 5);
    EXPECT_EQ([page rowsForGroup:1], 1);
    EXPECT_EQ([page rowsForGroup:2], 1);
}

TEST_F(Changes, ARemovedGroupHeaderJoinsTheGroups) {
    [page removeSpecifierID:@"bands"];
    EXPECT_EQ([page numberOfGroups], 3);
    EXPECT_EQ([page rowsForGroup:2], 2);
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "Flat", "Bass", "Low", "High"));
}

TEST_F(Changes, RowsAreReplaced) {
    NSArray *old = @[ [page specifierForID:@"Flat"], [page specifierForID:@"Bass"] ];
    [page replaceContiguousSpecifiers:old withSpecifiers:@[ row(@"Jazz") ]];
    EXPECT_THAT(person.rows(), ElementsAre("Presets", "Jazz", "Low", "High"));
}

TEST_F(Changes, TheGivenOutArrayNeverChanges) {
    NSArray *before = [[[page specifiers] retain] autorelease];
    const NSUInteger count = [before count];
    [page addSpecifier:row(@"New")];
    EXPECT_EQ([before count], count);
    EXPECT_EQ([[page specifiers] count], count + 1);
}

TEST_F(Changes, ANewArrayReplacesThePage) {
    [page setSpecifiers:@[ row(@"Only") ]];
    EXPECT_THAT(person.rows(), ElementsAre("Only"));
}

TEST_F(Changes, ButtonsOfAPageAddAndRemoveARow) {
    person.back();
    person.tap("Account");
    person.tap("Add Row");
    EXPECT_THAT(person.rows(), Contains("Added"));
    person.tap("Added");
    EXPECT_EQ(preferences::storedText(preferences::account, "added"), "true");
    person.tap("Remove Row");
    EXPECT_THAT(person.rows(), Not(Contains("Added")));
}

TEST_F(Changes, BeforeTheViewIsLoadedRowsMayChangeToo) {
    PSListController *other = [[[PSListController alloc] init] autorelease];
    [other addSpecifier:row(@"Early")];
    [other insertSpecifier:row(@"Earlier") atIndex:0];
    [other removeSpecifierAtIndex:1];
    EXPECT_EQ([[other specifiers] count], 1u);
}

} // namespace
