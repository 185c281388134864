// The objects behind ABRecordRef, ABMultiValueRef and ABAddressBookRef.
#pragma once

#import <AddressBook/AddressBook.h>
#import <Foundation/Foundation.h>

#include "AddressBook/AddressBookFile.h"

#include <memory>

/// A person of an address book that was read once and is kept as long as one of its people is.
@interface HostABPerson : NSObject {
@public
    std::shared_ptr<const host::AddressBookContent> book;
    const host::Person *person;
}
@end

@interface HostABMultiValue : NSObject {
@public
    std::vector<host::LabelledValue> values;
}
@end

@interface HostABAddressBook : NSObject {
@public
    std::shared_ptr<const host::AddressBookContent> book;
    NSArray *people; ///< HostABPerson each
}
@end

namespace host {

/// The person behind a record; null for NULL and for other things.
[[nodiscard]] const Person *personOf(ABRecordRef record);

} // namespace host
