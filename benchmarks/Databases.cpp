#include "Databases.h"

#include "Benchmark.h"
#include "Folder.h"
#include "simulator/demo/DemoCalls.h"
#include "simulator/demo/DemoPeople.h"

#include <filesystem>
#include <sqlite3.h>

namespace bench {
namespace {

constexpr unsigned seed = 1;

template<typename File, typename Row>
void fill(File &&file, const std::vector<Row> &rows) {
    sim::SqlTransaction transaction(file.sql());
    for (const Row &row : rows)
        file.add(row);
    transaction.commit();
}

bool isCoreData(zv::CallHistorySchema schema) {
    return schema == zv::CallHistorySchema::coreData;
}

} // namespace

std::string addressBook(std::size_t count) {
    const std::string path = folder() / ("AddressBook-" + std::to_string(count));
    if (!std::filesystem::exists(path))
        fill(sim::AddressBookFile(path), sim::makePeople(count, seed));
    return path;
}

std::string callHistory(std::size_t count, zv::CallHistorySchema schema) {
    const std::string path =
        folder() / ((isCoreData(schema) ? "CallHistory-" : "call_history-") + std::to_string(count));
    const auto form = isCoreData(schema) ? sim::CallHistoryForm::coreData : sim::CallHistoryForm::keyValue;
    if (!std::filesystem::exists(path))
        fill(sim::CallHistoryFile(path, form),
             sim::makeCalls(count, sim::makePeople(count, seed), now, seed));
    return path;
}

void stepAll(const std::string &path, const char *query) {
    sqlite3 *database = nullptr;
    sqlite3_stmt *row = nullptr;
    sqlite3_open(path.c_str(), &database);
    sqlite3_prepare_v2(database, query, -1, &row, nullptr);
    const int columns = sqlite3_column_count(row);
    while (sqlite3_step(row) == SQLITE_ROW) {
        for (int column = 0; column < columns; ++column)
            use(sqlite3_column_text(row, column));
    }
    sqlite3_finalize(row);
    sqlite3_close(database);
}

} // namespace bench
