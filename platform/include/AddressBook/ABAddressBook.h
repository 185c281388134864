// The device's address book, read only. After Apple's ABAddressBook Reference (iOS 8).
#pragma once

#include <AddressBook/ABPerson.h>

typedef CFTypeRef ABAddressBookRef;

#ifdef __cplusplus
extern "C" {
#endif

/// The address book as it is now; a missing or unreadable one has no people. The caller releases it.
ABAddressBookRef ABAddressBookCreate(void);
/// Takes no options; never fails.
ABAddressBookRef ABAddressBookCreateWithOptions(CFDictionaryRef options, CFErrorRef *error);

CFIndex ABAddressBookGetPersonCount(ABAddressBookRef addressBook);
/// NULL when there is no such person. The address book owns it.
ABRecordRef ABAddressBookGetPersonWithRecordID(ABAddressBookRef addressBook, ABRecordID recordID);
/// In the order of the file.
CFArrayRef ABAddressBookCopyArrayOfAllPeople(ABAddressBookRef addressBook);

/// A label as it is shown: without its marks, in the device's language; a custom label as it is. NULL for
/// NULL.
CFStringRef ABAddressBookCopyLocalizedLabel(CFStringRef label);

#ifdef __cplusplus
}
#endif
