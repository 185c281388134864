// Properties of people, and the user's settings for names. After Apple's ABPerson Reference (iOS 8).
#pragma once

#include <AddressBook/ABMultiValue.h>
#include <stdint.h>

typedef uint32_t ABPersonSortOrdering;
enum { kABPersonSortByFirstName = 0, kABPersonSortByLastName = 1 };

typedef uint32_t ABPersonCompositeNameFormat;
enum { kABPersonCompositeNameFormatFirstNameFirst = 0, kABPersonCompositeNameFormatLastNameFirst = 1 };

#ifdef __cplusplus
extern "C" {
#endif

// Strings.
extern const ABPropertyID kABPersonFirstNameProperty;
extern const ABPropertyID kABPersonLastNameProperty;
extern const ABPropertyID kABPersonOrganizationProperty;
// Several strings each.
extern const ABPropertyID kABPersonPhoneProperty;
extern const ABPropertyID kABPersonEmailProperty;
extern const ABPropertyID kABPersonURLProperty;

extern const CFStringRef kABWorkLabel;
extern const CFStringRef kABHomeLabel;
extern const CFStringRef kABOtherLabel;
extern const CFStringRef kABPersonPhoneMobileLabel;
extern const CFStringRef kABPersonPhoneIPhoneLabel;
extern const CFStringRef kABPersonPhoneMainLabel;
extern const CFStringRef kABPersonPhoneHomeFAXLabel;
extern const CFStringRef kABPersonPhoneWorkFAXLabel;
extern const CFStringRef kABPersonPhoneOtherFAXLabel;
extern const CFStringRef kABPersonPhonePagerLabel;
extern const CFStringRef kABPersonHomePageLabel;

ABPropertyType ABPersonGetTypeOfProperty(ABPropertyID property);

/// By which name lists of people are sorted: the user's setting.
ABPersonSortOrdering ABPersonGetSortOrdering(void);
/// Which name comes first in names like this record's; the user's setting for NULL and for records without
/// names.
ABPersonCompositeNameFormat ABPersonGetCompositeNameFormatForRecord(ABRecordRef record);
/// What stands between the names of a record; the caller releases it.
CFStringRef ABPersonCopyCompositeNameDelimiterForRecord(ABRecordRef record);

#ifdef __cplusplus
}
#endif
