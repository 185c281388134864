#import <AddressBook/AddressBook.h>
#import <Foundation/Foundation.h>

#include "AddressBook/Copies.h"
#include "Book.h"
#include "host/Text.h"

#include <gtest/gtest.h>

namespace {

/// Takes over a copied value and gives its text; "NULL" for none.
std::string taken(CFTypeRef value) {
    if (!value)
        return "NULL";
    const std::string text = host::utf8((NSString *)value);
    CFRelease(value);
    return text;
}

class Record : public testing::Test {
protected:
    explicit Record(host::DeviceOptions options = {}) : phone(std::move(options)) {}
    ~Record() override {
        if (addressBook)
            CFRelease(addressBook);
    }
    ABRecordRef person(ABRecordID identifier) {
        if (!addressBook)
            addressBook = ABAddressBookCreate();
        return ABAddressBookGetPersonWithRecordID(addressBook, identifier);
    }

    book::DeviceWithBook phone;
    ABAddressBookRef addressBook = nullptr;
};

TEST_F(Record, GivesNames) {
    phone.people.person("Ann", "Lee", "555-0100");
    EXPECT_EQ(taken(ABRecordCopyValue(person(1), kABPersonFirstNameProperty)), "Ann");
    EXPECT_EQ(taken(ABRecordCopyValue(person(1), kABPersonLastNameProperty)), "Lee");
    EXPECT_EQ(taken(ABRecordCopyValue(person(1), kABPersonOrganizationProperty)), "NULL");
}

TEST_F(Record, AnEmptyNameIsAnEmptyString) {
    phone.people.person("", std::nullopt, std::nullopt);
    EXPECT_EQ(taken(ABRecordCopyValue(person(1), kABPersonFirstNameProperty)), "");
    EXPECT_EQ(taken(ABRecordCopyValue(person(1), kABPersonLastNameProperty)), "NULL");
}

TEST_F(Record, KnowsItsId) {
    phone.people.person("Ann", "Lee", "555-0100").person("Bob", "Ray", "555-0101");
    EXPECT_EQ(ABRecordGetRecordID(person(2)), 2);
    EXPECT_EQ(ABRecordGetRecordID(nullptr), -1);
    EXPECT_EQ(person(77), nullptr);
    EXPECT_EQ(ABRecordGetRecordType(person(1)), static_cast<ABRecordType>(kABPersonType));
}

TEST_F(Record, PropertiesHaveTheNumbersOfTheSystem) {
    EXPECT_EQ(kABPersonFirstNameProperty, 0);
    EXPECT_EQ(kABPersonLastNameProperty, 1);
    EXPECT_EQ(kABPersonPhoneProperty, 3);
    EXPECT_EQ(kABPersonEmailProperty, 4);
    EXPECT_EQ(kABPersonOrganizationProperty, 10);
    EXPECT_EQ(ABPersonGetTypeOfProperty(kABPersonFirstNameProperty), ABPropertyType(kABStringPropertyType));
    EXPECT_EQ(ABPersonGetTypeOfProperty(kABPersonPhoneProperty), ABPropertyType(kABMultiStringPropertyType));
    EXPECT_EQ(ABPersonGetTypeOfProperty(99), ABPropertyType(kABInvalidPropertyType));
}

TEST_F(Record, GivesSeveralNumbers) {
    phone.people.person("Ann", "Lee", "555-0100").number("555-0101", "boat");
    ABMultiValueRef numbers = ABRecordCopyValue(person(1), kABPersonPhoneProperty);
    ASSERT_NE(numbers, nullptr);
    EXPECT_EQ(ABMultiValueGetCount(numbers), 2);
    EXPECT_EQ(taken(ABMultiValueCopyValueAtIndex(numbers, 1)), "555-0101");
    EXPECT_EQ(taken(ABMultiValueCopyLabelAtIndex(numbers, 0)), "_$!<Mobile>!$_");
    EXPECT_EQ(taken(ABMultiValueCopyLabelAtIndex(numbers, 1)), "boat");
    NSArray *all = (NSArray *)ABMultiValueCopyArrayOfAllValues(numbers);
    EXPECT_EQ([all count], 2u);
    [all release];
    const ABMultiValueIdentifier second = ABMultiValueGetIdentifierAtIndex(numbers, 1);
    EXPECT_EQ(ABMultiValueGetIndexForIdentifier(numbers, second), 1);
    EXPECT_EQ(ABMultiValueGetPropertyType(numbers), ABPropertyType(kABMultiStringPropertyType));
    CFRelease(numbers);
}

TEST_F(Record, PlacesBeyondTheValuesGiveNothing) {
    phone.people.person("Ann", "Lee", "555-0100");
    ABMultiValueRef numbers = ABRecordCopyValue(person(1), kABPersonPhoneProperty);
    for (const CFIndex index : {CFIndex(-1), CFIndex(1), CFIndex(1) << 40}) {
        EXPECT_EQ(ABMultiValueCopyValueAtIndex(numbers, index), nullptr);
        EXPECT_EQ(ABMultiValueCopyLabelAtIndex(numbers, index), nullptr);
        EXPECT_EQ(ABMultiValueGetIdentifierAtIndex(numbers, index), kABMultiValueInvalidIdentifier);
    }
    EXPECT_EQ(ABMultiValueGetIndexForIdentifier(numbers, 4711), -1);
    CFRelease(numbers);
}

TEST_F(Record, NoRecordGivesNothing) {
    EXPECT_EQ(ABRecordCopyValue(nullptr, kABPersonFirstNameProperty), nullptr);
    EXPECT_EQ(ABRecordCopyCompositeName(nullptr), nullptr);
    EXPECT_EQ(ABMultiValueGetCount(nullptr), 0);
    EXPECT_EQ(ABMultiValueCopyArrayOfAllValues(nullptr), nullptr);
    EXPECT_EQ(ABAddressBookGetPersonCount(nullptr), 0);
    EXPECT_EQ(ABAddressBookCopyArrayOfAllPeople(nullptr), nullptr);
    EXPECT_EQ(ABAddressBookGetPersonWithRecordID(nullptr, 1), nullptr);
}

TEST_F(Record, ThingsThatAreNoRecordsGiveNothing) {
    ABRecordRef number = (ABRecordRef)[NSNumber numberWithInt:3];
    EXPECT_EQ(ABRecordCopyValue(number, kABPersonFirstNameProperty), nullptr);
    EXPECT_EQ(ABRecordGetRecordID(number), -1);
}

TEST_F(Record, ACopiedValueIsReleasedOnce) {
    phone.people.person("Ann", "Lee", "555-0100");
    ASSERT_EQ(host::outstandingCopies(), 0);
    CFTypeRef first = ABRecordCopyValue(person(1), kABPersonFirstNameProperty);
    CFTypeRef numbers = ABRecordCopyValue(person(1), kABPersonPhoneProperty);
    CFStringRef name = ABRecordCopyCompositeName(person(1));
    EXPECT_EQ(host::outstandingCopies(), 3);
    EXPECT_EQ([(id)first retainCount], 1u);
    CFRelease(first);
    CFRelease(numbers);
    CFRelease(name);
    EXPECT_EQ(host::outstandingCopies(), 0);
}

TEST_F(Record, AMissingValueIsNoCopy) {
    phone.people.person("Ann", std::nullopt, std::nullopt);
    EXPECT_EQ(ABRecordCopyValue(person(1), kABPersonLastNameProperty), nullptr);
    EXPECT_EQ(ABRecordCopyValue(person(1), kABPersonPhoneProperty), nullptr);
    EXPECT_EQ(host::outstandingCopies(), 0);
}

TEST_F(Record, ACopiedStringIsAStringLikeAnyOther) {
    phone.people.person("Åsa \U0001F600", "Lee", std::nullopt);
    NSString *name = (NSString *)ABRecordCopyValue(person(1), kABPersonFirstNameProperty);
    NSString *same = host::string("Åsa \U0001F600");
    EXPECT_TRUE([name isEqualToString:same]);
    EXPECT_TRUE([same isEqual:name]);
    EXPECT_EQ([name hash], [same hash]);
    EXPECT_EQ(host::utf8([NSString stringWithFormat:@"%@ %@", name, @"Lee"]), "Åsa \U0001F600 Lee");
    EXPECT_EQ([name length], 6u);
    EXPECT_EQ(host::utf8([name substringToIndex:3]), "Åsa");
    NSDictionary *table = [NSDictionary dictionaryWithObject:@"found" forKey:same];
    EXPECT_EQ(host::utf8([table objectForKey:name]), "found");
    [name release];
}

TEST_F(Record, TheAddressBookGivesAllPeople) {
    phone.people.person("Ann", "Lee", std::nullopt).person("Bob", "Ray", std::nullopt);
    addressBook = ABAddressBookCreateWithOptions(nullptr, nullptr);
    EXPECT_EQ(ABAddressBookGetPersonCount(addressBook), 2);
    NSArray *people = (NSArray *)ABAddressBookCopyArrayOfAllPeople(addressBook);
    CFRelease(addressBook);
    addressBook = nullptr;
    // People outlive the address book that they came from.
    EXPECT_EQ(taken(ABRecordCopyCompositeName((ABRecordRef)[people objectAtIndex:1])), "Bob Ray");
    [people release];
}

TEST_F(Record, WithoutAFileThereAreNoPeople) {
    phone.device.remove(book::kPath);
    addressBook = ABAddressBookCreate();
    ASSERT_NE(addressBook, nullptr);
    EXPECT_EQ(ABAddressBookGetPersonCount(addressBook), 0);
}

TEST_F(Record, LabelsAreShownInTheLanguageOfTheDevice) {
    EXPECT_EQ(taken(ABAddressBookCopyLocalizedLabel(kABPersonPhoneMobileLabel)), "mobile");
    EXPECT_EQ(taken(ABAddressBookCopyLocalizedLabel(kABPersonPhoneIPhoneLabel)), "iPhone");
    EXPECT_EQ(taken(ABAddressBookCopyLocalizedLabel(CFSTR("boat"))), "boat");
    EXPECT_EQ(ABAddressBookCopyLocalizedLabel(nullptr), nullptr);
    EXPECT_EQ(host::outstandingCopies(), 0);
}

TEST_F(Record, AnEnglishPhoneSortsByLastNameAndShowsFirstNamesFirst) {
    EXPECT_EQ(ABPersonGetSortOrdering(), ABPersonSortOrdering(kABPersonSortByLastName));
    EXPECT_EQ(ABPersonGetCompositeNameFormatForRecord(nullptr),
              ABPersonCompositeNameFormat(kABPersonCompositeNameFormatFirstNameFirst));
}

TEST_F(Record, TheUserMayChangeTheOrder) {
    phone.people.person("Ann", "Lee", std::nullopt);
    host::setNameOrder(0, 1);
    EXPECT_EQ(ABPersonGetSortOrdering(), 0u);
    EXPECT_EQ(ABPersonGetCompositeNameFormatForRecord(nullptr), 1u);
    EXPECT_EQ(ABPersonGetCompositeNameFormatForRecord(person(1)), 1u);
    EXPECT_EQ(taken(ABRecordCopyCompositeName(person(1))), "Lee Ann");
}

TEST_F(Record, AChineseNameHasItsOwnOrder) {
    phone.people.person("小明", "王", std::nullopt).person(std::nullopt, std::nullopt, "555-0100");
    EXPECT_EQ(ABPersonGetCompositeNameFormatForRecord(person(1)), 1u);
    EXPECT_EQ(taken(ABRecordCopyCompositeName(person(1))), "王小明");
    EXPECT_EQ(taken(ABPersonCopyCompositeNameDelimiterForRecord(person(1))), "");
    EXPECT_EQ(taken(ABPersonCopyCompositeNameDelimiterForRecord(nullptr)), " ");
    EXPECT_EQ(ABPersonGetCompositeNameFormatForRecord(person(2)), 0u);
    EXPECT_EQ(ABRecordCopyCompositeName(person(2)), nullptr);
}

class RecordOnAChinesePhone : public Record {
protected:
    RecordOnAChinesePhone() : Record({.language = "zh-Hans", .region = "CN", .compositeNameFormat = 1}) {}
};

TEST_F(RecordOnAChinesePhone, LabelsAreChinese) {
    EXPECT_EQ(taken(ABAddressBookCopyLocalizedLabel(kABPersonPhoneMobileLabel)), "手机");
    EXPECT_EQ(taken(ABAddressBookCopyLocalizedLabel(kABHomeLabel)), "住宅");
    EXPECT_EQ(ABPersonGetCompositeNameFormatForRecord(nullptr), 1u);
}

} // namespace
