#include "TableFixture.h"

#import <UIKit/UILabel.h>

#include "host/Text.h"

/// A cell that counts how often it was made ready to be used again.
@interface CountingCell : UITableViewCell {
@public
    int prepared;
}
@end

@implementation CountingCell

- (void)prepareForReuse {
    [super prepareForReuse];
    ++prepared;
}

@end

using testing::ElementsAre;

namespace {

class TableReuse : public TableTest {};

TEST_F(TableReuse, WithoutAQueuedCellThereIsNone) {
    fill(1);
    show();
    EXPECT_EQ([table dequeueReusableCellWithIdentifier:@"other"], nil);
    EXPECT_EQ([table dequeueReusableCellWithIdentifier:nil], nil);
}

TEST_F(TableReuse, ACellThatLeavesTheScreenComesBackForAnotherRow) {
    fill(100);
    show(UITableViewStylePlain, 320, 88);
    UITableViewCell *first = [[[table cellForRowAtIndexPath:path(0, 0)] retain] autorelease];
    table.contentOffset = CGPointMake(0, 440);
    [table layoutIfNeeded];
    EXPECT_EQ(model->cellsMade, 2);
    EXPECT_TRUE([table cellForRowAtIndexPath:path(0, 10)] == first ||
                [table cellForRowAtIndexPath:path(0, 11)] == first);
}

TEST_F(TableReuse, QueuesAreKeptApartByIdentifier) {
    fill(100);
    model->cell = [&](UITableView *asking, NSIndexPath *row) -> UITableViewCell * {
        NSString *identifier = row.row < 2 ? @"A" : @"B";
        UITableViewCell *cell = [asking dequeueReusableCellWithIdentifier:identifier];
        EXPECT_TRUE(!cell || [cell.reuseIdentifier isEqualToString:identifier]);
        return cell
                   ?: [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                              reuseIdentifier:identifier] autorelease];
    };
    show(UITableViewStylePlain, 320, 88);
    scrollTo(440);
    scrollTo(880);
    EXPECT_NE([table dequeueReusableCellWithIdentifier:@"A"], nil);
}

TEST_F(TableReuse, PrepareForReuseIsSentToTheCellHandedOutAgain) {
    fill(100);
    show(UITableViewStylePlain, 320, 88);
    [table registerClass:[CountingCell class] forCellReuseIdentifier:@"Counting"];
    model->cell = [](UITableView *asking, NSIndexPath *row) -> UITableViewCell * {
        return [asking dequeueReusableCellWithIdentifier:@"Counting" forIndexPath:row];
    };
    [table reloadData];
    [table layoutIfNeeded];
    auto *cell = static_cast<CountingCell *>([table cellForRowAtIndexPath:path(0, 0)]);
    ASSERT_TRUE([cell isKindOfClass:[CountingCell class]]);
    EXPECT_EQ(cell->prepared, 0);
    [table reloadData];
    [table layoutIfNeeded];
    EXPECT_EQ(static_cast<CountingCell *>([table cellForRowAtIndexPath:path(0, 0)])->prepared, 1);
}

TEST_F(TableReuse, ReloadQueuesEveryCellAtOnce) {
    fill(5);
    show();
    EXPECT_EQ([table dequeueReusableCellWithIdentifier:@"Cell"], nil);
    [table reloadData];
    NSMutableSet *queued = [NSMutableSet set];
    while (id cell = [table dequeueReusableCellWithIdentifier:@"Cell"])
        [queued addObject:cell];
    EXPECT_EQ([queued count], 5u);
}

