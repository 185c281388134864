#include "simulator/demo/SqlFile.h"

namespace sim {

namespace {

// What is lost in a power failure can be made again: nothing is forced to the disk. A large database is
// filled in memory (kibibytes, negative by SQLite's rule), and what triggers may have to undo stays there
// too.
constexpr const char *quickness =
    "PRAGMA synchronous = OFF; PRAGMA cache_size = -131072; PRAGMA temp_store = MEMORY";

int bindValue(sqlite3_stmt *statement, int index, const SqlValue &value) {
    if (const auto *integer = std::get_if<std::int64_t>(&value))
        return sqlite3_bind_int64(statement, index, *integer);
    if (const auto *real = std::get_if<double>(&value))
        return sqlite3_bind_double(statement, index, *real);
    if (const auto *text = std::get_if<std::string>(&value))
        return sqlite3_bind_text64(statement, index, text->data(), text->size(), SQLITE_TRANSIENT,
                                   SQLITE_UTF8);
    if (const auto *blob = std::get_if<Blob>(&value))
        return sqlite3_bind_blob64(statement, index, blob->bytes.data(), blob->bytes.size(),
                                   SQLITE_TRANSIENT);
    return sqlite3_bind_null(statement, index);
}

std::string columnText(sqlite3_stmt *statement, int column) {
    const auto *text = reinterpret_cast<const char *>(sqlite3_column_text(statement, column));
    return text ? std::string(text, static_cast<size_t>(sqlite3_column_bytes(statement, column))) : "NULL";
}

std::string rowText(sqlite3_stmt *statement) {
    std::string row;
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
        row += (column ? "|" : "") + columnText(statement, column);
    return row;
}

} // namespace

SqlFile::SqlFile(const std::string &path) {
    if (sqlite3_open(path.c_str(), &m_handle) == SQLITE_OK &&
        sqlite3_exec(m_handle, quickness, nullptr, nullptr, nullptr) == SQLITE_OK)
        return;
    std::string message = "cannot open " + path + ": " + sqlite3_errmsg(m_handle);
    close();
    throw SqlError(message);
}

SqlFile::~SqlFile() {
    close();
}

void SqlFile::close() {
    for (auto &[sql, statement] : m_statements)
        sqlite3_finalize(statement);
    sqlite3_close(m_handle);
}

void SqlFile::fail(const std::string &sql) const {
    throw SqlError(std::string(sqlite3_errmsg(m_handle)) + " in: " + sql);
}

void SqlFile::script(const std::string &sql) {
    if (sqlite3_exec(m_handle, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        fail(sql);
}

sqlite3_stmt *SqlFile::prepared(const std::string &sql) {
    auto found = m_statements.find(sql);
    if (found != m_statements.end())
        return found->second;
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_handle, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        fail(sql);
    m_statements.emplace(sql, statement);
    return statement;
}

void SqlFile::run(const std::string &sql, std::initializer_list<SqlValue> parameters) {
    sqlite3_stmt *statement = prepared(sql);
    int index = 0;
    for (const SqlValue &value : parameters) {
        if (bindValue(statement, ++index, value) != SQLITE_OK)
            fail(sql);
    }
    int status = sqlite3_step(statement);
    while (status == SQLITE_ROW)
        status = sqlite3_step(statement);
    if (sqlite3_reset(statement) != SQLITE_OK || status != SQLITE_DONE)
        fail(sql);
}

std::vector<std::string> SqlFile::rows(const std::string &sql) {
    sqlite3_stmt *statement = prepared(sql);
    std::vector<std::string> rows;
    while (sqlite3_step(statement) == SQLITE_ROW)
        rows.push_back(rowText(statement));
    if (sqlite3_reset(statement) != SQLITE_OK)
        fail(sql);
    return rows;
}

std::string SqlFile::value(const std::string &sql) {
    std::vector<std::string> all = rows(sql);
    return all.empty() ? "" : all.front();
}

SqlTransaction::~SqlTransaction() {
    if (m_open)
        sqlite3_exec(m_file.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqlTransaction::commit() {
    m_file.script("COMMIT");
    m_open = false;
}

} // namespace sim
