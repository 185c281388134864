// The number pickers as their table and their delegate see them, call by call.
#import "pickers/ZVSettingsSelectCallHistoryViewController.h"

#include "Dismissal.h"
#import "support/BundleTest.h"

#include "support/AddressBookBuilder.h"
#include "support/CallHistoryBuilder.h"
#include "support/Ownership.h"

using support::text;
using testing::ElementsAre;
using testing::IsEmpty;

/// A table that shows one cell, and writes down what it is asked.
@interface PickerTable : UITableView {
@public
    UITableViewCell *shown;    // what the table shows in every row
    UITableViewCell *reusable; // what it has to reuse
    std::vector<std::string> asked;
}
@end

@implementation PickerTable
- (id)dequeueReusableCellWithIdentifier:(NSString *)identifier {
    asked.push_back("reuse " + text(identifier));
    return reusable;
}
- (UITableViewCell *)cellForRowAtIndexPath:(NSIndexPath *)path {
    asked.push_back("cell " + std::to_string([path row]));
    return shown;
}
- (void)deselectRowAtIndexPath:(NSIndexPath *)path animated:(BOOL)animated {
    asked.push_back("deselect " + std::to_string([path row]) + (animated ? " animated" : ""));
}
- (void)reloadData {
    asked.emplace_back("reload all");
}
@end

/// Writes down what the picker says, and in which state picker and row were then.
@interface WatchingPickerOwner : NSObject <ZVSettingsSelectContactsViewControllerDelegate> {
@public
    ZVSettingsSelectContactsViewController *picker;
    PickerTable *table;
    std::vector<std::string> said;
    id record;
}
@end

@implementation WatchingPickerOwner
- (void)say:(const char *)what record:(NSDictionary *)tapped {
    id number = [tapped objectForKey:@"number"];
    const bool chosen = [[picker valueForKey:@"selects"] objectForKey:number] == [NSNull null];
    UIImage *image = [[table->shown imageView] image];
    const bool checked = image && image == [picker valueForKey:@"checkedImage"];
    said.push_back(std::string(what) + " " + text(number) + (chosen ? " chosen" : "") +
                   (checked ? " checked" : ""));
    record = tapped;
}
- (void)settingsSelectContactsViewControllerAdd:(NSDictionary *)added {
    [self say:"add" record:added];
}
- (void)settingsSelectContactsViewControllerRemove:(NSDictionary *)removed {
    [self say:"remove" record:removed];
}
- (void)settingsSelectContactsViewControllerDone:(ZVSettingsSelectContactsViewController *)sender {
    said.push_back(std::string(sender == picker ? "done" : "done by another") + " before " +
                   std::to_string(dismissal::requests.size()) + " dismissals");
}
@end

namespace {

constexpr const char *addressBook = "/var/mobile/Library/AddressBook/AddressBook.sqlitedb";
constexpr const char *storedata = "/var/mobile/Library/CallHistoryDB/CallHistory.storedata";
constexpr const char *callHistoryDb = "/var/wireless/Library/CallHistory/call_history.db";

class PickerCells : public support::BundleTest {
protected:
    explicit PickerCells(const host::DeviceOptions &options = support::tallPhone()) : BundleTest(options) {
        host::setNameOrder(0, 0);
        for (const char *name : {"checked.png", "notchecked.png"}) {
            NSData *image = [NSData dataWithContentsOfFile:text(std::string(ZV_PRODUCT_PATH "/") + name)];
            [image writeToFile:text(device.path(std::string("/Library/Zelvora/") + name)) atomically:YES];
        }
        table = [[[PickerTable alloc] initWithFrame:CGRectMake(0, 0, 320, 480)
                                              style:UITableViewStylePlain] autorelease];
        owner = [[[WatchingPickerOwner alloc] init] autorelease];
        owner->table = table;
    }

    [[nodiscard]] support::AddressBookBuilder newAddressBook() const {
        return support::AddressBookBuilder(device.path(addressBook));
    }

    ZVSettingsSelectContactsViewController *
    newPicker(NSArray *list = nil, const char *name = "ZVSettingsSelectContactsViewController") {
        ZVSettingsSelectContactsViewController *picker =
            [[[classNamed(name) alloc] initWithList:list] autorelease];
        [picker setDelegate:owner];
        owner->picker = picker;
        return picker;
    }

    UITableViewCell *cell(ZVSettingsSelectContactsViewController *picker, NSInteger row) {
        return [picker tableView:table cellForRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:0]];
    }

