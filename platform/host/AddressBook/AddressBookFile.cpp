#include "AddressBook/AddressBookFile.h"

#include "host/Device.h"
#include "host/EventLog.h"

#include <filesystem>
#include <memory>
#include <sqlite3.h>
#include <unordered_map>

namespace host {
namespace {

constexpr const char *kPath = "/var/mobile/Library/AddressBook/AddressBook.sqlitedb";
/// A writer is done within this time; whoever keeps the file longer means to.
constexpr int kPatienceMilliseconds = 100;
/// ABPerson.Kind of a company.
constexpr int kCompany = 1;

struct CloseDatabase {
    void operator()(sqlite3 *database) const { sqlite3_close(database); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using DatabaseHandle = std::unique_ptr<sqlite3, CloseDatabase>;
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

DatabaseHandle open(const std::string &path) {
    sqlite3 *database = nullptr;
    sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr);
    sqlite3_busy_timeout(database, kPatienceMilliseconds);
    return DatabaseHandle(database);
}

std::optional<std::u16string> text(sqlite3_stmt *statement, int column) {
    const auto *units = static_cast<const char16_t *>(sqlite3_column_text16(statement, column));
    if (!units)
        return std::nullopt;
    return std::u16string(units, static_cast<std::size_t>(sqlite3_column_bytes16(statement, column)) / 2);
}

/// Runs a query to its end; the result is SQLITE_DONE, or what went wrong.
template<typename Row>
int forEachRow(sqlite3 *database, const char *sql, Row &&row) {
    sqlite3_stmt *statement = nullptr;
    int result = sqlite3_prepare_v2(database, sql, -1, &statement, nullptr);
    const StatementHandle owner(statement);
    if (result != SQLITE_OK)
        return result;
    while ((result = sqlite3_step(statement)) == SQLITE_ROW)
        row(statement);
    return result;
}

Person personOf(sqlite3_stmt *row) {
    Person person;
    person.id = sqlite3_column_int(row, 0);
    person.first = text(row, 1);
    person.middle = text(row, 2);
    person.last = text(row, 3);
    person.prefix = text(row, 4);
    person.suffix = text(row, 5);
    person.organization = text(row, 6);
    person.company = sqlite3_column_int(row, 7) == kCompany;
    return person;
}

int readPeople(sqlite3 *database, std::vector<Person> &people) {
    return forEachRow(database,
                      "SELECT ROWID, First, Middle, Last, Prefix, Suffix, Organization, Kind FROM ABPerson "
                      "ORDER BY ROWID",
                      [&](sqlite3_stmt *row) { people.push_back(personOf(row)); });
}

int readValues(sqlite3 *database, std::vector<Person> &people) {
    std::unordered_map<std::int32_t, Person *> byId;
    for (Person &person : people)
        byId[person.id] = &person;
    return forEachRow(database,
                      "SELECT record_id, property, identifier, ABMultiValueLabel.value, ABMultiValue.value "
                      "FROM ABMultiValue LEFT JOIN ABMultiValueLabel ON ABMultiValueLabel.ROWID = label "
                      "WHERE ABMultiValue.value IS NOT NULL ORDER BY UID",
                      [&](sqlite3_stmt *row) {
                          const auto person = byId.find(sqlite3_column_int(row, 0));
                          if (person == byId.end())
                              return;
                          auto &values = person->second->values[sqlite3_column_int(row, 1)];
                          values.push_back({sqlite3_column_int(row, 2), text(row, 3), *text(row, 4)});
                      });
}

AddressBookContent failed(sqlite3 *database, int result) {
    const bool locked = (result & 0xFF) == SQLITE_BUSY || (result & 0xFF) == SQLITE_LOCKED;
    return {{},
            locked ? AddressBookState::locked : AddressBookState::damaged,
            database ? sqlite3_errmsg(database) : "out of memory"};
}

AddressBookContent readFile(const std::string &path) {
    const DatabaseHandle database = open(path);
    AddressBookContent content;
    int result = readPeople(database.get(), content.people);
    if (result == SQLITE_DONE)
        result = readValues(database.get(), content.people);
    if (result != SQLITE_DONE)
        return failed(database.get(), result);
    content.state = AddressBookState::read;
    return content;
}

} // namespace

AddressBookContent readAddressBook(const std::string &path) {
    std::error_code ignored;
    if (!std::filesystem::exists(path, ignored))
        return {{}, AddressBookState::missing, "there is no " + path};
    return readFile(path);
}

AddressBookContent readAddressBook() {
    AddressBookContent content = readAddressBook(devicePath(kPath));
    if (content.state == AddressBookState::damaged || content.state == AddressBookState::locked)
        record(EventKind::log, "The address book cannot be read: " + content.reason, kPath);
    return content;
}

} // namespace host
