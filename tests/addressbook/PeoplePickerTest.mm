#import <AddressBookUI/AddressBookUI.h>
#import <UIKit/UIKit.h>

#include "AddressBook/Copies.h"
#include "AddressBookUI/PickerRules.h"
#include "Book.h"
#include "host/Control.h"
#include "host/Screen.h"
#include "host/Text.h"
#include "support/LockHolder.h"
#include "support/Person.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

/// Notes what the picker tells and asks; dismisses nothing by itself. What it can be asked is in the
/// subclasses.
@interface PickerDelegate : NSObject <ABPeoplePickerNavigationControllerDelegate> {
@public
    std::vector<std::string> calls;
    BOOL answer;
    BOOL dismisses;
}
- (void)note:(const char *)what person:(ABRecordRef)person;
@end

@implementation PickerDelegate

- (void)note:(const char *)what person:(ABRecordRef)person {
    calls.push_back(std::string(what) + " " + std::to_string(ABRecordGetRecordID(person)));
}

- (void)peoplePickerNavigationControllerDidCancel:(ABPeoplePickerNavigationController *)picker {
    calls.push_back("cancelled");
    if (dismisses)
        [picker dismissViewControllerAnimated:YES completion:NULL];
}

@end

/// Has the methods up to iOS 7.
@interface OldDelegate : PickerDelegate
@end

@implementation OldDelegate

- (BOOL)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)picker
      shouldContinueAfterSelectingPerson:(ABRecordRef)person {
    [self note:"continue?" person:person];
    if (dismisses)
        [picker dismissViewControllerAnimated:YES completion:NULL];
    return answer;
}

- (BOOL)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)picker
      shouldContinueAfterSelectingPerson:(ABRecordRef)person
                                property:(ABPropertyID)property
                              identifier:(ABMultiValueIdentifier)identifier {
    [self note:("continue " + std::to_string(property) + "?").c_str() person:person];
    return answer;
}

@end

/// Has the method of iOS 8 for people.
@interface PersonDelegate : PickerDelegate
@end

@implementation PersonDelegate

- (void)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)picker
                         didSelectPerson:(ABRecordRef)person {
    [self note:"person" person:person];
}

@end

/// Has the method of iOS 8 for values.
@interface ValueDelegate : PickerDelegate
@end

@implementation ValueDelegate

- (void)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)picker
                         didSelectPerson:(ABRecordRef)person
                                property:(ABPropertyID)property
                              identifier:(ABMultiValueIdentifier)identifier {
    [self note:("value " + std::to_string(property)).c_str() person:person];
}

@end

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PeoplePicker : public testing::Test {
protected:
    explicit PeoplePicker(host::DeviceOptions options = {}) : phone(std::move(options)) {
        phone.people.person("Ann", "Lee", "555-0100").number("555-0101", sim::label::work);
        phone.people.person("Bob", "Adams", "555-0102");
        phone.people.company("Example Ltd.", "555-0103");
        page = [UIViewController new];
        host::setRootController(page);
    }
    ~PeoplePicker() override {
        host::setPickerRules(host::PickerRules::oldMethodsFirst);
        [page release];
        [delegate release];
    }

    /// Presents a picker whose delegate is of this class.
    void open(Class kind = [OldDelegate class], NSArray *properties = nil) {
        delegate = [kind new];
        ABPeoplePickerNavigationController *picker = [[ABPeoplePickerNavigationController alloc] init];
        picker.peoplePickerDelegate = delegate;
        picker.displayedProperties = properties;
        [page presentViewController:picker animated:YES completion:NULL];
        [picker release];
        host::waitUntilIdle();
    }
    bool isOpen() const { return page.presentedViewController != nil; }

    book::DeviceWithBook phone;
    support::Person person;
    UIViewController *page = nil;
    PickerDelegate *delegate = nil;
};

TEST_F(PeoplePicker, ListsEverybodyUnderTheirLetters) {
    open();
    EXPECT_EQ(person.title(), "All Contacts");
    EXPECT_THAT(person.rows(), ElementsAre("Bob Adams", "Example Ltd.", "Ann Lee"));
    EXPECT_TRUE(person.sees("A"));
    EXPECT_TRUE(person.sees("L"));
    EXPECT_THAT(person.buttons(), Contains("Cancel"));
}

TEST_F(PeoplePicker, NamesAreShownInTheUsersOrder) {
    host::setNameOrder(0, 1);
    open();
    EXPECT_THAT(person.rows(), ElementsAre("Lee Ann", "Adams Bob", "Example Ltd."));
}

TEST_F(PeoplePicker, TheOldMethodIsAskedAndNoStaysOnTheList) {
    open();
    person.tap("Ann Lee");
    EXPECT_THAT(delegate->calls, ElementsAre("continue? 1"));
    EXPECT_EQ(person.title(), "All Contacts");
    EXPECT_TRUE(isOpen());
}

