#include "TableFixture.h"

#import <UIKit/UILabel.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

constexpr UITableViewRowAnimation kAutomatic = UITableViewRowAnimationAutomatic;

class TableUpdates : public TableTest {
protected:
    TableUpdates() { fill(3); }
    std::vector<std::string> &rows() { return model->sections[0]; }
};

TEST_F(TableUpdates, AnInsertedRowAppearsInItsPlace) {
    show();
    rows().insert(rows().begin(), "new");
    [table insertRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:kAutomatic];
    EXPECT_THAT(shownRows(), ElementsAre("0.0 new", "0.1 0", "0.2 1", "0.3 2"));
}

TEST_F(TableUpdates, ADeletedRowGoes) {
    show();
    rows().erase(rows().begin() + 1);
    [table deleteRowsAtIndexPaths:paths({{0, 1}}) withRowAnimation:kAutomatic];
    EXPECT_THAT(shownRows(), ElementsAre("0.0 0", "0.1 2"));
}

TEST_F(TableUpdates, TheCellsOfTheOtherRowsAreNotAskedForAgain) {
    show();
    UITableViewCell *last = [table cellForRowAtIndexPath:path(0, 2)];
    model->cellsAsked = 0;
    rows().insert(rows().begin(), "new");
    [table insertRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:kAutomatic];
    EXPECT_EQ(model->cellsAsked, 1);
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 3)], last);
}

TEST_F(TableUpdates, AReloadedRowShowsWhatTheDataSourceSaysNow) {
    show();
    rows()[1] = "changed";
    rows()[2] = "not shown yet";
    [table reloadRowsAtIndexPaths:paths({{0, 1}}) withRowAnimation:kAutomatic];
    EXPECT_THAT(shownRows(), ElementsAre("0.0 0", "0.1 changed", "0.2 2"));
}

TEST_F(TableUpdates, AReloadAsksForTheNewCellBeforeTheOldOneIsQueued) {
    show();
    UITableViewCell *old = [[[table cellForRowAtIndexPath:path(0, 1)] retain] autorelease];
    [table reloadRowsAtIndexPaths:paths({{0, 1}}) withRowAnimation:kAutomatic];
    EXPECT_NE([table cellForRowAtIndexPath:path(0, 1)], old);
    EXPECT_EQ(model->cellsMade, 4);
    EXPECT_EQ([table dequeueReusableCellWithIdentifier:@"Cell"], old);
}

TEST_F(TableUpdates, ARowOffScreenIsReloadedWithoutACell) {
    fill(100);
    show();
    model->cellsAsked = 0;
    [table reloadRowsAtIndexPaths:paths({{0, 90}}) withRowAnimation:kAutomatic];
    EXPECT_EQ(model->cellsAsked, 0);
}

TEST_F(TableUpdates, ACountThatDoesNotFitAnInsertionRaises) {
    show();
    const auto insert = [&] { [table insertRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:kAutomatic]; };
    EXPECT_THAT(reasonOf(NSInternalInconsistencyException, insert),
                HasSubstr("3 rows after the update; it had 3 before, 1 were inserted"));
}

TEST_F(TableUpdates, ACountThatDoesNotFitADeletionRaises) {
    show();
    const auto erase = [&] { [table deleteRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:kAutomatic]; };
    EXPECT_THAT(reasonOf(NSInternalInconsistencyException, erase), HasSubstr("1 deleted"));
}

TEST_F(TableUpdates, ACountThatDoesNotFitAReloadRaises) {
    show();
    rows().pop_back();
    const auto reload = [&] { [table reloadRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:kAutomatic]; };
    EXPECT_THAT(reasonOf(NSInternalInconsistencyException, reload), HasSubstr("2 rows after the update"));
}

TEST_F(TableUpdates, AfterAFailedUpdateTheTableShowsWhatTheDataSourceHas) {
    show();
    rows() = {"a", "b"};
    reasonOf(NSInternalInconsistencyException, [&] {
        [table insertRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:kAutomatic];
    });
    EXPECT_THAT(shownRows(), ElementsAre("0.0 a", "0.1 b"));
    rows().push_back("c");
    [table insertRowsAtIndexPaths:paths({{0, 2}}) withRowAnimation:kAutomatic];
    EXPECT_EQ(shownRows().size(), 3u);
}

TEST_F(TableUpdates, ChangesBetweenBeginAndEndAreOneBatch) {
    show();
    [table beginUpdates];
    rows() = {"1", "new"};
    [table deleteRowsAtIndexPaths:paths({{0, 0}, {0, 2}}) withRowAnimation:kAutomatic];
    [table insertRowsAtIndexPaths:paths({{0, 1}}) withRowAnimation:kAutomatic];
    [table endUpdates];
    EXPECT_THAT(shownRows(), ElementsAre("0.0 1", "0.1 new"));
}

TEST_F(TableUpdates, OnlyTheOutermostEndAppliesTheBatch) {
    show();
    [table beginUpdates];
    [table beginUpdates];
    rows().pop_back();
    [table deleteRowsAtIndexPaths:paths({{0, 2}}) withRowAnimation:kAutomatic];
    [table endUpdates];
    EXPECT_EQ([table numberOfRowsInSection:0], 3);
    [table endUpdates];
    EXPECT_EQ([table numberOfRowsInSection:0], 2);
}

