#include "TableFixture.h"

#import <UIKit/UILabel.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class TableRows : public TableTest {};

TEST_F(TableRows, AsksForOneSectionWhenTheDataSourceDoesNotSayHowMany) {
    fill(2);
    show();
    EXPECT_EQ([table numberOfSections], 1);
    EXPECT_EQ([table numberOfRowsInSection:0], 2);
}

TEST_F(TableRows, AsksForSectionsWhenTheDataSourceSaysHowMany) {
    model->sections = {{"a"}, {"b", "c"}, {}};
    show();
    EXPECT_EQ([table numberOfSections], 3);
    EXPECT_EQ([table numberOfRowsInSection:1], 2);
    EXPECT_EQ([table numberOfRowsInSection:2], 0);
    EXPECT_THAT(shownRows(), ElementsAre("0.0 a", "1.0 b", "1.1 c"));
}

TEST_F(TableRows, WithoutADataSourceThereIsNothing) {
    table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 568) style:UITableViewStylePlain];
    [table reloadData];
    EXPECT_EQ([table numberOfSections], 0);
    EXPECT_EQ([table numberOfRowsInSection:0], 0);
    EXPECT_TRUE(shownRows().empty());
}

TEST_F(TableRows, RowsAre44PointsHighUnlessSaidOtherwise) {
    fill(3);
    show(UITableViewStylePlain);
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 2)].origin.y, 88);
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 2)].size.height, 44);
    table.rowHeight = 60;
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 2)].origin.y, 120);
}

TEST_F(TableRows, TheDelegatesHeightsCountBeforeTheTables) {
    fill(3);
    offer("tableView:heightForRowAtIndexPath:");
    model->height = [](long, long row) { return row == 1 ? 100.0 : UITableViewAutomaticDimension; };
    show(UITableViewStylePlain);
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 2)].origin.y, 144);
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 2)].size.height, 44);
    EXPECT_EQ(table.contentSize.height, 188);
}

TEST_F(TableRows, OnlyRowsOnScreenGetCells) {
    fill(100);
    show(UITableViewStylePlain);
    EXPECT_EQ(model->cellsMade, 13);
    EXPECT_EQ(shownRows().size(), 13u);
    EXPECT_NE([table cellForRowAtIndexPath:path(0, 12)], nil);
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 13)], nil);
    EXPECT_EQ(model->cellsMade, 13);
}

TEST_F(TableRows, TenThousandRowsMakeFewerThan60CellsHoweverFarOneScrolls) {
    fill(10'000);
    show();
    for (double offset = 0; offset < table.contentSize.height; offset += 317)
        scrollTo(offset);
    scrollTo(1e9);
    EXPECT_LT(model->cellsMade, 60);
    EXPECT_THAT(shownRows().back(), HasSubstr("9999"));
}

TEST_F(TableRows, NoRowsAreAskedForOneByOneWhileAllAreOfOneHeight) {
    fill(100'000);
    show();
    EXPECT_EQ(model->rowQuestions, 1);
    EXPECT_EQ(model->heightQuestions, 0);
    EXPECT_LT(model->cellsAsked, 20);
}

TEST_F(TableRows, ATableWithoutHeightShowsNoRows) {
    fill(5);
    show(UITableViewStyleGrouped, 0, 0);
    EXPECT_EQ(model->cellsAsked, 0);
    table.frame = CGRectMake(0, 0, 320, 568);
    [table layoutIfNeeded];
    EXPECT_EQ(model->cellsAsked, 5);
}

TEST_F(TableRows, ANilCellRaises) {
    fill(1);
    model->cell = [](UITableView *, NSIndexPath *) -> UITableViewCell * { return nil; };
    EXPECT_THAT(reasonOf(NSInternalInconsistencyException, [&] { show(); }),
                HasSubstr("gave no cell for row 0 of section 0"));
}

TEST_F(TableRows, AfterAnExceptionTheTableCanBeUsedAgain) {
    fill(2);
    model->cell = [](UITableView *, NSIndexPath *) -> UITableViewCell * { return nil; };
    reasonOf(NSInternalInconsistencyException, [&] { show(); });
    model->cell = nullptr;
    [table reloadData];
    EXPECT_THAT(shownRows(), ElementsAre("0.0 0", "0.1 1"));
}

TEST_F(TableRows, ReloadAsksForCountsAtOnceAndForCellsAtTheNextLayout) {
    fill(2);
    show();
    fill(3);
    model->cellsAsked = 0;
    [table reloadData];
    EXPECT_EQ([table numberOfRowsInSection:0], 3);
    EXPECT_EQ(model->cellsAsked, 0);
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 0)], nil);
    [table layoutIfNeeded];
    EXPECT_EQ(model->cellsAsked, 3);
}