TEST_F(PeoplePicker, TheOldMethodsYesShowsTheCard) {
    open();
    delegate->answer = YES;
    person.tap("Ann Lee");
    EXPECT_EQ(person.title(), "Info");
    EXPECT_TRUE(person.sees("Ann Lee"));
    EXPECT_THAT(person.rows(), ElementsAre("mobile", "work"));
    EXPECT_EQ(person.valueOf("work"), "555-0101");
}

TEST_F(PeoplePicker, TheDelegateDismissesThePicker) {
    open();
    delegate->dismisses = YES;
    person.tap("Bob Adams");
    EXPECT_THAT(delegate->calls, ElementsAre("continue? 2"));
    EXPECT_FALSE(isOpen());
}

TEST_F(PeoplePicker, TheCardShowsOnlyTheDisplayedProperties) {
    phone.people.sql().run("INSERT INTO ABMultiValue (record_id, property, identifier, label, value, guid) "
                           "VALUES (1, 4, 9, NULL, 'ann@example.com', 'X')");
    open([OldDelegate class], [NSArray arrayWithObject:[NSNumber numberWithInt:kABPersonPhoneProperty]]);
    delegate->answer = YES;
    person.tap("Ann Lee");
    EXPECT_FALSE(person.sees("ann@example.com"));
    EXPECT_EQ(person.rows().size(), 2u);
}

TEST_F(PeoplePicker, WithoutAChoiceTheCardShowsEverything) {
    phone.people.sql().run("INSERT INTO ABMultiValue (record_id, property, identifier, label, value, guid) "
                           "VALUES (1, 4, 9, NULL, 'ann@example.com', 'X')");
    open();
    delegate->answer = YES;
    person.tap("Ann Lee");
    EXPECT_TRUE(person.sees("ann@example.com"));
}

TEST_F(PeoplePicker, AValuesYesCallsTheNumberAndNoDoesNothing) {
    open();
    delegate->answer = YES;
    person.tap("Ann Lee");
    delegate->answer = NO;
    host::forgetEvents();
    person.tap("work");
    EXPECT_THAT(host::eventTexts(host::EventKind::url), IsEmpty());
    delegate->answer = YES;
    person.tap("work");
    EXPECT_THAT(host::eventTexts(host::EventKind::url), ElementsAre("tel:555-0101"));
    EXPECT_THAT(delegate->calls, ElementsAre("continue? 1", "continue 3? 1", "continue 3? 1"));
}

TEST_F(PeoplePicker, TheNewMethodForPeopleDismissesThePicker) {
    open([PersonDelegate class]);
    person.tap("Ann Lee");
    EXPECT_THAT(delegate->calls, ElementsAre("person 1"));
    EXPECT_FALSE(isOpen());
}

TEST_F(PeoplePicker, WithTheNewMethodForValuesAloneTheCardIsShownFirst) {
    open([ValueDelegate class]);
    person.tap("Ann Lee");
    EXPECT_TRUE(isOpen());
    EXPECT_EQ(person.title(), "Info");
    person.tap("work");
    EXPECT_THAT(delegate->calls, ElementsAre("value 3 1"));
    EXPECT_FALSE(isOpen());
}

TEST_F(PeoplePicker, InTheWayOfIOS8TheOldMethodsAreNeverCalled) {
    host::setPickerRules(host::PickerRules::asOnIOS8);
    open();
    delegate->answer = YES;
    person.tap("Ann Lee");
    EXPECT_EQ(person.title(), "Info");
    person.tap("work");
    EXPECT_THAT(delegate->calls, IsEmpty());
    EXPECT_TRUE(isOpen());
}

TEST_F(PeoplePicker, WithoutADelegateTheCardOpensAndNothingElseHappens) {
    open([PickerDelegate class]);
    person.tap("Ann Lee");
    EXPECT_EQ(person.title(), "Info");
    person.tap("work");
    EXPECT_TRUE(isOpen());
}

TEST_F(PeoplePicker, CancelTellsTheDelegateAndOnIOS8DismissesThePicker) {
    open();
    person.tapButton("Cancel");
    EXPECT_THAT(delegate->calls, ElementsAre("cancelled"));
    EXPECT_FALSE(isOpen());
}

TEST_F(PeoplePicker, OnIOS7TheDelegateDismissesACancelledPicker) {
    host::setSystemVersion("7.1.2");
    open();
    person.tapButton("Cancel");
    EXPECT_THAT(delegate->calls, ElementsAre("cancelled"));
    EXPECT_TRUE(isOpen());
    delegate->dismisses = YES;
    person.tapButton("Cancel");
    EXPECT_FALSE(isOpen());
}

