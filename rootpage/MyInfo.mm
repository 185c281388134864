#include "rootpage/MyInfo.h"

namespace zv {

namespace {

bool isFirstNameFirst() {
    return ABPersonGetCompositeNameFormatForRecord(NULL) == kABPersonCompositeNameFormatFirstNameFirst;
}

// A new text, which does not depend on the two names any longer; nil without either.
NSString *joined(NSString *first, NSString *last) {
    const bool hasFirst = [first length] > 0, hasLast = [last length] > 0;
    if (hasFirst && hasLast)
        return isFirstNameFirst() ? [NSString stringWithFormat:@"%@ %@", first, last]
                                  : [NSString stringWithFormat:@"%@ %@", last, first];
    if (!hasFirst && !hasLast)
        return nil;
    return [NSString stringWithString:hasFirst ? first : last];
}

} // namespace

// The address book hands out copies that are ours to release.
NSString *personName(ABRecordRef person) {
    CFTypeRef first = ABRecordCopyValue(person, kABPersonFirstNameProperty);
    CFTypeRef last = ABRecordCopyValue(person, kABPersonLastNameProperty);
    NSString *name = joined((NSString *)first, (NSString *)last);
    if (first)
        CFRelease(first);
    if (last)
        CFRelease(last);
    return name;
}

} // namespace zv