TEST_F(TableUpdates, AnEndWithoutABeginDoesNothing) {
    show();
    [table endUpdates];
    EXPECT_EQ(shownRows().size(), 3u);
}

TEST_F(TableUpdates, AnEmptyBatchAsksForTheHeightsAgain) {
    offer("tableView:heightForRowAtIndexPath:");
    show(UITableViewStylePlain);
    model->height = [](long, long) { return 100.0; };
    [table beginUpdates];
    [table endUpdates];
    EXPECT_EQ(table.contentSize.height, 300);
}

TEST_F(TableUpdates, SectionsComeAndGo) {
    model->sections = {{"a"}, {"b"}};
    show();
    model->sections = {{"x"}, {"a"}};
    [table beginUpdates];
    [table deleteSections:[NSIndexSet indexSetWithIndex:1] withRowAnimation:kAutomatic];
    [table insertSections:[NSIndexSet indexSetWithIndex:0] withRowAnimation:kAutomatic];
    [table endUpdates];
    EXPECT_THAT(shownRows(), ElementsAre("0.0 x", "1.0 a"));
}

TEST_F(TableUpdates, AReloadedSectionMayHaveOtherRows) {
    model->sections = {{"a"}, {"b"}};
    show();
    model->sections = {{"x", "y", "z"}, {"b"}};
    [table reloadSections:[NSIndexSet indexSetWithIndex:0] withRowAnimation:kAutomatic];
    EXPECT_THAT(shownRows(), ElementsAre("0.0 x", "0.1 y", "0.2 z", "1.0 b"));
}

TEST_F(TableUpdates, AReloadedSectionShowsItsNewTitle) {
    model->sections = {{"a"}, {"b"}};
    model->headers = {"one", "two"};
    offer("tableView:titleForHeaderInSection:");
    show();
    model->headers = {"eins", "zwei"};
    [table reloadSections:[NSIndexSet indexSetWithIndex:0] withRowAnimation:kAutomatic];
    EXPECT_TRUE([[table headerViewForSection:0].textLabel.text isEqualToString:@"EINS"]);
    EXPECT_TRUE([[table headerViewForSection:1].textLabel.text isEqualToString:@"TWO"]);
}

TEST_F(TableUpdates, AMovedRowKeepsItsCell) {
    show();
    UITableViewCell *cell = [table cellForRowAtIndexPath:path(0, 0)];
    rows() = {"1", "2", "0"};
    model->cellsAsked = 0;
    [table moveRowAtIndexPath:path(0, 0) toIndexPath:path(0, 2)];
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 2)], cell);
    EXPECT_EQ(model->cellsAsked, 0);
    EXPECT_THAT(shownRows(), ElementsAre("0.0 1", "0.1 2", "0.2 0"));
}

TEST_F(TableUpdates, TheSelectionFollowsItsRow) {
    show();
    [table selectRowAtIndexPath:path(0, 1) animated:NO scrollPosition:UITableViewScrollPositionNone];
    rows().insert(rows().begin(), "new");
    [table insertRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:kAutomatic];
    EXPECT_TRUE([[table indexPathForSelectedRow] isEqual:path(0, 2)]);
    rows().erase(rows().begin() + 2);
    [table deleteRowsAtIndexPaths:paths({{0, 2}}) withRowAnimation:kAutomatic];
    EXPECT_EQ([table indexPathForSelectedRow], nil);
}

TEST_F(TableUpdates, ATableThatWasNeverShownSimplyLoadsItsRows) {
    table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 568)];
    table.dataSource = model;
    rows().push_back("3");
    [table insertRowsAtIndexPaths:paths({{0, 3}}) withRowAnimation:kAutomatic];
    EXPECT_EQ(shownRows().size(), 4u);
}

TEST_F(TableUpdates, ManyRowsCanGoAtOnce) {
    fill(1000);
    show();
    NSMutableArray *gone = [NSMutableArray array];
    for (long row = 0; row < 990; ++row)
        [gone addObject:path(0, row)];
    rows().erase(rows().begin(), rows().begin() + 990);
    [table deleteRowsAtIndexPaths:gone withRowAnimation:kAutomatic];
    EXPECT_EQ(shownRows().size(), 10u);
    EXPECT_EQ(shownRows().front(), "0.0 990");
}

TEST_F(TableUpdates, DeletingWhileScrolledToTheEndBringsTheContentBack) {
    fill(20);
    show(UITableViewStylePlain);
    scrollTo(1e6);
    rows().resize(5);
    NSMutableArray *gone = [NSMutableArray array];
    for (long row = 5; row < 20; ++row)
        [gone addObject:path(0, row)];
    [table deleteRowsAtIndexPaths:gone withRowAnimation:kAutomatic];
    EXPECT_EQ(table.contentOffset.y, 0);
    EXPECT_EQ(shownRows().size(), 5u);
}

} // namespace
