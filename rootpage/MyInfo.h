// The owner's card: how it is named and where it is noted.
#pragma once

#import <Foundation/Foundation.h>

#import <AddressBook/AddressBook.h>

namespace zv {

/// Keys of the root page's own settings: the owner's name, and the number of the card in the address book.
constexpr NSString *const myInfoNameKey = @"MyInfoName";
constexpr NSString *const myInfoRecordKey = @"MyInfo";

/// First and last name with one space between them, in the order that the user has set for all names; the
/// only one of the two that is there and not empty; nil for a card without a person's name, such as a
/// company's.
NSString *personName(ABRecordRef person);

} // namespace zv
