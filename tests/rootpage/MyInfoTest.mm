// The owner's card: picked from the address book, named in the order that the user has set.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "support/AddressBookBuilder.h"

#include <objc/runtime.h>

using support::text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

constexpr const char *addressBook = "/var/mobile/Library/AddressBook/AddressBook.sqlitedb";

using Saved = std::vector<std::pair<std::string, std::string>>; // key and value, in order

Saved saved;
void (*saveSettings)(id, SEL, id, NSString *);

void recordSaving(id page, SEL selector, id value, NSString *key) {
    if ([key hasPrefix:@"MyInfo"])
        saved.emplace_back(text(key), text([value description]));
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
        Method method =
            class_getInstanceMethod(classNamed("ZelvoraSettingsController"), @selector(saveSettings:forKey:));
        if (!saveSettings)
            saveSettings =
                reinterpret_cast<decltype(saveSettings)>(method_setImplementation(method, IMP(recordSaving)));
        saved.clear();
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

TEST_F(MyInfo, AChosenPersonIsNamedFirstNameFirst) {
    open();
    EXPECT_THAT(pick("Ann Lee"), ElementsAre(Pair("MyInfoName", "Ann Lee"), Pair("MyInfo", "1")));
    EXPECT_EQ(person.title(), "Zelvora");
}

TEST_F(MyInfo, AChosenPersonIsNamedLastNameFirstWhereThatIsTheOrder) {
    host::setNameOrder(0, 1);
    open();
    EXPECT_THAT(pick("Lee Ann"), ElementsAre(Pair("MyInfoName", "Lee Ann"), Pair("MyInfo", "1")));
}

TEST_F(MyInfo, APersonWithOnlyALastNameHasThatName) {
    open();
    EXPECT_THAT(pick("Moss"), ElementsAre(Pair("MyInfoName", "Moss"), Pair("MyInfo", "2")));
}

TEST_F(MyInfo, AnEmptyNameCountsAsAbsent) {
    open();
    EXPECT_THAT(pick("Nash"), ElementsAre(Pair("MyInfoName", "Nash"), Pair("MyInfo", "3")));
    EXPECT_THAT(pick("Olga"), ElementsAre(Pair("MyInfoName", "Olga"), Pair("MyInfo", "4")));
}

TEST_F(MyInfo, ACompanyHasNoNameButItsRecord) {
    open();
    EXPECT_THAT(pick("Acme"), ElementsAre(Pair("MyInfoName", ""), Pair("MyInfo", "5")));
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
    EXPECT_EQ(text([rootPage() getMyInfo:nil]), "");
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

TEST_F(MyInfo, CopiesOfNamesAreGivenBack) {
    open();
    ABAddressBookRef book = ABAddressBookCreateWithOptions(NULL, NULL);
    ABRecordRef ann = ABAddressBookGetPersonWithRecordID(book, 1);
    NSString *first = (NSString *)ABRecordCopyValue(ann, kABPersonFirstNameProperty);
    NSString *last = (NSString *)ABRecordCopyValue(ann, kABPersonLastNameProperty);
    const NSUInteger before = [first retainCount] + [last retainCount];
    @autoreleasepool {
        [rootPage() peoplePickerNavigationController:nil shouldContinueAfterSelectingPerson:ann];
    }
    EXPECT_EQ([first retainCount] + [last retainCount], before);
    EXPECT_EQ(saved.size(), 2U);
    CFRelease(first);
    CFRelease(last);
    CFRelease(book);
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
