// An address book for a test, a line a person.
#pragma once

#include "simulator/demo/AddressBookFile.h"

namespace support {

using Text = std::optional<std::string>;

/// Makes the file and the folders above it. Numbers carry the label for mobile phones where no other is
/// given.
class AddressBookBuilder {
public:
    explicit AddressBookBuilder(const std::string &path);

    AddressBookBuilder &person(const Text &first, const Text &last, const Text &number,
                               const Text &label = sim::label::mobile);

    /// A further number of the person added last.
    AddressBookBuilder &number(const sim::SqlValue &number, const Text &label = sim::label::mobile);

    AddressBookBuilder &company(const std::string &name, const std::string &number);

    [[nodiscard]] sim::SqlFile &sql() { return m_file.sql(); }

private:
    sim::AddressBookFile m_file;
    std::int64_t m_person = 0;
};

} // namespace support