    void tap(ZVSettingsSelectContactsViewController *picker, NSInteger row) {
        [picker tableView:table didSelectRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:0]];
    }

    static std::string type(ZVSettingsSelectContactsViewController *picker, NSUInteger row) {
        return text([[[picker valueForKey:@"list"] objectAtIndex:row] objectForKey:@"type"]);
    }

    PickerTable *table = nil;
    WatchingPickerOwner *owner = nil;
};

TEST_F(PickerCells, AreAPlainTableWithDoneAlone) {
    ZVSettingsSelectContactsViewController *picker = newPicker();
    EXPECT_EQ([[picker tableView] style], UITableViewStylePlain);
    EXPECT_EQ([[picker tableView] numberOfSections], 1);
    EXPECT_EQ([[picker navigationItem] leftBarButtonItem], nil);
    UIBarButtonItem *done = [[picker navigationItem] rightBarButtonItem];
    EXPECT_EQ([done target], picker);
    EXPECT_TRUE(sel_isEqual([done action], @selector(doneButtonPressed:)));
}

TEST_F(PickerCells, StartWithTheNumbersOfTheList) {
    NSArray *list = @[ @{@"number" : @"1", @"name" : @"One"}, @{@"name" : @"None"}, @{@"number" : @""} ];
    NSDictionary *const numbers = @{@"1" : [NSNull null], @"" : [NSNull null]};
    ZVSettingsSelectContactsViewController *picker = newPicker(list);
    EXPECT_TRUE([[picker valueForKey:@"selects"] isEqual:numbers]);
    EXPECT_TRUE([[picker valueForKey:@"list"] isEqual:@[]]);
    EXPECT_TRUE([[newPicker() valueForKey:@"selects"] isEqual:@{}]);
}

TEST_F(PickerCells, GiveBackWhatTheyOwn) {
    newAddressBook().person("Ann", "Lee", "555-0101");
    support::expectGivesBack({"_selects", "_list", "_checkedImage", "_notcheckedImage"},
                             [this] { return newPicker(@[ @{@"number" : @"1"} ]); });
}

TEST_F(PickerCells, AreSetUpOnceAndFilledEachTime) {
    newAddressBook().person("Ann", "Lee", "555-0101").person({}, {}, "555-0102", "_$!<Home>!$_");
    ZVSettingsSelectContactsViewController *picker = newPicker();
    UITableViewCell *first = cell(picker, 1);
    EXPECT_EQ(text([first reuseIdentifier]), "Cell");
    EXPECT_TRUE([[[first textLabel] font] isEqual:[UIFont boldSystemFontOfSize:16]]);
    EXPECT_TRUE([[[first detailTextLabel] font] isEqual:[UIFont systemFontOfSize:15]]);
    EXPECT_TRUE([[[first detailTextLabel] textColor] isEqual:[UIColor grayColor]]);
    UILabel *label = (UILabel *)[first accessoryView];
    ASSERT_TRUE([label isKindOfClass:[UILabel class]]);
    EXPECT_TRUE([[label font] isEqual:[UIFont systemFontOfSize:14]]);
    EXPECT_TRUE([[label textColor] isEqual:[UIColor grayColor]]);
    EXPECT_EQ([label textAlignment], NSTextAlignmentRight);
    EXPECT_EQ(text([label text]), "mobile");
    const CGFloat width = [label frame].size.width;
    EXPECT_GT(width, 0);

    table->reusable = first;
    EXPECT_EQ(cell(picker, 0), first);
    EXPECT_EQ(text([[first textLabel] text]), "5550102");
    EXPECT_EQ([[first detailTextLabel] text], nil);
    EXPECT_EQ([first accessoryView], label);
    EXPECT_EQ(text([label text]), "home");
    EXPECT_NE([label frame].size.width, width) << "the label fits its text again";
    EXPECT_THAT(table->asked, ElementsAre("reuse Cell", "reuse Cell"));
}

TEST_F(PickerCells, FillAReusedCellThatHasNoAccessory) {
    newAddressBook().person("Ann", "Lee", "555-0101");
    table->reusable = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                              reuseIdentifier:@"Cell"] autorelease];
    UITableViewCell *filled = cell(newPicker(), 0);
    EXPECT_EQ(text([[filled textLabel] text]), "Ann Lee");
    EXPECT_EQ([filled accessoryView], nil);
}

