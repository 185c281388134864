// The owner's card: picked from the address book, named in the order that the user has set.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "AddressBook/Copies.h"
#include "Foundation/MethodCorrection.h"
#include "support/AddressBookBuilder.h"
#include "support/BundleState.h"

using support::text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

constexpr const char *addressBook = "/var/mobile/Library/AddressBook/AddressBook.sqlitedb";

using Saved = std::vector<std::pair<std::string, std::string>>; // key and value, in order

Saved saved;
std::vector<long> copiesWhenSaved; // the address book's copies that were still held
void (*saveSettings)(id, SEL, id, NSString *);

std::string described(id value) {
    if (!value)
        return "nothing";
    const std::string description = text([value description]);
    return [value isKindOfClass:[NSNumber class]] ? "number " + description : description;
}

void recordSaving(id page, SEL selector, id value, NSString *key) {
    if ([key hasPrefix:@"MyInfo"]) {
        saved.emplace_back(text(key), described(value));
        copiesWhenSaved.push_back(host::outstandingCopies());
    }
    saveSettings(page, selector, value, key);
}

class MyInfo : public support::BundleTest {
protected:
    MyInfo() {
        support::AddressBookBuilder(device.path(addressBook))
            .person("Ann", "Lee", "555-0101")
            .person({}, "Moss", "555-0102")
            .person("", "Nash", "555-0103")
            .person("Olga", "", "555-0104")
            .company("Acme", "555-0105");
        host::setNameOrder(0, 0);
    }

    // What the page saves leaves no trace by itself; this looks over its shoulder.
    void open() {
        BundleTest::open();
        if (!saveSettings)
            saveSettings = reinterpret_cast<decltype(saveSettings)>(host::replaceMethod(
                classNamed("ZelvoraSettingsController"), @selector(saveSettings:forKey:), IMP(recordSaving)));
        saved.clear();
        copiesWhenSaved.clear();
    }

    Saved pick(const std::string &name) {
        saved.clear();
        person.tap("My Info");
        person.tap(name);
        return saved;
    }
};

TEST_F(MyInfo, ThePickerShowsThePeopleWithTheirNumbers) {
    open();
    person.tap("My Info");
    EXPECT_TRUE(person.sees("Ann Lee"));
}

TEST_F(MyInfo, ThePickerAsksForPhoneNumbersAndReportsToThePage) {
    open();
    [rootPage() myInfoAction:nil];
    host::waitUntilIdle();
    ABPeoplePickerNavigationController *picker =
        static_cast<ABPeoplePickerNavigationController *>([rootPage() presentedViewController]);
    ASSERT_TRUE([picker isKindOfClass:[ABPeoplePickerNavigationController class]]);
    EXPECT_EQ([picker peoplePickerDelegate], rootPage());
    EXPECT_TRUE([[picker displayedProperties] isEqual:@[ [NSNumber numberWithInt:kABPersonPhoneProperty] ]]);
}

IMP freePicker;
int freedPickers = 0;

void countFreeing(id picker, SEL selector) {
    ++freedPickers;
    reinterpret_cast<void (*)(id, SEL)>(freePicker)(picker, selector);
}

TEST_F(MyInfo, ThePickerIsFreedWhenItIsDone) {
    freePicker = host::replaceMethod([ABPeoplePickerNavigationController class], @selector(dealloc),
                                     IMP(countFreeing));
    open();
    @autoreleasepool {
        person.tap("My Info");
        EXPECT_NE([rootPage() presentedViewController], nil);
        person.tapButton("Cancel");
    }
    EXPECT_EQ([rootPage() presentedViewController], nil);
    EXPECT_EQ(freedPickers, 1);
    @autoreleasepool {
        pick("Ann Lee");
    }
    EXPECT_EQ(freedPickers, 2);
}

TEST_F(MyInfo, PagesThatAreClosedTakeThePickerWithThem) {
    open();
    person.tap("My Info");
    host::closePages();
    EXPECT_EQ(person.title(), "Settings");
    open();
    EXPECT_EQ(person.title(), "Zelvora");
    person.tap("My Info");
    open();
    EXPECT_EQ(person.title(), "Zelvora");
    EXPECT_THAT(pick("Ann Lee"), testing::SizeIs(2));
}

