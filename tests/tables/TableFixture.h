// A table with a data source and delegate that tests fill in and watch.
#pragma once

#import <UIKit/UITableView.h>

#include "UIKit/UIView+Host.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

/// Sections of texts. Answers to an optional method only when its selector is in `offers`; notes every call
/// of one that is not a mere question in `calls`.
@interface TableModel : NSObject <UITableViewDataSource, UITableViewDelegate> {
@public
    std::vector<std::vector<std::string>> sections;
    std::vector<std::string> headers, footers;
    std::set<std::string> offers;
    std::vector<std::string> calls;
    std::function<double(long section, long row)> height;
    std::function<UITableViewCell *(UITableView *table, NSIndexPath *path)> cell;
    std::function<void(UITableView *table, NSIndexPath *path)> commit;
    long rowQuestions, heightQuestions, cellsMade, cellsAsked;
    UITableViewCellStyle cellStyle;
    UITableViewCellEditingStyle editingStyle;
    std::set<long> fixedSections; ///< whose rows cannot be edited
    double headerHeight, footerHeight;
    UIView *headerView;
    NSArray *indexTitles;
    NSInteger sectionForIndex;
    NSIndexPath *selectInstead;
    BOOL refusesSelection, refusesDeselection, refusesHighlight;
    NSString *deleteTitle;
}
@end

class TableTest : public testing::Test {
protected:
    TableTest();
    ~TableTest() override;

    /// Makes the table and shows it on a 4-inch screen.
    UITableView *show(UITableViewStyle style = UITableViewStyleGrouped, double width = 320,
                      double height = 568);
    /// One section of `count` rows with the texts "0", "1", ...
    void fill(long count);
    void offer(const char *selector) { model->offers.insert(selector); }

    /// What the table shows now.
    host::Element tree();
    /// The element of a shown row, or null.
    const host::Element *cell(const host::Element &tree, long section, long row);
    /// The texts of the rows on screen, "section.row text".
    std::vector<std::string> shownRows();

    host::Outcome perform(long section, long row, host::GestureKind kind, const std::string &part = "");
    host::Outcome tap(long section, long row, const std::string &part = "") {
        return perform(section, row, host::GestureKind::tap, part);
    }
    host::Outcome swipe(long section, long row) { return perform(section, row, host::GestureKind::swipe); }
    void scrollTo(double offset);

    TableModel *model = nil;
    UITableView *table = nil;
};

NSIndexPath *path(long section, long row);
NSArray *paths(std::initializer_list<std::pair<long, long>> places);

/// The reason of the exception that `act` raises; empty when it raises none.
std::string reasonOf(NSString *exceptionName, const std::function<void()> &act);
