// Properties of people and the user's settings. After Apple's ABPerson Reference. The numbers of the
// properties are those in the file's ABMultiValue.property and in the values that iOS shows for its
// constants.
#include "AddressBook/Copies.h"
#include "AddressBook/PersonNames.h"
#include "AddressBook/Records.h"

const ABPropertyID kABPersonFirstNameProperty = 0;
const ABPropertyID kABPersonLastNameProperty = 1;
const ABPropertyID kABPersonPhoneProperty = 3;
const ABPropertyID kABPersonEmailProperty = 4;
const ABPropertyID kABPersonOrganizationProperty = 10;
const ABPropertyID kABPersonURLProperty = 22;

const CFStringRef kABWorkLabel = (CFStringRef) @"_$!<Work>!$_";
const CFStringRef kABHomeLabel = (CFStringRef) @"_$!<Home>!$_";
const CFStringRef kABOtherLabel = (CFStringRef) @"_$!<Other>!$_";
const CFStringRef kABPersonPhoneMobileLabel = (CFStringRef) @"_$!<Mobile>!$_";
const CFStringRef kABPersonPhoneIPhoneLabel = (CFStringRef) @"iPhone";
const CFStringRef kABPersonPhoneMainLabel = (CFStringRef) @"_$!<Main>!$_";
const CFStringRef kABPersonPhoneHomeFAXLabel = (CFStringRef) @"_$!<HomeFAX>!$_";
const CFStringRef kABPersonPhoneWorkFAXLabel = (CFStringRef) @"_$!<WorkFAX>!$_";
const CFStringRef kABPersonPhoneOtherFAXLabel = (CFStringRef) @"_$!<OtherFAX>!$_";
const CFStringRef kABPersonPhonePagerLabel = (CFStringRef) @"_$!<Pager>!$_";
const CFStringRef kABPersonHomePageLabel = (CFStringRef) @"_$!<HomePage>!$_";

ABPropertyType ABPersonGetTypeOfProperty(ABPropertyID property) {
    if (property == kABPersonFirstNameProperty || property == kABPersonLastNameProperty ||
        property == kABPersonOrganizationProperty)
        return kABStringPropertyType;
    if (property == kABPersonPhoneProperty || property == kABPersonEmailProperty ||
        property == kABPersonURLProperty)
        return kABMultiStringPropertyType;
    return kABInvalidPropertyType;
}

ABPersonSortOrdering ABPersonGetSortOrdering(void) {
    return host::nameSettings().sortOrdering == 0 ? kABPersonSortByFirstName : kABPersonSortByLastName;
}

ABPersonCompositeNameFormat ABPersonGetCompositeNameFormatForRecord(ABRecordRef record) {
    const host::Person *person = host::personOf(record);
    return static_cast<ABPersonCompositeNameFormat>(
        host::nameFormat(person ? *person : host::Person{}, host::nameSettings()));
}

CFStringRef ABPersonCopyCompositeNameDelimiterForRecord(ABRecordRef record) {
    const host::Person *person = host::personOf(record);
    return (CFStringRef)host::newCountedString(host::nameDelimiter(person ? *person : host::Person{}));
}
