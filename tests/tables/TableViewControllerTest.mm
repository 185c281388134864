#import <UIKit/UITableViewController.h>

#import <UIKit/UINavigationController.h>
#import <UIKit/UITextField.h>
#import <UIKit/UIWindow.h>

#include "host/Control.h"
#include "host/Screen.h"
#include "support/Person.h"
#include "support/TestDevice.h"

#include <gtest/gtest.h>

/// A page of twenty text fields.
@interface FieldsController : UITableViewController
@end

@implementation FieldsController

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    return 20;
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath {
    UITableViewCell *cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                                    reuseIdentifier:nil] autorelease];
    UITextField *field = [[[UITextField alloc] initWithFrame:CGRectMake(15, 0, 290, 44)] autorelease];
    field.placeholder = [NSString stringWithFormat:@"field %ld", long(indexPath.row)];
    [cell.contentView addSubview:field];
    return cell;
}

@end

/// A page of three rows.
@interface ThreeRowsController : UITableViewController {
@public
    int asked;
}
@end

@implementation ThreeRowsController

- (NSInteger)tableView:(UITableView *)tableView numberOfRowsInSection:(NSInteger)section {
    ++asked;
    return 3;
}

- (UITableViewCell *)tableView:(UITableView *)tableView cellForRowAtIndexPath:(NSIndexPath *)indexPath {
    return [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                   reuseIdentifier:nil] autorelease];
}

@end

namespace {

class TableViewController : public testing::Test {
protected:
    TableViewController() { page = [[ThreeRowsController alloc] initWithStyle:UITableViewStyleGrouped]; }
    ~TableViewController() override { [page release]; }
    void appear() {
        page.view.frame = CGRectMake(0, 0, 320, 568);
        [page viewWillAppear:NO];
        [page.view layoutIfNeeded];
        [page viewDidAppear:NO];
    }

    ThreeRowsController *page = nil;
};

TEST_F(TableViewController, ItsViewIsTheTable) {
    EXPECT_EQ(static_cast<UIView *>(page.tableView), page.view);
    EXPECT_EQ(page.tableView.style, UITableViewStyleGrouped);
    ThreeRowsController *plain = [[ThreeRowsController new] autorelease];
    EXPECT_EQ(plain.tableView.style, UITableViewStylePlain);
}

TEST_F(TableViewController, DataSourceAndDelegateAreTheController) {
    EXPECT_EQ(static_cast<id>(page.tableView.dataSource), page);
    EXPECT_EQ(static_cast<id>(page.tableView.delegate), page);
}

TEST_F(TableViewController, HasOneSectionUnlessItSaysOtherwise) {
    appear();
    EXPECT_EQ([page.tableView numberOfSections], 1);
    EXPECT_EQ([[page.tableView visibleCells] count], 3u);
}

TEST_F(TableViewController, ReloadsBeforeTheFirstAppearanceOnly) {
    [page.tableView layoutIfNeeded];
    page->asked = 0;
    appear();
    EXPECT_EQ(page->asked, 1);
    appear();
    EXPECT_EQ(page->asked, 1);
}

TEST_F(TableViewController, ClearsTheSelectionAtEachAppearance) {
    appear();
    NSIndexPath *row = [NSIndexPath indexPathForRow:1 inSection:0];
    [page.tableView selectRowAtIndexPath:row animated:NO scrollPosition:UITableViewScrollPositionNone];
    appear();
    EXPECT_EQ([page.tableView indexPathForSelectedRow], nil);
    page.clearsSelectionOnViewWillAppear = NO;
    [page.tableView selectRowAtIndexPath:row animated:NO scrollPosition:UITableViewScrollPositionNone];
    appear();
    EXPECT_NE([page.tableView indexPathForSelectedRow], nil);
}

TEST_F(TableViewController, EditsItsTable) {
    appear();
    [page setEditing:YES animated:NO];
    EXPECT_TRUE(page.tableView.editing);
    [page setEditing:NO animated:NO];
    EXPECT_FALSE(page.tableView.editing);
}

TEST_F(TableViewController, WithoutRowsOfItsOwnTheTableIsEmpty) {
    UITableViewController *empty =
        [[[UITableViewController alloc] initWithStyle:UITableViewStylePlain] autorelease];
    [empty viewWillAppear:NO];
    EXPECT_EQ([empty.tableView numberOfRowsInSection:0], 0);
}

/// The page in a navigation controller on the screen.
UITableView *showOnScreen(UITableViewController *page) {
    UINavigationController *navigation =
        [[[UINavigationController alloc] initWithRootViewController:page] autorelease];
    host::setRootController(navigation);
    host::waitUntilIdle();
    return page.tableView;
}

TEST(TableViewControllerOnScreen, LiesUnderTheBarsWithItsFirstRowBelowThem) {
    const support::TestDevice device;
    FieldsController *page = [[[FieldsController alloc] initWithStyle:UITableViewStylePlain] autorelease];
    UITableView *table = showOnScreen(page);
    EXPECT_EQ(table.contentInset.top, 64);
    const host::Element screen = host::screen();
    EXPECT_EQ(screen.all("Cell").at(0)->rect.y, 64);
    EXPECT_EQ(screen.all("Table").at(0)->amount("page"), screen.amount("page"));
}

TEST(TableViewControllerOnScreen, KeepsTheRowThatIsTypedIntoAboveTheKeyboard) {
    const support::TestDevice device;
    const support::Person person;
    FieldsController *page = [[[FieldsController alloc] initWithStyle:UITableViewStylePlain] autorelease];
    UITableView *table = showOnScreen(page);
    person.type("field 9", "abc");
    const host::Element screen = host::screen();
    const host::Element field = person.field("field 9");
    EXPECT_EQ(field.value, "abc");
    EXPECT_LE(field.rect.y + field.rect.height, screen.all("Keyboard").at(0)->rect.y);
    EXPECT_EQ(table.contentInset.bottom, 216);
    person.scrollTo(1e6);
    EXPECT_EQ(table.contentOffset.y, 20 * 44 + 216 - 568);
    [table endEditing:YES];
    host::waitUntilIdle();
    EXPECT_EQ(table.contentInset.bottom, 0);
}

TEST(TableViewControllerOnScreen, KeepsItsRoomWhenTheTypingGoesOnInAnotherField) {
    const support::TestDevice device;
    const support::Person person;
    FieldsController *page = [[[FieldsController alloc] initWithStyle:UITableViewStylePlain] autorelease];
    UITableView *table = showOnScreen(page);
    person.type("field 0", "abc");
    person.type("field 6", "def");
    EXPECT_EQ(table.contentInset.bottom, 216);
    const host::Element field = person.focusedField();
    EXPECT_LE(field.rect.y + field.rect.height, 568 - 216);
}

TEST(TableViewControllerOnScreen, ScrollingDoesNotEndTheTyping) {
    const support::TestDevice device;
    const support::Person person;
    FieldsController *page = [[[FieldsController alloc] initWithStyle:UITableViewStylePlain] autorelease];
    showOnScreen(page);
    person.type("field 0", "abc");
    person.scrollTo(1e6);
    EXPECT_EQ(person.focusedField().type, "");
    const host::Gesture more{.kind = host::GestureKind::scroll, .amount = -64};
    EXPECT_EQ(host::perform(more), host::Outcome::done);
    EXPECT_EQ(person.focusedField().value, "abc");
}

} // namespace
