// The call-history control on a history of 100,000 calls, beside bare SQLite statements of the same texts.
// For the record: what the trigger adds to the deletion of 10,000 calls.
#include "Databases.h"
#include "Folder.h"

#include "Benchmark.h"
#include "databases/CallHistory.h"
#include "simulator/demo/SqlFile.h"

#include <filesystem>

namespace {

constexpr bench::Limits limits{.bar = 1.1};
constexpr auto schema = zv::CallHistorySchema::coreData;
constexpr std::size_t callCount = 100'000;
constexpr int storedLimit = 2000;

std::string newHistory(const char *name) {
    const std::filesystem::path copy = bench::folder() / name;
    std::filesystem::copy_file(bench::callHistory(callCount, schema), copy,
                               std::filesystem::copy_options::overwrite_existing);
    return copy;
}

zv::CallHistory control(const std::string &path) {
    return {path.c_str(), schema};
}

// Each connection is closed again, as the control does after each operation.
void runBare(const std::string &path, const std::vector<std::string> &statements) {
    sqlite3 *database = nullptr;
    sqlite3_open(path.c_str(), &database);
    for (const std::string &text : statements) {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(database, text.c_str(), -1, &statement, nullptr);
        bench::use(sqlite3_step(statement) == SQLITE_ROW ? sqlite3_column_text(statement, 0) : nullptr);
        sqlite3_finalize(statement);
    }
    sqlite3_close(database);
}

// The texts with which SQLite itself keeps what an install made.
std::string textOf(const std::string &path, const std::string &name) {
    return sim::SqlFile(path).value("SELECT sql FROM sqlite_master WHERE name = '" + name + "'");
}

std::vector<std::string> installStatements(const std::string &path) {
    return {textOf(path, "ZVZCALLDBPROPERTIES"),
            "DELETE FROM ZVZCALLDBPROPERTIES WHERE Z_KEY = 'call_history_limit'",
            "INSERT INTO ZVZCALLDBPROPERTIES (Z_KEY, Z_VALUE) VALUES ('call_history_limit', 2000)",
            textOf(path, "ZVZCALLRECORD"), textOf(path, "ZVSAVEZCALLRECORD")};
}

bench::Works installAndUninstall() {
    const std::string path = newHistory("installed");
    (void)control(path).install(storedLimit);
    const std::vector<std::string> install = installStatements(path);
    const std::vector<std::string> uninstall{"DROP TRIGGER ZVSAVEZCALLRECORD", "DROP TABLE ZVZCALLRECORD",
                                             "DROP TABLE ZVZCALLDBPROPERTIES"};
    runBare(path, uninstall);
    return {[path] {
                (void)control(path).install(storedLimit);
                (void)control(path).uninstall();
            },
            [path, install, uninstall] {
                runBare(path, install);
                runBare(path, uninstall);
            }};
}

bench::Works readLimit() {
    const std::string path = newHistory("limited");
    (void)control(path).install(storedLimit);
    return {[path] {
                const int limit = control(path).limit();
                bench::use(&limit);
            },
            [path] { runBare(path, {zv::callHistoryQueries(schema).limit}); }};
}

bench::Works readLifetime() {
    const std::string path = newHistory("timed");
    return {[path] {
                const int lifetime = control(path).lifetime();
                bench::use(&lifetime);
            },
            [path] { runBare(path, {zv::callHistoryQueries(schema).lifetime}); }};
}

// Undone again, so that every run finds the same calls.
bench::Work deletion(const std::string &path) {
    return [path] { runBare(path, {"BEGIN", "DELETE FROM ZCALLRECORD WHERE Z_PK <= 10000", "ROLLBACK"}); };
}

bench::Works deleteCalls() {
    const std::string kept = newHistory("kept");
    (void)control(kept).install(storedLimit);
    return {deletion(kept), deletion(newHistory("lost"))};
}

const bench::Ratio installing("Call history: install and uninstall", limits, installAndUninstall);
const bench::Ratio readingTheLimit("Call history: read the limit", limits, readLimit);
const bench::Ratio readingTheLifetime("Call history: read the lifetime", limits, readLifetime);
const bench::Ratio deleting("Call history: delete 10,000, with and without trigger", {}, deleteCalls);

} // namespace
