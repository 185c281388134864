#include "TableFixture.h"

#import <UIKit/UILabel.h>

#include "host/Text.h"

/// A cell that notes the states it goes through.
@interface StatefulCell : UITableViewCell {
@public
    std::vector<std::string> states;
}
@end

@implementation StatefulCell

- (void)willTransitionToState:(UITableViewCellStateMask)state {
    [super willTransitionToState:state];
    states.push_back("will " + std::to_string(state));
}

- (void)didTransitionToState:(UITableViewCellStateMask)state {
    [super didTransitionToState:state];
    states.push_back("did " + std::to_string(state));
}

@end

using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class TableEditing : public TableTest {
protected:
    TableEditing() { model->sections = {{"a", "b", "c"}}; }

    /// A table whose rows can be deleted, and are when the person says so.
    void showDeletable() {
        offer("tableView:commitEditingStyle:forRowAtIndexPath:");
        model->commit = [this](UITableView *asking, NSIndexPath *row) {
            auto &rows = model->sections[static_cast<std::size_t>(row.section)];
            rows.erase(rows.begin() + row.row);
            [asking deleteRowsAtIndexPaths:[NSArray arrayWithObject:row]
                          withRowAnimation:UITableViewRowAnimationAutomatic];
        };
        show();
    }

    std::string attribute(long section, long row, const char *name) {
        const host::Element shown = tree();
        const host::Element *found = cell(shown, section, row);
        return found ? found->text(name) : "no cell";
    }
    bool flag(long section, long row, const char *name) {
        const host::Element shown = tree();
        const host::Element *found = cell(shown, section, row);
        return found && found->flag(name);
    }
    /// The labels of a row's buttons, with their parts.
    std::vector<std::string> buttons(long section, long row) {
        std::vector<std::string> labels;
        const host::Element shown = tree();
        if (const host::Element *found = cell(shown, section, row)) {
            for (const host::Element *button : found->all("Button"))
                labels.push_back(button->part + ":" + button->label);
        }
        return labels;
    }
};

TEST_F(TableEditing, RowsShowTheRedMinusByDefault) {
    show();
    EXPECT_EQ(attribute(0, 0, "editing"), "none");
    [table setEditing:YES animated:YES];
    EXPECT_TRUE(table.editing);
    EXPECT_EQ(attribute(0, 0, "editing"), "delete");
    EXPECT_THAT(buttons(0, 0), ElementsAre("minus:"));
    [table setEditing:NO animated:YES];
    EXPECT_EQ(attribute(0, 0, "editing"), "none");
    EXPECT_THAT(buttons(0, 0), IsEmpty());
}

TEST_F(TableEditing, RowsThatCannotBeEditedStayAsTheyAreAndAreNotIndented) {
    model->sections = {{"action"}, {"entry"}};
    model->fixedSections = {0};
    offer("tableView:canEditRowAtIndexPath:");
    show();
    table.editing = YES;
    [table layoutIfNeeded];
    EXPECT_EQ(attribute(0, 0, "editing"), "none");
    EXPECT_EQ(attribute(1, 0, "editing"), "delete");
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 0)].contentView.frame.origin.x, 0);
    EXPECT_EQ([table cellForRowAtIndexPath:path(1, 0)].contentView.frame.origin.x, 38);
    EXPECT_FALSE([table cellForRowAtIndexPath:path(0, 0)].editing);
}

TEST_F(TableEditing, TheEditingStyleIsTheDelegates) {
    offer("tableView:editingStyleForRowAtIndexPath:");
    model->editingStyle = UITableViewCellEditingStyleInsert;
    show();
    table.editing = YES;
    EXPECT_EQ(attribute(0, 0, "editing"), "insert");
    model->editingStyle = UITableViewCellEditingStyleNone;
    [table reloadData];
    EXPECT_EQ(attribute(0, 0, "editing"), "none");
}

TEST_F(TableEditing, TapsOnRowsDoNothingInEditingMode) {
    offer("tableView:didSelectRowAtIndexPath:");
    show();
    EXPECT_TRUE(flag(0, 0, "selectable"));
    table.editing = YES;
    EXPECT_FALSE(flag(0, 0, "selectable"));
    EXPECT_EQ(tap(0, 0), Outcome::disabled);
    EXPECT_THAT(model->calls, IsEmpty());
    EXPECT_FALSE(table.allowsSelectionDuringEditing);
}