TEST_F(TableRows, OptionalMethodsAreAskedForOnceWhenTheyAreSet) {
    model->sections = {{"a"}, {"b"}};
    table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 568)];
    table.dataSource = model;
    offer("numberOfSectionsInTableView:");
    [table reloadData];
    EXPECT_EQ([table numberOfSections], 1);
    table.dataSource = model;
    [table reloadData];
    EXPECT_EQ([table numberOfSections], 2);
}

TEST_F(TableRows, DataSourceAndDelegateAreNotRetained) {
    fill(1);
    const NSUInteger before = [model retainCount];
    show();
    EXPECT_EQ([model retainCount], before);
}

TEST_F(TableRows, TheTableKnowsTheRowAtAPoint) {
    fill(3);
    show(UITableViewStylePlain);
    EXPECT_TRUE([[table indexPathForRowAtPoint:CGPointMake(10, 50)] isEqual:path(0, 1)]);
    EXPECT_EQ([table indexPathForRowAtPoint:CGPointMake(10, 200)], nil);
    EXPECT_EQ([table indexPathForRowAtPoint:CGPointMake(-1, 50)], nil);
}

TEST_F(TableRows, TheTableKnowsTheRowOfACell) {
    fill(3);
    show();
    UITableViewCell *cell = [table cellForRowAtIndexPath:path(0, 1)];
    EXPECT_TRUE([[table indexPathForCell:cell] isEqual:path(0, 1)]);
    EXPECT_EQ([table indexPathForCell:nil], nil);
    UITableViewCell *other = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                                     reuseIdentifier:nil] autorelease];
    EXPECT_EQ([table indexPathForCell:other], nil);
}

TEST_F(TableRows, VisibleRowsAreThoseOnScreen) {
    fill(100);
    show(UITableViewStylePlain);
    scrollTo(440);
    EXPECT_EQ([[table visibleCells] count], 13u);
    EXPECT_TRUE([[[table indexPathsForVisibleRows] objectAtIndex:0] isEqual:path(0, 10)]);
}

TEST_F(TableRows, ScrollingToARowPutsItWhereAsked) {
    fill(100);
    show(UITableViewStylePlain);
    [table scrollToRowAtIndexPath:path(0, 50) atScrollPosition:UITableViewScrollPositionTop animated:NO];
    EXPECT_EQ(table.contentOffset.y, 50 * 44);
    [table scrollToRowAtIndexPath:path(0, 50) atScrollPosition:UITableViewScrollPositionBottom animated:NO];
    EXPECT_EQ(table.contentOffset.y, 51 * 44 - 568);
    [table scrollToRowAtIndexPath:path(0, 50) atScrollPosition:UITableViewScrollPositionMiddle animated:NO];
    EXPECT_EQ(table.contentOffset.y, 50 * 44 - (568 - 44) / 2);
    [table scrollToRowAtIndexPath:path(0, 99) atScrollPosition:UITableViewScrollPositionTop animated:NO];
    EXPECT_EQ(table.contentOffset.y, 4400 - 568);
    [table scrollToRowAtIndexPath:path(0, 0) atScrollPosition:UITableViewScrollPositionNone animated:NO];
    EXPECT_EQ(table.contentOffset.y, 0);
}

TEST_F(TableRows, ScrollingToARowThatIsNotThereRaises) {
    fill(1);
    show();
    const auto scroll = [&] {
        [table scrollToRowAtIndexPath:path(0, 7) atScrollPosition:UITableViewScrollPositionTop animated:NO];
    };
    EXPECT_THAT(reasonOf(NSRangeException, scroll), HasSubstr("no row 7"));
}

TEST_F(TableRows, TheDelegateIsToldOfCellsThatComeAndGo) {
    fill(100);
    offer("tableView:willDisplayCell:forRowAtIndexPath:");
    offer("tableView:didEndDisplayingCell:forRowAtIndexPath:");
    show(UITableViewStylePlain, 320, 88);
    EXPECT_THAT(model->calls, ElementsAre("willDisplay 0.0", "willDisplay 0.1"));
    model->calls.clear();
    table.contentOffset = CGPointMake(0, 44);
    [table layoutIfNeeded];
    EXPECT_THAT(model->calls, ElementsAre("didScroll", "didEndDisplaying 0.0", "willDisplay 0.2"));
}

TEST_F(TableRows, IndentationComesFromTheDelegate) {
    fill(3);
    offer("tableView:indentationLevelForRowAtIndexPath:");
    show();
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 2)].indentationLevel, 2);
}

TEST_F(TableRows, ADataSourceMayReloadTheTableWhileItGivesACell) {
    fill(5);
    bool reloaded = false;
    model->cell = [&](UITableView *asking, NSIndexPath *row) -> UITableViewCell * {
        if (!reloaded && row.row == 3) {
            reloaded = true;
            fill(2);
            [asking reloadData];
        }
        return [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                       reuseIdentifier:nil] autorelease];
    };
    show();
    EXPECT_EQ(shownRows().size(), 2u);
}

} // namespace
