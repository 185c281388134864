// The address book: everything at once.
#pragma once

#include <AddressBook/ABAddressBook.h>
#include <AddressBook/ABMultiValue.h>
#include <AddressBook/ABPerson.h>
#include <AddressBook/ABRecord.h>