TEST_F(TableReuse, NothingOfACellsContentIsReset) {
    fill(100);
    model->cell = [&](UITableView *asking, NSIndexPath *row) -> UITableViewCell * {
        if (UITableViewCell *old = [asking dequeueReusableCellWithIdentifier:@"Cell"])
            return old;
        UITableViewCell *made = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                                        reuseIdentifier:@"Cell"] autorelease];
        made.textLabel.text = [NSString stringWithFormat:@"made for %ld", long(row.row)];
        made.detailTextLabel.text = @"detail";
        made.accessoryView = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
        made.accessoryType = UITableViewCellAccessoryCheckmark;
        return made;
    };
    show(UITableViewStylePlain, 320, 44);
    scrollTo(440);
    UITableViewCell *cell = [table cellForRowAtIndexPath:path(0, 10)];
    EXPECT_EQ(host::utf8(cell.textLabel.text), "made for 0");
    EXPECT_EQ(host::utf8(cell.detailTextLabel.text), "detail");
    EXPECT_NE(cell.accessoryView, nil);
    EXPECT_EQ(cell.accessoryType, UITableViewCellAccessoryCheckmark);
}

TEST_F(TableReuse, ARegisteredClassMakesTheCellsThatTheQueueLacks) {
    fill(1);
    show();
    [table registerClass:[CountingCell class] forCellReuseIdentifier:@"Counting"];
    UITableViewCell *cell = [table dequeueReusableCellWithIdentifier:@"Counting"];
    EXPECT_TRUE([cell isKindOfClass:[CountingCell class]]);
    EXPECT_EQ(host::utf8(cell.reuseIdentifier), "Counting");
    [table registerClass:Nil forCellReuseIdentifier:@"Counting"];
    EXPECT_EQ([table dequeueReusableCellWithIdentifier:@"Counting"], nil);
}

TEST_F(TableReuse, AskingForARowsCellWithoutARegisteredClassRaises) {
    fill(1);
    show();
    const auto ask = [&] { [table dequeueReusableCellWithIdentifier:@"unknown" forIndexPath:path(0, 0)]; };
    EXPECT_THAT(reasonOf(NSInternalInconsistencyException, ask), testing::HasSubstr("unknown"));
}

TEST_F(TableReuse, ACellWithoutIdentifierIsGivenUpWhenItLeaves) {
    fill(100);
    model->cell = [](UITableView *, NSIndexPath *) -> UITableViewCell * {
        return [[[CountingCell alloc] initWithStyle:UITableViewCellStyleDefault
                                    reuseIdentifier:nil] autorelease];
    };
    show(UITableViewStylePlain, 320, 44);
    CountingCell *cell = [static_cast<CountingCell *>([table cellForRowAtIndexPath:path(0, 0)]) retain];
    @autoreleasepool {
        scrollTo(440);
        [table layoutIfNeeded];
    }
    EXPECT_EQ(cell->prepared, 0);
    EXPECT_EQ(cell.superview, nil);
    [cell release];
}

TEST_F(TableReuse, SectionViewsAreReusedToo) {
    fill(1);
    show();
    [table registerClass:[UITableViewHeaderFooterView class] forHeaderFooterViewReuseIdentifier:@"Header"];
    UITableViewHeaderFooterView *header = [table dequeueReusableHeaderFooterViewWithIdentifier:@"Header"];
    ASSERT_NE(header, nil);
    EXPECT_EQ(host::utf8(header.reuseIdentifier), "Header");
    EXPECT_EQ([table dequeueReusableHeaderFooterViewWithIdentifier:@"other"], nil);
}

TEST_F(TableReuse, AHeaderThatLeavesTheScreenIsQueued) {
    fill(100);
    offer("tableView:viewForHeaderInSection:");
    offer("tableView:heightForHeaderInSection:");
    model->headerHeight = 50;
    model->headerView = [[UITableViewHeaderFooterView alloc] initWithReuseIdentifier:@"Header"];
    show();
    EXPECT_EQ([table headerViewForSection:0], model -> headerView);
    scrollTo(1000);
    EXPECT_EQ([table headerViewForSection:0], nil);
    EXPECT_EQ([table dequeueReusableHeaderFooterViewWithIdentifier:@"Header"], model -> headerView);
}

} // namespace