TEST_F(TableEditing, TapsOnRowsSelectWhenSelectionIsAllowedDuringEditing) {
    offer("tableView:didSelectRowAtIndexPath:");
    show();
    table.allowsSelectionDuringEditing = YES;
    table.editing = YES;
    EXPECT_EQ(tap(0, 0), Outcome::done);
    EXPECT_THAT(model->calls, ElementsAre("didSelect 0.0"));
}

TEST_F(TableEditing, DisclosureIndicatorsAreHiddenInEditingMode) {
    show();
    UITableViewCell *row = [table cellForRowAtIndexPath:path(0, 0)];
    row.accessoryType = UITableViewCellAccessoryDisclosureIndicator;
    EXPECT_EQ(attribute(0, 0, "accessory"), "disclosure");
    table.editing = YES;
    EXPECT_EQ(attribute(0, 0, "accessory"), "none");
    row.editingAccessoryType = UITableViewCellAccessoryCheckmark;
    EXPECT_EQ(attribute(0, 0, "accessory"), "checkmark");
    table.editing = NO;
    EXPECT_EQ(attribute(0, 0, "accessory"), "disclosure");
}

TEST_F(TableEditing, MinusOpensTheDeleteButtonAndDeleteCommits) {
    showDeletable();
    table.editing = YES;
    EXPECT_EQ(tap(0, 1, "minus"), Outcome::done);
    EXPECT_TRUE(flag(0, 1, "open"));
    EXPECT_TRUE([table cellForRowAtIndexPath:path(0, 1)].showingDeleteConfirmation);
    EXPECT_THAT(buttons(0, 1), ElementsAre("minus:", "delete:Delete"));
    EXPECT_EQ(tap(0, 1, "delete"), Outcome::done);
    EXPECT_THAT(model->calls, ElementsAre("delete 0.1"));
    EXPECT_THAT(shownRows(), ElementsAre("0.0 a", "0.1 c"));
}

TEST_F(TableEditing, AfterADeletionInEditingModeTheTableStaysInIt) {
    showDeletable();
    table.editing = YES;
    tap(0, 1, "minus");
    tap(0, 1, "delete");
    EXPECT_TRUE(table.editing);
    EXPECT_EQ(attribute(0, 0, "editing"), "delete");
    EXPECT_EQ(attribute(0, 1, "editing"), "delete");
}

TEST_F(TableEditing, ASecondTapOnTheMinusClosesTheRow) {
    showDeletable();
    table.editing = YES;
    tap(0, 1, "minus");
    tap(0, 1, "minus");
    EXPECT_FALSE(flag(0, 1, "open"));
    EXPECT_THAT(model->calls, IsEmpty());
    EXPECT_TRUE(table.editing);
}

TEST_F(TableEditing, ATapElsewhereClosesTheOpenRowAndDoesNothingElse) {
    offer("tableView:didSelectRowAtIndexPath:");
    showDeletable();
    swipe(0, 1);
    EXPECT_EQ(tap(0, 0), Outcome::done);
    EXPECT_FALSE(flag(0, 1, "open"));
    EXPECT_FALSE(table.editing);
    EXPECT_THAT(model->calls, IsEmpty());
}

TEST_F(TableEditing, ThePlusInsertsAtOnce) {
    offer("tableView:editingStyleForRowAtIndexPath:");
    offer("tableView:commitEditingStyle:forRowAtIndexPath:");
    model->editingStyle = UITableViewCellEditingStyleInsert;
    show();
    table.editing = YES;
    EXPECT_EQ(tap(0, 2, "minus"), Outcome::done);
    EXPECT_THAT(model->calls, ElementsAre("insert 0.2"));
}

