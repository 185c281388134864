#include "rootpage/MyInfo.h"

namespace zv {

namespace {

// A text of the card, nil where there is none or an empty one. The address book's copy is ours to release.
NSString *textOf(ABRecordRef person, ABPropertyID property) {
    NSString *text = [(NSString *)ABRecordCopyValue(person, property) autorelease];
    return [text length] > 0 ? text : nil;
}

bool isFirstNameFirst() {
    return ABPersonGetCompositeNameFormatForRecord(NULL) == kABPersonCompositeNameFormatFirstNameFirst;
}

} // namespace

NSString *personName(ABRecordRef person) {
    NSString *first = textOf(person, kABPersonFirstNameProperty);
    NSString *last = textOf(person, kABPersonLastNameProperty);
    if (!first || !last)
        return first ? first : last;
    return isFirstNameFirst() ? [NSString stringWithFormat:@"%@ %@", first, last]
                              : [NSString stringWithFormat:@"%@ %@", last, first];
}

} // namespace zv
