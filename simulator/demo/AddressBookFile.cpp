#include "simulator/demo/AddressBookFile.h"

#include "simulator/demo/Guid.h"
#include "simulator/demo/Schemas.h"

#include <algorithm>

namespace sim {

namespace {

// The phone keeps the last four digits of each number for looking up callers.
std::string lastFour(const std::string &number) {
    std::string digits;
    std::copy_if(number.begin(), number.end(), std::back_inserter(digits),
                 [](char c) { return c >= '0' && c <= '9'; });
    return digits.size() > 4 ? digits.substr(digits.size() - 4) : digits;
}

} // namespace

AddressBookFile::AddressBookFile(const std::string &path) : m_file(path) {
    sqlite3_create_function(m_file.handle(), "ab_generate_guid", 0, SQLITE_UTF8, &m_random, generateGuid,
                            nullptr, nullptr);
    SqlTransaction transaction(m_file);
    m_file.script(addressBookSchema);
    transaction.commit();
}

void AddressBookFile::generateGuid(sqlite3_context *context, int, sqlite3_value **) {
    auto *random = static_cast<std::mt19937_64 *>(sqlite3_user_data(context));
    sqlite3_result_text(context, makeGuid(*random).c_str(), -1, SQLITE_TRANSIENT);
}

std::int64_t AddressBookFile::labelRow(const std::string &label) {
    auto [place, added] = m_labels.try_emplace(label, 0);
    if (added) {
        m_file.run("INSERT INTO ABMultiValueLabel (value) VALUES (?)", {label});
        place->second = m_file.lastRow();
    }
    return place->second;
}

void AddressBookFile::addValue(std::int64_t person, std::int64_t property, const SqlValue &value,
                               const SqlValue &label) {
    m_file.run(
        "INSERT INTO ABMultiValue (record_id, property, identifier, label, value) "
        "VALUES (?1, ?2, (SELECT count() FROM ABMultiValue WHERE record_id = ?1 AND property = ?2), ?3, ?4)",
        {person, property, label, value});
    const auto *number = std::get_if<std::string>(&value);
    if (property == phoneProperty && number)
        m_file.run("INSERT INTO ABPhoneLastFour VALUES (?, ?)", {m_file.lastRow(), lastFour(*number)});
}

std::int64_t AddressBookFile::add(const Person &person) {
    bool company = person.organization && !person.first && !person.last;
    m_file.run("INSERT INTO ABPerson (First, Last, Organization, Kind, StoreID) VALUES (?, ?, ?, ?, 0)",
               {textOrNull(person.first), textOrNull(person.last), textOrNull(person.organization),
                std::int64_t(company)});
    std::int64_t row = m_file.lastRow();
    for (const LabelledValue &value : person.values) {
        SqlValue label = value.label ? SqlValue(labelRow(*value.label)) : SqlValue(nullptr);
        addValue(row, value.property, value.value, label);
    }
    return row;
}

} // namespace sim
