#include "TableFixture.h"

/// Says whatever numbers it is told to say.
@interface LyingSource : NSObject <UITableViewDataSource, UITableViewDelegate> {
@public
    NSInteger sectionCount, rowCount;
    CGFloat height;
    id title;
}
@end

@implementation LyingSource

- (NSInteger)numberOfSectionsInTableView:(UITableView *)tableView {
    return sectionCount;
}

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return rowCount;
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)path {
    return [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                   reuseIdentifier:nil] autorelease];
}

- (NSString *)tableView:(UITableView *)tableView titleForHeaderInSection:(NSInteger)section {
    return title;
}

@end

/// One that also gives a height for each row.
@interface LyingHeights : LyingSource
@end

@implementation LyingHeights

- (CGFloat)tableView:(UITableView *)tableView heightForRowAtIndexPath:(NSIndexPath *)path {
    return height;
}

@end

namespace {

class HostileDataSource : public testing::TestWithParam<NSInteger> {
protected:
    void SetUp() override {
        table = [[UITableView alloc] initWithFrame:CGRectMake(0, 0, 320, 568) style:UITableViewStyleGrouped];
    }
    void TearDown() override {
        [table release];
        [source release];
    }
    void load(LyingSource *from) {
        table.dataSource = source = from;
        table.delegate = from;
        [table layoutIfNeeded];
    }
    std::size_t shownCells() {
        std::vector<host::Element> elements;
        host::describe(table, 0, 0, elements);
        return elements.at(0).all("Cell").size();
    }

    UITableView *table = nil;
    LyingSource *source = nil;
};

LyingSource *lying(Class type, NSInteger sections, NSInteger rows, CGFloat height = 44, id title = nil) {
    LyingSource *source = [type new];
    source->sectionCount = sections;
    source->rowCount = rows;
    source->height = height;
    source->title = title;
    return source;
}

TEST_F(HostileDataSource, NegativeCountsAreNone) {
    load(lying([LyingSource class], 1, -5));
    EXPECT_EQ([table numberOfRowsInSection:0], 0);
    EXPECT_EQ(shownCells(), 0u);
    source->sectionCount = -1;
    [table reloadData];
    EXPECT_EQ([table numberOfSections], 0);
}

TEST_F(HostileDataSource, HugeCountsStillShowAScreenful) {
    load(lying([LyingSource class], 1, NSIntegerMax));
    EXPECT_GT(shownCells(), 10u);
    EXPECT_LT(shownCells(), 20u);
    [table setContentOffset:CGPointMake(0, table.contentSize.height - 568)];
    EXPECT_GT(shownCells(), 10u);
}

TEST_F(HostileDataSource, HugeCountsWithHeightsOfTheirOwnStillShowAScreenful) {
    load(lying([LyingHeights class], 1, NSIntegerMax, 50));
    EXPECT_GT(shownCells(), 10u);
    EXPECT_LT(shownCells(), 20u);
}

TEST_F(HostileDataSource, HugeNumbersOfSectionsEnd) {
    load(lying([LyingSource class], NSIntegerMax, 1));
    EXPECT_GT([table numberOfSections], 1000);
    EXPECT_LT(shownCells(), 20u);
}

TEST_F(HostileDataSource, HeightsThatAreNoNumbersAreNone) {
    for (const CGFloat height : {-17.0, 0.0, double(NAN), double(INFINITY), 0.001}) {
        LyingSource *other = lying([LyingHeights class], 1, 100, height);
        table.dataSource = other;
        table.delegate = other;
        [table reloadData];
        EXPECT_EQ(shownCells(), 0u) << height;
        table.dataSource = nil;
        table.delegate = nil;
        [other release];
    }
}

TEST_F(HostileDataSource, AHeightBeyondAllBoundsIsCutToTheTallestRow) {
    load(lying([LyingHeights class], 1, 2, 1e300));
    EXPECT_EQ([table rectForRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:0]].size.height, 2009);
}

TEST_F(HostileDataSource, ATitleThatIsNoStringIsNoTitle) {
    load(lying([LyingSource class], 1, 1, 44, [NSNumber numberWithInt:3]));
    EXPECT_EQ([table rectForHeaderInSection:0].size.height, 35);
}

TEST_F(HostileDataSource, NilAndEmptyTitlesAreNoTitles) {
    load(lying([LyingSource class], 2, 1));
    EXPECT_EQ([table rectForHeaderInSection:1].size.height, 17.5);
    source->title = @"";
    [table reloadData];
    EXPECT_EQ([table rectForHeaderInSection:1].size.height, 17.5);
    EXPECT_EQ([table headerViewForSection:1], nil);
}

TEST_F(HostileDataSource, PlacesThatAreNotThereAreNowhere) {
    load(lying([LyingSource class], 1, 1));
    EXPECT_TRUE(CGRectEqualToRect([table rectForRowAtIndexPath:nil], CGRectZero));
    EXPECT_TRUE(CGRectEqualToRect([table rectForRowAtIndexPath:[NSIndexPath indexPathForRow:-1 inSection:0]],
                                  CGRectZero));
    EXPECT_TRUE(CGRectEqualToRect([table rectForSection:9], CGRectZero));
    EXPECT_TRUE(CGRectEqualToRect([table rectForHeaderInSection:-1], CGRectZero));
    EXPECT_TRUE(CGRectEqualToRect([table rectForFooterInSection:NSIntegerMax], CGRectZero));
    EXPECT_EQ([table cellForRowAtIndexPath:nil], nil);
    EXPECT_EQ([table numberOfRowsInSection:NSIntegerMin], 0);
    [table deselectRowAtIndexPath:nil animated:NO];
    [table selectRowAtIndexPath:[NSIndexPath indexPathForRow:9 inSection:9]
                       animated:NO
                 scrollPosition:UITableViewScrollPositionNone];
    EXPECT_EQ([table indexPathForSelectedRow], nil);
}

TEST_F(HostileDataSource, TheSameCellForEveryRowStandsAtTheLastOne) {
    UITableViewCell *only = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                                    reuseIdentifier:@"only"] autorelease];
    TableModel *model = [[TableModel new] autorelease];
    model->sections = {{"a", "b", "c"}};
    model->cell = [&](UITableView *, NSIndexPath *) { return only; };
    table.dataSource = model;
    [table layoutIfNeeded];
    EXPECT_EQ(shownCells(), 1u);
    EXPECT_EQ([[table indexPathForCell:only] row], 2);
    table.dataSource = nil;
}

} // namespace
