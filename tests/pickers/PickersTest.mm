// The pickers of contact numbers and of recent calls, by themselves.
#import "pickers/ZVSettingsSelectCallHistoryViewController.h"
#import "support/BundleTest.h"

#include "support/AddressBookBuilder.h"
#include "support/CallHistoryBuilder.h"

using support::text;
using testing::ElementsAre;
using testing::IsEmpty;

/// A page that opens a picker and writes down what it says: "add 123", "remove 123", "done".
@interface PickerOwner : NSObject <ZVSettingsSelectContactsViewControllerDelegate> {
@public
    std::vector<std::string> said;
    NSDictionary *lastRecord;
}
@end

@implementation PickerOwner
- (void)settingsSelectContactsViewControllerAdd:(NSDictionary *)record {
    said.push_back("add " + text([record objectForKey:@"number"]));
    lastRecord = record;
}
- (void)settingsSelectContactsViewControllerRemove:(NSDictionary *)record {
    said.push_back("remove " + text([record objectForKey:@"number"]));
    lastRecord = record;
}
- (void)settingsSelectContactsViewControllerDone:(ZVSettingsSelectContactsViewController *)picker {
    said.push_back("done");
}
@end

namespace {

using Row = support::Row;

constexpr const char *addressBook = "/var/mobile/Library/AddressBook/AddressBook.sqlitedb";
constexpr const char *storedata = "/var/mobile/Library/CallHistoryDB/CallHistory.storedata";
constexpr double someMoment = 1425600000; // 6 March 2015, 00:00 UTC

class Pickers : public support::BundleTest {
protected:
    Pickers() {
        host::setNameOrder(0, 0);
        owner = [[[PickerOwner alloc] init] autorelease];
    }

    /// The product's images, as they are installed.
    void installImages() {
        for (const char *name : {"checked.png", "notchecked.png"}) {
            NSData *image = [NSData dataWithContentsOfFile:text(std::string(ZV_PRODUCT_PATH "/") + name)];
            ASSERT_NE(image, nil) << name;
            [image writeToFile:text(device.path(std::string("/Library/Zelvora/") + name)) atomically:YES];
        }
    }

    [[nodiscard]] support::AddressBookBuilder newAddressBook() const {
        return support::AddressBookBuilder(device.path(addressBook));
    }

    ZVSettingsSelectContactsViewController *
    newPicker(NSArray *list = nil, const char *name = "ZVSettingsSelectContactsViewController") {
        ZVSettingsSelectContactsViewController *picker =
            [[[classNamed(name) alloc] initWithList:list] autorelease];
        [picker setDelegate:owner];
        return picker;
    }

    void show(ZVSettingsSelectContactsViewController *picker) {
        open();
        UINavigationController *stack =
            [[[UINavigationController alloc] initWithRootViewController:picker] autorelease];
        [[(UIViewController *)rootPage() navigationController] presentViewController:stack
                                                                            animated:YES
                                                                          completion:nil];
        host::waitUntilIdle();
    }

    void show(NSArray *list = nil) { show(newPicker(list)); }

    /// File name of the mark of a row.
    [[nodiscard]] std::string mark(const std::string &name) const {
        const host::Element row = person.row(name);
        const auto images = row.all("Image");
        if (images.empty())
            return "";
        const std::string path = images.front()->text("image");
        return path.substr(path.rfind('/') + 1);
    }