TEST_F(MyInfo, AChosenPersonIsNamedFirstNameFirst) {
    open();
    EXPECT_THAT(pick("Ann Lee"), ElementsAre(Pair("MyInfoName", "Ann Lee"), Pair("MyInfo", "number 1")));
    EXPECT_EQ(person.title(), "Zelvora");
}

TEST_F(MyInfo, AChosenPersonIsNamedLastNameFirstWhereThatIsTheOrder) {
    host::setNameOrder(0, 1);
    open();
    EXPECT_THAT(pick("Lee Ann"), ElementsAre(Pair("MyInfoName", "Lee Ann"), Pair("MyInfo", "number 1")));
}

TEST_F(MyInfo, APersonWithOnlyALastNameHasThatName) {
    open();
    EXPECT_THAT(pick("Moss"), ElementsAre(Pair("MyInfoName", "Moss"), Pair("MyInfo", "number 2")));
}

TEST_F(MyInfo, AnEmptyNameCountsAsAbsent) {
    open();
    EXPECT_THAT(pick("Nash"), ElementsAre(Pair("MyInfoName", "Nash"), Pair("MyInfo", "number 3")));
    EXPECT_THAT(pick("Olga"), ElementsAre(Pair("MyInfoName", "Olga"), Pair("MyInfo", "number 4")));
}

TEST_F(MyInfo, ACompanyHasNoNameButItsRecord) {
    open();
    EXPECT_THAT(pick("Acme"), ElementsAre(Pair("MyInfoName", ""), Pair("MyInfo", "number 5")));
}

TEST_F(MyInfo, CancellingStoresNothing) {
    open();
    person.tap("My Info");
    person.tapButton("Cancel");
    EXPECT_THAT(saved, IsEmpty());
    EXPECT_EQ(person.title(), "Zelvora");
    EXPECT_EQ(person.valueOf("My Info"), "");
}

TEST_F(MyInfo, NothingIsShownBeforeOrAfterAChoice) {
    open();
    EXPECT_EQ(person.valueOf("My Info"), "");
    pick("Ann Lee");
    EXPECT_TRUE([[rootPage() getMyInfo:nil] isEqual:@""]);
    person.tap("Keypad");
    person.back();
    EXPECT_EQ(person.valueOf("My Info"), "");
}

TEST_F(MyInfo, AChoiceIsNotAnnounced) {
    open();
    pick("Ann Lee");
    host::advance(10);
    EXPECT_THAT(notifications(), IsEmpty());
}

TEST_F(MyInfo, TheNameThatTheStoreHoldsIsShown) {
    open();
    [support::sharedSettings() setObject:@"Ann Lee" forKey:@"MyInfoName"];
    person.tap("Keypad");
    person.back();
    EXPECT_EQ(person.valueOf("My Info"), "Ann Lee");
}

TEST_F(MyInfo, CopiesOfNamesAreGivenBackBeforeAnythingIsSaved) {
    open();
    ABAddressBookRef book = ABAddressBookCreateWithOptions(NULL, NULL);
    const long before = host::outstandingCopies();
    for (ABRecordID record = 1; record <= 5; ++record) {
        ABRecordRef card = ABAddressBookGetPersonWithRecordID(book, record);
        EXPECT_FALSE([rootPage() peoplePickerNavigationController:nil
                               shouldContinueAfterSelectingPerson:card]);
        EXPECT_EQ(host::outstandingCopies(), before) << record;
    }
    EXPECT_THAT(copiesWhenSaved, testing::AllOf(testing::SizeIs(10), testing::Each(before)));
    CFRelease(book);
}

TEST_F(MyInfo, ANumberThatIsNobodysIsSavedWithoutAName) {
    open();
    [rootPage() peoplePickerNavigationController:nil shouldContinueAfterSelectingPerson:NULL];
    EXPECT_THAT(saved, ElementsAre(Pair("MyInfoName", ""), Pair("MyInfo", "number -1")));
}

TEST_F(MyInfo, NoPropertyIsEverFollowed) {
    open();
    EXPECT_FALSE([rootPage() peoplePickerNavigationController:nil
                           shouldContinueAfterSelectingPerson:NULL
                                                     property:0
                                                   identifier:0]);
    EXPECT_THAT(saved, IsEmpty());
}

} // namespace
