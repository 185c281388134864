// The people in the device's AddressBook.sqlitedb, read whole. Never writes.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// One of a person's numbers or addresses.
struct LabelledValue {
    std::int32_t identifier = 0;
    std::optional<std::u16string> label; ///< as stored, with its marks
    std::u16string value;
};

struct Person {
    std::int32_t id = -1; ///< ROWID
    std::optional<std::u16string> first, middle, last, prefix, suffix, organization;
    bool company = false; ///< shown by its organization
    std::map<std::int32_t, std::vector<LabelledValue>>
        values; ///< by property number, in the order of the file
};

enum class AddressBookState {
    read,
    missing, ///< there is no file: nobody has been added yet
    damaged, ///< no database, or not one of an address book
    locked,  ///< another program keeps it to itself
};

struct AddressBookContent {
    std::vector<Person> people; ///< in the order of the file; empty unless read
    AddressBookState state = AddressBookState::missing;
    std::string reason; ///< for a developer; empty when read
};

/// Reads the file at `path` of this machine.
[[nodiscard]] AddressBookContent readAddressBook(const std::string &path);

/// Reads the device's address book.
[[nodiscard]] AddressBookContent readAddressBook();

} // namespace host