TEST_F(PickerCells, TellTheirOwnerOfATapOnceItIsShown) {
    newAddressBook().person("Ann", "Lee", "555-0101");
    ZVSettingsSelectContactsViewController *picker = newPicker();
    table->shown = cell(picker, 0);
    table->asked.clear();
    tap(picker, 0);
    EXPECT_EQ(owner->record, [[picker valueForKey:@"list"] objectAtIndex:0]);
    tap(picker, 0);
    EXPECT_THAT(owner->said, ElementsAre("add 5550101 chosen checked", "remove 5550101"));
    EXPECT_EQ([[table->shown imageView] image], [picker valueForKey:@"notcheckedImage"]);
    EXPECT_THAT(table->asked, ElementsAre("deselect 0", "cell 0", "deselect 0", "cell 0"));
}

TEST_F(PickerCells, TakeATapOnARowThatIsNotShown) {
    newAddressBook().person("Ann", "Lee", "555-0101");
    ZVSettingsSelectContactsViewController *picker = newPicker();
    tap(picker, 0);
    EXPECT_THAT(owner->said, ElementsAre("add 5550101 chosen"));
}

TEST_F(PickerCells, HaveNothingToSayOfRowsThatTheyDoNotHave) {
    ZVSettingsSelectContactsViewController *picker = newPicker();
    for (NSInteger row : {NSInteger(0), NSInteger(-1), NSIntegerMax}) {
        tap(picker, row);
        EXPECT_EQ(text([[cell(picker, row) textLabel] text]), "");
    }
    EXPECT_THAT(owner->said, IsEmpty());
}

TEST_F(PickerCells, TellTheirOwnerOfDoneBeforeTheyAskToBeDismissed) {
    ZVSettingsSelectContactsViewController *picker = newPicker();
    dismissal::listenTo([picker class]);
    [picker doneButtonPressed:nil];
    EXPECT_THAT(owner->said, ElementsAre("done before 0 dismissals"));
    EXPECT_THAT(dismissal::requests, ElementsAre("animated and then"));
}

TEST_F(PickerCells, FindNothingDialableInATextThatIsNoUnicode) {
    NSString *cut = [@"12\U0001F600" substringToIndex:3];
    EXPECT_THAT(text([newPicker() keypadString:cut]), testing::AnyOf("", "12"));
}

TEST_F(PickerCells, NameContactsInTheOrderOfThePhone) {
    newAddressBook().person("Ann", "Lee", "555-0101").person("Li", "Na", "555-0102");
    host::setNameOrder(1, 0);
    ZVSettingsSelectContactsViewController *picker = newPicker();
    EXPECT_EQ(text([[cell(picker, 0) textLabel] text]), "NaLi");
    EXPECT_EQ(text([[cell(picker, 1) textLabel] text]), "Lee Ann");
}

TEST_F(PickerCells, ReadTheHistoryOfTheSystemThatRuns) {
    const double anHourAgo = [[NSDate date] timeIntervalSince1970] - 3600;
    support::CallHistoryBuilder(device.path(storedata), zv::CallHistorySchema::coreData)
        .call("555-0108", anHourAgo);
    support::CallHistoryBuilder(device.path(callHistoryDb), zv::CallHistorySchema::keyValue)
        .call("555-0107", anHourAgo);
    const char *recentCalls = "ZVSettingsSelectCallHistoryViewController";
    EXPECT_EQ(text([[cell(newPicker(nil, recentCalls), 0) textLabel] text]), "5550108");
    EXPECT_THAT(type(owner->picker, 0), testing::Not(testing::MatchesRegex("[0-9][0-9]:[0-9][0-9]")));
    host::setSystemVersion("7.1.2");
    EXPECT_EQ(text([[cell(newPicker(nil, recentCalls), 0) textLabel] text]), "5550107");
    EXPECT_THAT(type(owner->picker, 0), testing::MatchesRegex("[0-9][0-9]:[0-9][0-9]"));
}

class ChinesePickerCells : public PickerCells {
protected:
    ChinesePickerCells() : PickerCells(support::tallPhone("zh-Hans", "CN")) {}
};

TEST_F(ChinesePickerCells, LabelNumbersInThePhonesLanguage) {
    newAddressBook().person("芳", "王", "555-0101", "_$!<Home>!$_").person("Ann", {}, "555-0102", "Boat");
    ZVSettingsSelectContactsViewController *picker = newPicker();
    EXPECT_EQ(type(picker, 0), "Boat");
    EXPECT_EQ(type(picker, 1), "住宅");
}

} // namespace
