#include "TableFixture.h"

#import <UIKit/UILabel.h>

using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TableSelection : public TableTest {
protected:
    TableSelection() {
        model->sections = {{"a", "b", "c"}};
        for (const char *selector :
             {"tableView:willSelectRowAtIndexPath:", "tableView:didSelectRowAtIndexPath:",
              "tableView:willDeselectRowAtIndexPath:", "tableView:didDeselectRowAtIndexPath:"})
            offer(selector);
    }
};

TEST_F(TableSelection, ATapSelectsTheRow) {
    show();
    EXPECT_EQ(tap(0, 1), Outcome::done);
    EXPECT_THAT(model->calls, ElementsAre("willSelect 0.1", "didSelect 0.1"));
    EXPECT_TRUE([[table indexPathForSelectedRow] isEqual:path(0, 1)]);
    EXPECT_TRUE([table cellForRowAtIndexPath:path(0, 1)].selected);
    const host::Element shown = tree();
    EXPECT_TRUE(cell(shown, 0, 1)->selected);
    EXPECT_FALSE(cell(shown, 0, 0)->selected);
}

TEST_F(TableSelection, AnotherTapDeselectsTheRowBefore) {
    show();
    tap(0, 0);
    model->calls.clear();
    tap(0, 2);
    EXPECT_THAT(model->calls,
                ElementsAre("willSelect 0.2", "willDeselect 0.0", "didDeselect 0.0", "didSelect 0.2"));
    EXPECT_FALSE([table cellForRowAtIndexPath:path(0, 0)].selected);
}

TEST_F(TableSelection, ATapOnTheSelectedRowSelectsItAgain) {
    show();
    tap(0, 0);
    model->calls.clear();
    tap(0, 0);
    EXPECT_THAT(model->calls, ElementsAre("willSelect 0.0", "didSelect 0.0"));
}

TEST_F(TableSelection, TheDelegateMayChooseAnotherRowOrNone) {
    show();
    model->selectInstead = [path(0, 2) retain];
    tap(0, 0);
    EXPECT_TRUE([[table indexPathForSelectedRow] isEqual:path(0, 2)]);
    model->refusesSelection = YES;
    model->calls.clear();
    tap(0, 1);
    EXPECT_THAT(model->calls, ElementsAre("willSelect 0.1"));
    EXPECT_TRUE([[table indexPathForSelectedRow] isEqual:path(0, 2)]);
}

TEST_F(TableSelection, DeselectingInCodeTellsTheDelegateNothing) {
    show();
    tap(0, 0);
    model->calls.clear();
    [table deselectRowAtIndexPath:path(0, 0) animated:NO];
    EXPECT_THAT(model->calls, IsEmpty());
    EXPECT_EQ([table indexPathForSelectedRow], nil);
    EXPECT_EQ([table indexPathsForSelectedRows], nil);
    EXPECT_FALSE([table cellForRowAtIndexPath:path(0, 0)].selected);
}

TEST_F(TableSelection, SelectingInCodeTellsTheDelegateNothing) {
    show();
    [table selectRowAtIndexPath:path(0, 1) animated:NO scrollPosition:UITableViewScrollPositionNone];
    EXPECT_THAT(model->calls, IsEmpty());
    EXPECT_TRUE([[table indexPathForSelectedRow] isEqual:path(0, 1)]);
    [table selectRowAtIndexPath:nil animated:NO scrollPosition:UITableViewScrollPositionNone];
    EXPECT_EQ([table indexPathForSelectedRow], nil);
}

TEST_F(TableSelection, SelectingInCodeMayScrollToTheRow) {
    fill(100);
    show(UITableViewStylePlain);
    [table selectRowAtIndexPath:path(0, 50) animated:NO scrollPosition:UITableViewScrollPositionTop];
    EXPECT_EQ(table.contentOffset.y, 50 * 44);
}

TEST_F(TableSelection, TheDelegateMayDeselectTheRowInItsOwnDidSelect) {
    show();
    tap(0, 1);
    [table deselectRowAtIndexPath:path(0, 1) animated:NO];
    EXPECT_FALSE([table cellForRowAtIndexPath:path(0, 1)].selected);
    EXPECT_EQ(tap(0, 1), Outcome::done);
}

TEST_F(TableSelection, WhereSelectionIsNotAllowedATapDoesNothing) {
    show();
    table.allowsSelection = NO;
    EXPECT_EQ(tap(0, 0), Outcome::disabled);
    EXPECT_THAT(model->calls, IsEmpty());
}