TEST_F(PeoplePicker, DismissingACancelledPickerAgainIsHarmless) {
    open();
    delegate->dismisses = YES;
    person.tapButton("Cancel");
    EXPECT_FALSE(isOpen());
    EXPECT_EQ(host::frontPage(), page);
}

TEST_F(PeoplePicker, TheCardCanBeCancelledToo) {
    open();
    delegate->answer = YES;
    person.tap("Ann Lee");
    person.tapButton("Cancel");
    EXPECT_THAT(delegate->calls, ElementsAre("continue? 1", "cancelled"));
    EXPECT_FALSE(isOpen());
}

TEST_F(PeoplePicker, BackLeadsFromTheCardToTheList) {
    open();
    delegate->answer = YES;
    person.tap("Ann Lee");
    person.back();
    EXPECT_EQ(person.title(), "All Contacts");
    EXPECT_EQ(person.rows().size(), 3u);
}

TEST_F(PeoplePicker, SearchShowsOnlyThoseFound) {
    open();
    person.type("Search", "lee");
    EXPECT_THAT(person.rows(), ElementsAre("Ann Lee"));
    person.tap("Ann Lee");
    EXPECT_THAT(delegate->calls, ElementsAre("continue? 1"));
    person.retype("Search", "nobody");
    EXPECT_THAT(person.rows(), IsEmpty());
    EXPECT_TRUE(person.sees("No Results"));
}

TEST_F(PeoplePicker, TheIndexLeadsToALetter) {
    for (int count = 0; count < 60; ++count)
        phone.people.person("Person", "Baker" + std::to_string(100 + count), std::nullopt);
    phone.people.person("Zoe", "Zimmer", std::nullopt);
    open();
    EXPECT_FALSE(person.sees("Zoe Zimmer"));
    person.tapButton("Z");
    EXPECT_TRUE(person.sees("Zoe Zimmer"));
    person.tapButton("A");
    EXPECT_TRUE(person.sees("Bob Adams"));
    person.tapButton("#");
    EXPECT_TRUE(person.sees("Zoe Zimmer"));
}

TEST_F(PeoplePicker, AnEmptyBookSaysSo) {
    phone.people.sql().run("DELETE FROM ABPerson");
    open();
    EXPECT_THAT(person.rows(), IsEmpty());
    EXPECT_TRUE(person.sees("No Contacts"));
}

TEST_F(PeoplePicker, AMissingBookIsAnEmptyOne) {
    phone.device.remove(book::kPath);
    open();
    EXPECT_TRUE(person.sees("No Contacts"));
    person.tapButton("Cancel");
    EXPECT_FALSE(isOpen());
}

TEST_F(PeoplePicker, ADamagedBookSaysSo) {
    phone.people.sql().run("DROP TABLE ABPerson");
    open();
    EXPECT_THAT(person.rows(), IsEmpty());
    EXPECT_TRUE(person.sees("Contacts Cannot Be Read"));
}

TEST_F(PeoplePicker, ALockedBookSaysSo) {
    support::LockHolder holder(phone.device.path(book::kPath), "UPDATE ABPerson SET First = 'Eve'");
    ASSERT_TRUE(holder.isHolding());
    open();
    EXPECT_TRUE(person.sees("Contacts Cannot Be Read"));
}

TEST_F(PeoplePicker, SomebodyWithoutAnyNameIsShownByTheNumber) {
    phone.people.person(std::nullopt, std::nullopt, "555-0199");
    phone.people.person(std::nullopt, std::nullopt, std::nullopt);
    open();
    EXPECT_TRUE(person.sees("555-0199"));
    EXPECT_TRUE(person.sees("No Name"));
}

TEST_F(PeoplePicker, TenThousandPeopleMakeOnlyAScreenfulOfRows) {
    phone.people.sql().run(
        "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 10000) "
        "INSERT INTO ABPerson (First, Last, guid) SELECT 'Person', 'No ' || i, 'G' || i FROM n");
    open();
    EXPECT_LT(host::screen().all("Cell").size(), 20u);
}

TEST_F(PeoplePicker, NothingThatItCopiedIsLeftBehind) {
    open();
    delegate->answer = YES;
    person.tap("Ann Lee");
    person.tapButton("Cancel");
    EXPECT_EQ(host::outstandingCopies(), 0);
}

class PeoplePickerInChinese : public PeoplePicker {
protected:
    PeoplePickerInChinese() : PeoplePicker({.language = "zh-Hans", .region = "CN"}) {}
};

TEST_F(PeoplePickerInChinese, SpeaksTheLanguageOfTheDevice) {
    open();
    EXPECT_EQ(person.title(), "所有联系人");
    EXPECT_THAT(person.buttons(), Contains("取消"));
    delegate->answer = YES;
    person.tap("Ann Lee");
    EXPECT_EQ(person.title(), "简介");
    EXPECT_THAT(person.rows(), ElementsAre("手机", "工作"));
}

} // namespace