TEST_F(TableEditing, ASwipeOffersDeleteAndSetsEditingWithoutAMinusAnywhere) {
    offer("tableView:willBeginEditingRowAtIndexPath:");
    showDeletable();
    EXPECT_TRUE(flag(0, 1, "swipeable"));
    EXPECT_EQ(swipe(0, 1), Outcome::done);
    EXPECT_TRUE(table.editing);
    EXPECT_THAT(model->calls, ElementsAre("willBeginEditing 0.1"));
    EXPECT_THAT(buttons(0, 1), ElementsAre("delete:Delete"));
    EXPECT_EQ(attribute(0, 0, "editing"), "none");
    EXPECT_EQ(attribute(0, 1, "editing"), "none");
}

TEST_F(TableEditing, ASwipeSlidesTheRowToTheLeftByTheWidthOfTheButton) {
    showDeletable();
    swipe(0, 1);
    [table layoutIfNeeded];
    const host::Element shown = tree();
    const host::Element *row = cell(shown, 0, 1);
    const host::Element *button = row->all("Button").at(0);
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 1)].contentView.frame.origin.x, -button->rect.width);
    EXPECT_EQ(button->rect.x + button->rect.width, 320);
    EXPECT_EQ(button->rect.height, row->rect.height);
    EXPECT_GE(button->rect.width, 74);
}

TEST_F(TableEditing, AfterASwipeDeleteTheTableLeavesEditing) {
    offer("tableView:didEndEditingRowAtIndexPath:");
    showDeletable();
    swipe(0, 1);
    EXPECT_EQ(tap(0, 1, "delete"), Outcome::done);
    EXPECT_FALSE(table.editing);
    EXPECT_THAT(model->calls, ElementsAre("delete 0.1", "didEndEditing 0.1"));
    EXPECT_THAT(shownRows(), ElementsAre("0.0 a", "0.1 c"));
}

TEST_F(TableEditing, ARowThatIsNotDeletedAfterAllClosesAgain) {
    offer("tableView:commitEditingStyle:forRowAtIndexPath:");
    show();
    swipe(0, 1);
    EXPECT_EQ(tap(0, 1, "delete"), Outcome::done);
    EXPECT_FALSE(flag(0, 1, "open"));
    EXPECT_FALSE(table.editing);
}

TEST_F(TableEditing, WithoutACommitMethodThereIsNoSwipe) {
    show();
    EXPECT_FALSE(flag(0, 0, "swipeable"));
    EXPECT_EQ(swipe(0, 0), Outcome::disabled);
}

TEST_F(TableEditing, ARowThatCannotBeEditedIsNotSwiped) {
    model->sections = {{"action"}, {"entry"}};
    model->fixedSections = {0};
    offer("tableView:canEditRowAtIndexPath:");
    showDeletable();
    EXPECT_EQ(swipe(0, 0), Outcome::disabled);
    EXPECT_EQ(swipe(1, 0), Outcome::done);
}

TEST_F(TableEditing, ARowOfAnotherStyleThanDeleteIsNotSwiped) {
    offer("tableView:editingStyleForRowAtIndexPath:");
    model->editingStyle = UITableViewCellEditingStyleNone;
    showDeletable();
    EXPECT_EQ(swipe(0, 0), Outcome::disabled);
}

TEST_F(TableEditing, InEditingModeNoRowIsSwiped) {
    showDeletable();
    table.editing = YES;
    EXPECT_FALSE(flag(0, 0, "swipeable"));
    EXPECT_EQ(swipe(0, 0), Outcome::disabled);
}

TEST_F(TableEditing, ClosingTheSwipeEndsEditing) {
    offer("tableView:didEndEditingRowAtIndexPath:");
    showDeletable();
    swipe(0, 1);
    EXPECT_EQ(perform(0, 1, host::GestureKind::closeSwipe), Outcome::done);
    EXPECT_FALSE(table.editing);
    EXPECT_THAT(model->calls, ElementsAre("didEndEditing 0.1"));
    EXPECT_EQ(perform(0, 1, host::GestureKind::closeSwipe), Outcome::disabled);
}

TEST_F(TableEditing, ASwipeOnAnotherRowClosesTheOpenOne) {
    showDeletable();
    swipe(0, 1);
    EXPECT_EQ(swipe(0, 0), Outcome::done);
    EXPECT_FALSE(flag(0, 1, "open"));
    EXPECT_FALSE(flag(0, 0, "open"));
    EXPECT_FALSE(table.editing);
}

