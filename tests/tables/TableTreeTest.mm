#include "TableFixture.h"

#import <UIKit/UILabel.h>

#include "host/Numbers.h"

using host::Outcome;

namespace {

class TableTree : public TableTest {
protected:
    /// Taps a part of the view that shows the letters.
    Outcome tapIndex(const std::string &part) {
        const host::Element shown = tree();
        const host::Element *index =
            shown.find([](const host::Element &element) { return element.type == "Other"; });
        if (!index)
            return Outcome::notThere;
        const host::Gesture gesture{.kind = host::GestureKind::tap, .number = index->number, .part = part};
        return [host::numberedObject(index->number) _hostPerform:gesture];
    }
    void offerIndex() {
        model->sections.assign(3, std::vector<std::string>(20, "row"));
        offer("sectionIndexTitlesForTableView:");
        model->indexTitles = [[NSArray alloc] initWithObjects:UITableViewIndexSearch, @"A", @"B", @"#", nil];
    }
};

TEST_F(TableTree, TheTableSaysWhatItIsAndWhereItStands) {
    fill(100);
    show();
    table.contentInset = UIEdgeInsetsMake(64, 0, 0, 0);
    const host::Element shown = tree();
    EXPECT_EQ(shown.type, "Table");
    EXPECT_EQ(shown.text("style"), "grouped");
    EXPECT_EQ(shown.amount("top"), 64);
    EXPECT_EQ(shown.amount("offset"), -64);
    EXPECT_EQ(shown.amount("contentHeight"), 35 + 4400 + 17.5);
    EXPECT_EQ(shown.number, table._hostNumber);
}

TEST_F(TableTree, AnInsetIsReadBackAsItWasSet) {
    fill(1);
    show();
    table.contentInset = UIEdgeInsetsMake(64, 0, 0, 0);
    EXPECT_TRUE(UIEdgeInsetsEqualToEdgeInsets(table.contentInset, UIEdgeInsetsMake(64, 0, 0, 0)));
    const host::Element shown = tree();
    EXPECT_EQ(cell(shown, 0, 0)->rect.y, 64 + 35);
}

TEST_F(TableTree, RowsSayWhereTheyStandInTheWindow) {
    fill(100);
    show(UITableViewStylePlain);
    scrollTo(100);
    const host::Element shown = tree();
    EXPECT_EQ(cell(shown, 0, 2)->rect, (host::Rect{0, -12, 320, 44}));
    EXPECT_EQ(cell(shown, 0, 1), nullptr);
}

TEST_F(TableTree, ElementsAreThereOnlyForWhatIsOnScreen) {
    fill(10'000);
    show();
    EXPECT_LT(tree().children.size(), 20u);
    scrollTo(200'000);
    EXPECT_LT(tree().children.size(), 20u);
}

TEST_F(TableTree, ARowKeepsItsNumberWhileItIsOnScreen) {
    fill(5);
    show();
    const host::Element before = tree(), after = tree();
    EXPECT_EQ(cell(before, 0, 3)->number, cell(after, 0, 3)->number);
    EXPECT_NE(cell(before, 0, 3)->number, cell(before, 0, 2)->number);
    EXPECT_NE(cell(before, 0, 3)->number, 0u);
}

TEST_F(TableTree, ScrollingStopsAtTheEnds) {
    fill(100);
    show(UITableViewStylePlain);
    table.contentInset = UIEdgeInsetsMake(64, 0, 50, 0);
    scrollTo(-500);
    EXPECT_EQ(table.contentOffset.y, -64);
    scrollTo(1e9);
    EXPECT_EQ(table.contentOffset.y, 4400 + 50 - 568);
}

TEST_F(TableTree, ATableThatDoesNotScrollCannotBeScrolled) {
    fill(100);
    show();
    table.scrollEnabled = NO;
    const host::Gesture gesture{.kind = host::GestureKind::scroll, .amount = 100};
    EXPECT_EQ([table _hostPerform:gesture], Outcome::disabled);
    EXPECT_EQ(table.contentOffset.y, 0);
}

TEST_F(TableTree, WithoutTitlesThereIsNoIndex) {
    fill(3);
    show();
    EXPECT_TRUE(tree().all("Button").empty());
    EXPECT_EQ(tapIndex("index:0"), Outcome::notThere);
}

TEST_F(TableTree, TheIndexShowsTheTitles) {
    offerIndex();
    show(UITableViewStylePlain);
    const host::Element shown = tree();
    std::vector<std::string> titles;
    for (const host::Element *letter : shown.all("Button")) {
        EXPECT_EQ(letter->text("role"), "index");
        EXPECT_EQ(letter->rect.x, 305);
        titles.push_back(letter->label);
    }
    EXPECT_EQ(shown.children.back().type, "Other") << "the letters lie over the rows";
    EXPECT_THAT(titles, testing::ElementsAre("{search}", "A", "B", "#"));
}

TEST_F(TableTree, ALetterBringsItsSectionToTheTop) {
    offerIndex();
    offer("tableView:sectionForSectionIndexTitle:atIndex:");
    show(UITableViewStylePlain);
    model->sectionForIndex = 1;
    EXPECT_EQ(tapIndex("index:2"), Outcome::done);
    EXPECT_THAT(model->calls, testing::Contains("index B 2"));
    EXPECT_EQ(table.contentOffset.y, 880);
    EXPECT_EQ(tapIndex("index:0"), Outcome::done);
    EXPECT_EQ(table.contentOffset.y, 0);
}

TEST_F(TableTree, ALetterWithoutASectionScrollsNowhere) {
    offerIndex();
    offer("tableView:sectionForSectionIndexTitle:atIndex:");
    show(UITableViewStylePlain);
    model->sectionForIndex = 99;
    EXPECT_EQ(tapIndex("index:1"), Outcome::done);
    EXPECT_EQ(table.contentOffset.y, 0);
    for (const char *part : {"index:4", "index:-1", "index:", "index:x", "index:99999999999999999999"})
        EXPECT_NE(tapIndex(part), Outcome::done) << part;
}

TEST_F(TableTree, TheIndexIsShownFromANumberOfRowsOn) {
    offerIndex();
    show(UITableViewStylePlain);
    table.sectionIndexMinimumDisplayRowCount = 61;
    EXPECT_TRUE(tree().all("Button").empty());
    table.sectionIndexMinimumDisplayRowCount = 60;
    EXPECT_EQ(tree().all("Button").size(), 4u);
    [model->indexTitles release];
    model->indexTitles = nil;
    [table reloadSectionIndexTitles];
    EXPECT_TRUE(tree().all("Button").empty());
}

TEST(IndexPath, KnowsSectionAndRow) {
    NSIndexPath *place = [NSIndexPath indexPathForRow:7 inSection:3];
    EXPECT_EQ(place.row, 7);
    EXPECT_EQ(place.section, 3);
    EXPECT_EQ([place length], 2u);
    EXPECT_TRUE([place isEqual:[NSIndexPath indexPathForRow:7 inSection:3]]);
    EXPECT_EQ([place compare:[NSIndexPath indexPathForRow:6 inSection:4]], NSOrderedAscending);
}

TEST(IndexPath, KeepsNumbersBelowZero) {
    NSIndexPath *place = [NSIndexPath indexPathForRow:-1 inSection:-2];
    EXPECT_EQ(place.row, -1);
    EXPECT_EQ(place.section, -2);
}

} // namespace
