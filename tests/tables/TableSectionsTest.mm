#include "TableFixture.h"

#import <UIKit/UIColor.h>
#import <UIKit/UIFont.h>
#import <UIKit/UILabel.h>

#include "host/Text.h"

using testing::ElementsAre;

namespace {

class TableSections : public TableTest {
protected:
    void showWithTitles(UITableViewStyle style = UITableViewStyleGrouped, double width = 320) {
        offer("tableView:titleForHeaderInSection:");
        offer("tableView:titleForFooterInSection:");
        show(style, width);
    }
    double headerHeight(long section) { return [table rectForHeaderInSection:section].size.height; }
    double footerHeight(long section) { return [table rectForFooterInSection:section].size.height; }
};

TEST_F(TableSections, GroupsWithoutTextsBegin35BelowTheTopAnd35Apart) {
    model->sections = {{"a"}, {"b"}};
    show();
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 0)].origin.y, 35);
    EXPECT_EQ([table rectForRowAtIndexPath:path(1, 0)].origin.y, 35 + 44 + 35);
    EXPECT_EQ(table.contentSize.height, 35 + 44 + 35 + 44 + 17.5);
}

TEST_F(TableSections, AHeaderTextMakesTheFirstGroupBegin55AndAHalfBelowTheTop) {
    model->sections = {{"a"}, {"b"}};
    model->headers = {"General", "More"};
    showWithTitles();
    EXPECT_EQ(headerHeight(0), 55.5);
    EXPECT_EQ(headerHeight(1), 38);
}

TEST_F(TableSections, HeadersOfGroupsAreInCapitals) {
    model->sections = {{"a"}};
    model->headers = {"Größe"};
    showWithTitles();
    const host::Element shown = tree();
    const host::Element *header = shown.all("StaticText").at(0);
    EXPECT_EQ(header->label, "GRÖSSE");
    EXPECT_EQ(header->text("role"), "header");
    EXPECT_EQ(header->text("color"), "#6d6d72");
    EXPECT_EQ(header->amount("size"), 13);
    EXPECT_EQ(header->rect.x, 15);
    EXPECT_EQ(header->rect.y + header->rect.height, headerHeight(0) - 7);
}

TEST_F(TableSections, FootersAreAsWritten) {
    model->sections = {{"a"}};
    model->footers = {"Reject calls."};
    showWithTitles();
    const host::Element shown = tree();
    const host::Element *footer = shown.all("StaticText").back();
    EXPECT_EQ(footer->label, "Reject calls.");
    EXPECT_EQ(footer->text("role"), "footer");
    EXPECT_EQ(footer->rect.y, 35 + 44 + 8);
    EXPECT_EQ(footerHeight(0), 8 + 16 + 7);
}

TEST_F(TableSections, LongFootersWrap) {
    model->sections = {{"a"}};
    model->footers = {
        "Calls from numbers on this list are rejected before the phone rings. The other side hears the "
        "busy tone."};
    showWithTitles();
    EXPECT_EQ(footerHeight(0), 8 + 3 * 16 + 7);
}

TEST_F(TableSections, FootersWrapAnewWhenTheWidthChanges) {
    model->sections = {{"a"}};
    model->footers = {
        "Calls from numbers on this list are rejected before the phone rings. The other side hears the "
        "busy tone."};
    showWithTitles();
    const long asked = model->rowQuestions;
    table.frame = CGRectMake(0, 0, 568, 320);
    [table layoutIfNeeded];
    EXPECT_EQ(footerHeight(0), 8 + 2 * 16 + 7);
    EXPECT_EQ(model->rowQuestions, asked);
}

TEST_F(TableSections, OnTheWidestPhoneTextsStand20FromTheEdge) {
    model->sections = {{"a"}};
    model->headers = {"General"};
    showWithTitles(UITableViewStyleGrouped, 414);
    const host::Element shown = tree();
    EXPECT_EQ(shown.all("StaticText").at(0)->rect.x, 20);
}

TEST_F(TableSections, PlainTablesHaveNoGaps) {
    model->sections = {{"a"}, {"b"}};
    show(UITableViewStylePlain);
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 0)].origin.y, 0);
    EXPECT_EQ([table rectForRowAtIndexPath:path(1, 0)].origin.y, 44);
    EXPECT_EQ(table.contentSize.height, 88);
}

TEST_F(TableSections, HeadersOfPlainTablesStayAtTheTopWhileTheirSectionIsOnScreen) {
    std::vector<std::string> many(30, "row");
    model->sections = {many, many};
    model->headers = {"A", "B"};
    showWithTitles(UITableViewStylePlain);
    EXPECT_EQ(headerHeight(0), 28);
    scrollTo(500);
    EXPECT_EQ([table headerViewForSection:0].frame.origin.y, 500);
    EXPECT_EQ(host::utf8([table headerViewForSection:0].textLabel.text), "A");
    const double second = [table rectForSection:1].origin.y;
    scrollTo(second - 10);
    EXPECT_EQ([table headerViewForSection:0].frame.origin.y, second - 28);
    EXPECT_EQ([table headerViewForSection:1].frame.origin.y, second);
}

