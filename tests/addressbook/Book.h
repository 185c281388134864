// The address book of a test's device.
#pragma once

#include "support/AddressBookBuilder.h"
#include "support/TestDevice.h"

namespace book {

inline constexpr const char *kPath = "/var/mobile/Library/AddressBook/AddressBook.sqlitedb";

/// A device with an address book to fill in.
struct DeviceWithBook {
    explicit DeviceWithBook(host::DeviceOptions options = {})
        : device(std::move(options)), people(device.path(kPath)) {}

    support::TestDevice device;
    support::AddressBookBuilder people;
};

} // namespace book
