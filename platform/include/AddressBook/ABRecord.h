// People as records with properties. After Apple's ABRecord Reference (iOS 8).
#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <stdint.h>

typedef CFTypeRef ABRecordRef;
typedef int32_t ABRecordID;
typedef uint32_t ABRecordType;
typedef int32_t ABPropertyID;
typedef uint32_t ABPropertyType;

enum { kABPersonType = 0, kABGroupType = 1, kABSourceType = 2 };

/// The id of a record that is in no address book, and of no property.
enum { kABRecordInvalidID = -1, kABPropertyInvalidID = -1 };

#define kABMultiValueMask (1 << 8)

enum {
    kABInvalidPropertyType = 0x0,
    kABStringPropertyType = 0x1,
    kABMultiStringPropertyType = kABMultiValueMask | kABStringPropertyType
};

#ifdef __cplusplus
extern "C" {
#endif

ABRecordID ABRecordGetRecordID(ABRecordRef record);
ABRecordType ABRecordGetRecordType(ABRecordRef record);
/// The value, which the caller releases; NULL when the record has none. A string, or an ABMultiValueRef for
/// properties with several values.
CFTypeRef ABRecordCopyValue(ABRecordRef record, ABPropertyID property);
/// The whole name in the order of its language or of the user's setting; NULL when there is none.
CFStringRef ABRecordCopyCompositeName(ABRecordRef record);

#ifdef __cplusplus
}
#endif