TEST_F(TableSections, TheDelegatesHeightsOfHeadersAndFootersCount) {
    model->sections = {{"a"}, {"b"}};
    offer("tableView:heightForHeaderInSection:");
    offer("tableView:heightForFooterInSection:");
    model->headerHeight = 60;
    model->footerHeight = 0.01;
    show();
    EXPECT_EQ(headerHeight(0), 60);
    EXPECT_NEAR(footerHeight(1), 0.01, 1e-9);
}

TEST_F(TableSections, AHeightOfNothingMeansTheUsualOneInGroupedTables) {
    model->sections = {{"a"}, {"b"}};
    offer("tableView:heightForHeaderInSection:");
    show();
    EXPECT_EQ(headerHeight(0), 35);
    EXPECT_EQ(headerHeight(1), 17.5);
    model->headerHeight = UITableViewAutomaticDimension;
    [table reloadData];
    EXPECT_EQ(headerHeight(1), 17.5);
}

TEST_F(TableSections, AHeightOfNothingMeansNoHeaderInPlainTables) {
    model->sections = {{"a"}};
    model->headers = {"A"};
    offer("tableView:heightForHeaderInSection:");
    showWithTitles(UITableViewStylePlain);
    EXPECT_EQ(headerHeight(0), 0);
    EXPECT_EQ([table headerViewForSection:0], nil);
}

TEST_F(TableSections, TheTablesOwnHeightsCountForAllSections) {
    model->sections = {{"a"}, {"b"}};
    show();
    table.sectionHeaderHeight = 20;
    table.sectionFooterHeight = 5;
    [table layoutIfNeeded];
    EXPECT_EQ(headerHeight(0), 20);
    EXPECT_EQ(footerHeight(1), 5);
}

TEST_F(TableSections, AViewOfTheDelegateTakesTheTitlesPlace) {
    model->sections = {{"a"}};
    model->headers = {"General"};
    offer("tableView:viewForHeaderInSection:");
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    label.text = @"my own";
    model->headerView = label;
    showWithTitles();
    const host::Element shown = tree();
    EXPECT_EQ(shown.all("StaticText").at(0)->label, "my own");
    EXPECT_EQ(label.frame.size.height, 55.5);
    EXPECT_EQ([table headerViewForSection:0], nil);
}

TEST_F(TableSections, TheDelegateSeesTextsBeforeTheyAreShown) {
    model->sections = {{"a"}};
    model->headers = {"General"};
    model->footers = {"Footer"};
    offer("tableView:willDisplayHeaderView:forSection:");
    offer("tableView:willDisplayFooterView:forSection:");
    showWithTitles();
    EXPECT_THAT(model->calls, ElementsAre("willDisplayHeader 0", "willDisplayFooter 0"));
}

TEST_F(TableSections, ASectionWithoutRowsStillShowsItsTexts) {
    model->sections = {{}, {"b"}};
    model->footers = {"Only a footer"};
    showWithTitles();
    const host::Element shown = tree();
    EXPECT_EQ(shown.all("StaticText").at(0)->label, "Only a footer");
}

TEST_F(TableSections, TextsOffScreenHaveNoViews) {
    for (int section = 0; section < 1000; ++section) {
        model->sections.push_back({"row"});
        model->headers.push_back("Title");
    }
    showWithTitles();
    EXPECT_LT([[table subviews] count], 40u);
    scrollTo(40'000);
    EXPECT_LT([[table subviews] count], 40u);
    EXPECT_EQ([table headerViewForSection:0], nil);
}

TEST_F(TableSections, ElementsComeInTheOrderOfTheTable) {
    model->sections = {{"a"}, {"b"}};
    model->headers = {"one", "two"};
    model->footers = {"first", "second"};
    showWithTitles();
    std::vector<std::string> labels;
    for (const host::Element &child : tree().children)
        labels.push_back(child.label);
    EXPECT_THAT(labels, ElementsAre("ONE", "a", "first", "TWO", "b", "second"));
}

TEST_F(TableSections, TheTablesOwnHeaderAndFooterStandAroundTheSections) {
    fill(1);
    show();
    UILabel *top = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 0, 80)] autorelease];
    UILabel *bottom = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 0, 30)] autorelease];
    top.text = @"top";
    bottom.text = @"bottom";
    table.tableHeaderView = top;
    table.tableFooterView = bottom;
    [table layoutIfNeeded];
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 0)].origin.y, 80 + 35);
    EXPECT_EQ(bottom.frame.origin.y, 80 + 35 + 44 + 17.5);
    EXPECT_EQ(top.frame.size.width, 320);
    EXPECT_EQ(table.contentSize.height, 80 + 35 + 44 + 17.5 + 30);
    EXPECT_EQ(tree().children.front().label, "top");
    EXPECT_EQ(tree().children.back().label, "bottom");
    table.tableHeaderView = nil;
    [table layoutIfNeeded];
    EXPECT_EQ([table rectForRowAtIndexPath:path(0, 0)].origin.y, 35);
    EXPECT_EQ(top.superview, nil);
}

} // namespace
