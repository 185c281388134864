// Several values of one property, each with a label. After Apple's ABMultiValue Reference (iOS 8).
#pragma once

#include <AddressBook/ABRecord.h>
#include <stdint.h>

typedef CFTypeRef ABMultiValueRef;
typedef int32_t ABMultiValueIdentifier;

enum { kABMultiValueInvalidIdentifier = -1 };

#ifdef __cplusplus
extern "C" {
#endif

ABPropertyType ABMultiValueGetPropertyType(ABMultiValueRef multiValue);
CFIndex ABMultiValueGetCount(ABMultiValueRef multiValue);
/// NULL beyond the last value.
CFTypeRef ABMultiValueCopyValueAtIndex(ABMultiValueRef multiValue, CFIndex index);
/// The label as it is stored; NULL for none.
CFStringRef ABMultiValueCopyLabelAtIndex(ABMultiValueRef multiValue, CFIndex index);
CFArrayRef ABMultiValueCopyArrayOfAllValues(ABMultiValueRef multiValue);
ABMultiValueIdentifier ABMultiValueGetIdentifierAtIndex(ABMultiValueRef multiValue, CFIndex index);
/// -1 when no value has that identifier.
CFIndex ABMultiValueGetIndexForIdentifier(ABMultiValueRef multiValue, ABMultiValueIdentifier identifier);

#ifdef __cplusplus
}
#endif