    PickerOwner *owner;
};

TEST_F(Pickers, WithoutContactsShowAnEmptyTableAndClose) {
    show();
    EXPECT_THAT(person.rows(), IsEmpty());
    EXPECT_THAT(person.buttons(), ElementsAre("Done"));
    person.tap("Done");
    EXPECT_THAT(owner->said, ElementsAre("done"));
    EXPECT_EQ(person.title(), "Zelvora");
}

TEST_F(Pickers, WithoutRecentCallsShowAnEmptyTableAndClose) {
    newAddressBook().person("Ann", "Lee", "555-0101");
    show(newPicker(nil, "ZVSettingsSelectCallHistoryViewController"));
    EXPECT_THAT(person.rows(), IsEmpty());
    person.tap("Done");
    EXPECT_THAT(owner->said, ElementsAre("done"));
}

TEST_F(Pickers, ShowANumberThatTheListHoldsChecked) {
    installImages();
    newAddressBook().person("Ann", "Lee", "555-0101").person("Bob", "Lee", "555-0102");
    show(@[ @{@"number" : @"5550101", @"name" : @""}, @{@"name" : @"no number"} ]);
    EXPECT_THAT(mark("Ann Lee"), testing::StartsWith("checked"));
    EXPECT_THAT(mark("Bob Lee"), testing::StartsWith("notchecked"));
    person.tap("Ann Lee");
    EXPECT_THAT(owner->said, ElementsAre("remove 5550101"));
    EXPECT_EQ(text([owner->lastRecord objectForKey:@"name"]), "Ann Lee");
    EXPECT_THAT(mark("Ann Lee"), testing::StartsWith("notchecked"));
}

TEST_F(Pickers, ToggleARowThatIsTappedTwice) {
    installImages();
    newAddressBook().person("Ann", "Lee", "555-0101");
    show();
    person.tap("Ann Lee");
    EXPECT_THAT(mark("Ann Lee"), testing::StartsWith("checked"));
    NSDictionary *record = owner->lastRecord;
    person.tap("Ann Lee");
    EXPECT_THAT(mark("Ann Lee"), testing::StartsWith("notchecked"));
    EXPECT_EQ(owner->lastRecord, record);
    EXPECT_THAT(owner->said, ElementsAre("add 5550101", "remove 5550101"));
}

TEST_F(Pickers, ToggleByNumberButRedrawOnlyTheTappedRow) {
    installImages();
    newAddressBook().person("Ann", "Lee", "555-0101").person("Home", "Lee", "555-0101");
    ZVSettingsSelectContactsViewController *picker = newPicker();
    show(picker);
    person.tap("Ann Lee");
    EXPECT_THAT(mark("Ann Lee"), testing::StartsWith("checked"));
    EXPECT_THAT(mark("Home Lee"), testing::StartsWith("notchecked"));
    [[picker tableView] reloadData];
    host::waitUntilIdle();
    EXPECT_THAT(mark("Home Lee"), testing::StartsWith("checked"));
    person.tap("Home Lee");
    EXPECT_THAT(owner->said, ElementsAre("add 5550101", "remove 5550101"));
}

TEST_F(Pickers, ShowNameNumberAndLabel) {
    newAddressBook().person("Ann", "Lee", "555-0101").person({}, {}, "555-0102").person("", {}, "555-0103");
    show();
    EXPECT_THAT(rows(0), ElementsAre(Row{"", "5550103"}, Row{"5550102", ""}, Row{"Ann Lee", "5550101"}));
    const host::Element row = person.row("Ann Lee");
    const auto texts = row.all("StaticText");
    ASSERT_EQ(texts.size(), 3U);
    EXPECT_EQ(texts[0]->label, "Ann Lee");
    EXPECT_EQ(texts[0]->text("weight"), "bold");
    EXPECT_EQ(texts[0]->amount("size"), 16);
    EXPECT_EQ(texts[1]->label, "5550101");
    EXPECT_EQ(texts[1]->text("color"), "#808080");
    EXPECT_EQ(texts[1]->amount("size"), 15);
    EXPECT_EQ(texts[2]->label, "mobile");
    EXPECT_EQ(texts[2]->text("role"), "accessory");
    EXPECT_EQ(texts[2]->text("align"), "right");
    EXPECT_EQ(texts[2]->text("color"), "#808080");
    EXPECT_EQ(texts[2]->amount("size"), 14);
}

TEST_F(Pickers, WithoutTheirImagesShowNoMarks) {
    newAddressBook().person("Ann", "Lee", "555-0101");
    show();
    EXPECT_EQ(mark("Ann Lee"), "");
    person.tap("Ann Lee");
    EXPECT_EQ(mark("Ann Lee"), "");
    EXPECT_THAT(owner->said, ElementsAre("add 5550101"));
}

TEST_F(Pickers, IgnoreTapsOnRecordsWithoutANumber) {
    installImages();
    ZVSettingsSelectContactsViewController *picker = newPicker();
    [[picker valueForKey:@"list"] addObject:[NSMutableDictionary dictionaryWithObject:@"Nobody"
                                                                               forKey:@"name"]];
    show(picker);
    EXPECT_THAT(mark("Nobody"), testing::StartsWith("notchecked"));
    person.tap("Nobody");
    EXPECT_THAT(owner->said, IsEmpty());
    EXPECT_THAT(mark("Nobody"), testing::StartsWith("notchecked"));
}

TEST_F(Pickers, ReuseTheirCellsWithoutLeftovers) {
    auto book = newAddressBook();
    for (int person = 100; person < 300; ++person)
        book.person(person % 2 ? support::Text() : "Name" + std::to_string(person), {},
                    "5550" + std::to_string(person));
    ZVSettingsSelectContactsViewController *picker = newPicker();
    show(picker);
    person.scrollTo(44 * 60);
    for (const Row &row : rows(0))
        EXPECT_EQ(row.detail.empty(), row.text.starts_with("5550")) << row;
}

TEST_F(Pickers, KeepOnlyDialableCharacters) {
    ZVSettingsSelectContactsViewController *picker = newPicker();
    EXPECT_EQ(text([picker keypadString:@"+1 (555) 010-9999"]), "+15550109999");
    EXPECT_EQ(text([picker keypadString:@"(0) 123,45;6#"]), "0123,45;6#");
    EXPECT_EQ(text([picker keypadString:@"+1 555-010-7777"]), "+15550107777");
    EXPECT_EQ(text([picker keypadString:@"*#06#"]), "*#06#");
    EXPECT_EQ(text([picker keypadString:@"1,2;3"]), "1,2;3");
    EXPECT_EQ(text([picker keypadString:@"ABC"]), "");
    for (NSString *nothing in @[ @"", @"ext." ])
        EXPECT_EQ([[picker keypadString:nothing] length], 0U);
    EXPECT_NE([picker keypadString:nil], nil);
    NSString *digits = [@"" stringByPaddingToLength:300 withString:@"7" startingAtIndex:0];
    EXPECT_EQ([[picker keypadString:digits] length], 255U);
}

TEST_F(Pickers, OwnTheirDelegateUntilTheyGo) {
    const NSUInteger before = [owner retainCount];
    @autoreleasepool {
        ZVSettingsSelectContactsViewController *picker = newPicker();
        EXPECT_EQ([owner retainCount], before + 1);
        (void)picker;
    }
    EXPECT_EQ([owner retainCount], before);
}

TEST_F(Pickers, OfRecentCallsNameWhoIsInTheContacts) {
    newAddressBook().person("Ann", "Lee", "555-0101");
    support::CallHistoryBuilder(device.path(storedata), zv::CallHistorySchema::coreData)
        .call("5550101", someMoment)
        .call("555-0109", someMoment + 60);
    show(newPicker(nil, "ZVSettingsSelectCallHistoryViewController"));
    EXPECT_THAT(rows(0), ElementsAre(Row{"5550109", ""}, Row{"Ann Lee", "5550101"}));
}

} // namespace
