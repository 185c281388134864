// The address book. After Apple's ABAddressBook Reference.
#include "AddressBook/Copies.h"
#include "AddressBook/Labels.h"
#include "AddressBook/Records.h"
#include "host/Device.h"
#include "host/Text.h"

@implementation HostABAddressBook

- (id)init {
    if (!(self = [super init]))
        return nil;
    book = std::make_shared<const host::AddressBookContent>(host::readAddressBook());
    NSMutableArray *records = [NSMutableArray array];
    for (const host::Person &each : book->people) {
        HostABPerson *record = [[HostABPerson new] autorelease];
        record->book = book;
        record->person = &each;
        [records addObject:record];
    }
    people = [records copy];
    return self;
}

- (void)dealloc {
    [people release];
    [super dealloc];
}

@end

namespace {

NSArray *peopleOf(ABAddressBookRef reference) {
    id object = (id)reference;
    return [object isKindOfClass:[HostABAddressBook class]] ? static_cast<HostABAddressBook *>(object)->people
                                                            : nil;
}

} // namespace

ABAddressBookRef ABAddressBookCreate(void) {
    return (ABAddressBookRef)[HostABAddressBook new];
}

ABAddressBookRef ABAddressBookCreateWithOptions(CFDictionaryRef options, CFErrorRef *error) {
    if (error)
        *error = nullptr;
    return ABAddressBookCreate();
}

CFIndex ABAddressBookGetPersonCount(ABAddressBookRef addressBook) {
    return static_cast<CFIndex>([peopleOf(addressBook) count]);
}

ABRecordRef ABAddressBookGetPersonWithRecordID(ABAddressBookRef addressBook, ABRecordID recordID) {
    for (HostABPerson *record in peopleOf(addressBook)) {
        if (record->person->id == recordID)
            return (ABRecordRef)record;
    }
    return nullptr;
}

CFArrayRef ABAddressBookCopyArrayOfAllPeople(ABAddressBookRef addressBook) {
    return (CFArrayRef)[peopleOf(addressBook) retain];
}

CFStringRef ABAddressBookCopyLocalizedLabel(CFStringRef label) {
    NSString *stored = (NSString *)label;
    if (!stored)
        return nullptr;
    if (![stored hasPrefix:@"_$!<"])
        return (CFStringRef)host::newCountedString(stored);
    return (CFStringRef)host::newCountedString(
        host::string(host::localizedLabel(host::utf8(stored), host::device().language)));
}