TEST_F(TableEditing, TurningEditingOffDuringASwipeClosesIt) {
    showDeletable();
    swipe(0, 1);
    [table setEditing:!table.editing animated:YES];
    EXPECT_FALSE(table.editing);
    EXPECT_FALSE(flag(0, 1, "open"));
    EXPECT_EQ(attribute(0, 0, "editing"), "none");
}

TEST_F(TableEditing, ScrollingClosesTheOpenRow) {
    fill(100);
    showDeletable();
    swipe(0, 1);
    scrollTo(500);
    EXPECT_FALSE(table.editing);
}

TEST_F(TableEditing, ReloadingClosesTheOpenRow) {
    showDeletable();
    swipe(0, 1);
    [table reloadData];
    EXPECT_FALSE(table.editing);
    EXPECT_FALSE(flag(0, 1, "open"));
}

TEST_F(TableEditing, TheOpenRowStaysOpenWhileRowsAboveItChange) {
    showDeletable();
    swipe(0, 1);
    model->sections[0].insert(model->sections[0].begin(), "new");
    [table insertRowsAtIndexPaths:paths({{0, 0}}) withRowAnimation:UITableViewRowAnimationAutomatic];
    EXPECT_TRUE(flag(0, 2, "open"));
    EXPECT_TRUE(table.editing);
}

TEST_F(TableEditing, TheDeleteButtonsTitleMayBeTheDelegates) {
    offer("tableView:titleForDeleteConfirmationButtonForRowAtIndexPath:");
    model->deleteTitle = @"Remove";
    showDeletable();
    swipe(0, 0);
    EXPECT_THAT(buttons(0, 0), ElementsAre("delete:Remove"));
    model->deleteTitle = nil;
    perform(0, 0, host::GestureKind::closeSwipe);
    swipe(0, 0);
    EXPECT_THAT(buttons(0, 0), ElementsAre("delete:Delete"));
}

TEST_F(TableEditing, RowsMayKeepTheirPlaceWhileEditing) {
    offer("tableView:shouldIndentWhileEditingRowAtIndexPath:");
    show();
    table.editing = YES;
    [table layoutIfNeeded];
    EXPECT_EQ([table cellForRowAtIndexPath:path(0, 0)].contentView.frame.origin.x, 0);
    EXPECT_EQ(attribute(0, 0, "editing"), "delete");
}

TEST_F(TableEditing, RowsThatScrollInAreInEditingModeToo) {
    fill(100);
    show();
    table.editing = YES;
    scrollTo(2000);
    const host::Element shown = tree();
    for (const host::Element *row : shown.all("Cell"))
        EXPECT_EQ(row->text("editing"), "delete");
    table.editing = NO;
    scrollTo(0);
    EXPECT_EQ(attribute(0, 0, "editing"), "none");
}

TEST_F(TableEditing, CellsAreToldOfTheirStates) {
    model->cell = [](UITableView *, NSIndexPath *) -> UITableViewCell * {
        return [[[StatefulCell alloc] initWithStyle:UITableViewCellStyleDefault
                                    reuseIdentifier:nil] autorelease];
    };
    show();
    auto *row = static_cast<StatefulCell *>([table cellForRowAtIndexPath:path(0, 0)]);
    table.editing = YES;
    tap(0, 0, "minus");
    table.editing = NO;
    EXPECT_THAT(row->states,
                ElementsAre("will 1", "did 1", "will 3", "did 3", "will 1", "did 1", "will 0", "did 0"));
}

TEST_F(TableEditing, PartsThatAreNotShownCannotBeTapped) {
    showDeletable();
    EXPECT_EQ(tap(0, 0, "minus"), Outcome::notThere);
    EXPECT_EQ(tap(0, 0, "delete"), Outcome::notThere);
    EXPECT_EQ(tap(0, 0, "nonsense"), Outcome::notThere);
}

TEST_F(TableEditing, TheTableElementSaysWhetherItIsEdited) {
    show();
    EXPECT_FALSE(tree().flag("editing"));
    table.editing = YES;
    EXPECT_TRUE(tree().flag("editing"));
}

} // namespace
