#include "support/AddressBookBuilder.h"

#include "support/TemporaryFolder.h"

namespace support {

AddressBookBuilder::AddressBookBuilder(const std::string &path) : m_file(inNewFolders(path)) {
}

AddressBookBuilder &AddressBookBuilder::person(const Text &first, const Text &last, const Text &number,
                                               const Text &label) {
    m_person = m_file.add({.first = first, .last = last, .organization = {}, .values = {}});
    return number ? this->number(*number, label) : *this;
}

AddressBookBuilder &AddressBookBuilder::number(const sim::SqlValue &number, const Text &label) {
    sim::SqlValue row = label ? sim::SqlValue(m_file.labelRow(*label)) : sim::SqlValue(nullptr);
    m_file.addValue(m_person, sim::phoneProperty, number, row);
    return *this;
}

AddressBookBuilder &AddressBookBuilder::company(const std::string &name, const std::string &number) {
    m_person = m_file.add({.first = {}, .last = {}, .organization = name, .values = {}});
    return this->number(number, sim::label::main);
}

} // namespace support