TEST_F(TableSelection, ACellThatTakesNoTouchesIsNotSelected) {
    show();
    [table cellForRowAtIndexPath:path(0, 0)].userInteractionEnabled = NO;
    EXPECT_EQ(tap(0, 0), Outcome::disabled);
    const host::Element shown = tree();
    EXPECT_FALSE(cell(shown, 0, 0)->enabled);
    EXPECT_FALSE(cell(shown, 0, 0)->flag("selectable"));
}

TEST_F(TableSelection, ACellWithoutSelectionStyleIsSelectedAllTheSame) {
    show();
    [table cellForRowAtIndexPath:path(0, 0)].selectionStyle = UITableViewCellSelectionStyleNone;
    EXPECT_EQ(tap(0, 0), Outcome::done);
    EXPECT_THAT(model->calls, ElementsAre("willSelect 0.0", "didSelect 0.0"));
}

TEST_F(TableSelection, HighlightingComesBeforeSelection) {
    offer("tableView:shouldHighlightRowAtIndexPath:");
    offer("tableView:didHighlightRowAtIndexPath:");
    offer("tableView:didUnhighlightRowAtIndexPath:");
    show();
    tap(0, 0);
    EXPECT_THAT(model->calls, ElementsAre("shouldHighlight 0.0", "didHighlight 0.0", "didUnhighlight 0.0",
                                          "willSelect 0.0", "didSelect 0.0"));
    model->refusesHighlight = YES;
    model->calls.clear();
    EXPECT_EQ(tap(0, 1), Outcome::disabled);
    EXPECT_THAT(model->calls, ElementsAre("shouldHighlight 0.1"));
}

TEST_F(TableSelection, SeveralRowsCanBeSelectedWhereThatIsAllowed) {
    show();
    table.allowsMultipleSelection = YES;
    tap(0, 0);
    tap(0, 2);
    EXPECT_EQ([[table indexPathsForSelectedRows] count], 2u);
    tap(0, 0);
    EXPECT_EQ([[table indexPathsForSelectedRows] count], 1u);
    model->refusesDeselection = YES;
    tap(0, 2);
    EXPECT_EQ([[table indexPathsForSelectedRows] count], 1u);
}

TEST_F(TableSelection, ReloadingForgetsTheSelection) {
    show();
    tap(0, 1);
    [table reloadData];
    EXPECT_EQ([table indexPathForSelectedRow], nil);
    EXPECT_FALSE([table cellForRowAtIndexPath:path(0, 1)].selected);
}

TEST_F(TableSelection, TheSelectionOutlivesScrolling) {
    fill(100);
    show();
    tap(0, 1);
    scrollTo(3000);
    const host::Element away = tree();
    for (const host::Element *row : away.all("Cell"))
        EXPECT_FALSE(row->selected);
    scrollTo(0);
    EXPECT_TRUE([table cellForRowAtIndexPath:path(0, 1)].selected);
}

TEST_F(TableSelection, TheDetailButtonHasAMessageOfItsOwn) {
    offer("tableView:accessoryButtonTappedForRowWithIndexPath:");
    show();
    UITableViewCell *row = [table cellForRowAtIndexPath:path(0, 0)];
    EXPECT_EQ(tap(0, 0, "detail"), Outcome::notThere);
    row.accessoryType = UITableViewCellAccessoryDetailDisclosureButton;
    EXPECT_EQ(tap(0, 0, "detail"), Outcome::done);
    row.accessoryType = UITableViewCellAccessoryDetailButton;
    EXPECT_EQ(tap(0, 0, "detail"), Outcome::done);
    EXPECT_THAT(model->calls, ElementsAre("accessory 0.0", "accessory 0.0"));
}

TEST_F(TableSelection, ACellThatLeftTheScreenIsNotThere) {
    fill(100);
    show();
    UITableViewCell *first = [[[table cellForRowAtIndexPath:path(0, 0)] retain] autorelease];
    model->cell = [](UITableView *, NSIndexPath *) -> UITableViewCell * {
        return [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                       reuseIdentifier:nil] autorelease];
    };
    scrollTo(3000);
    const host::Gesture gesture{.kind = host::GestureKind::tap, .number = first._hostNumber};
    EXPECT_EQ([first _hostPerform:gesture], Outcome::notThere);
}

} // namespace
