// A database file as the makers of demo devices and of test fixtures use it: failures are exceptions.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <sqlite3.h>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <variant>
#include <vector>

namespace sim {

/// A statement that failed; what() is SQLite's message and the statement.
class SqlError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct Blob {
    std::string bytes;
};

/// A value to be bound; nullptr is NULL.
using SqlValue = std::variant<std::nullptr_t, std::int64_t, double, std::string, Blob>;

/// NULL where there is no text.
[[nodiscard]] inline SqlValue textOrNull(const std::optional<std::string> &text) {
    return text ? SqlValue(*text) : SqlValue(nullptr);
}

/// One connection. Statements are prepared once and kept, so that many rows are added quickly.
class SqlFile {
public:
    /// Opens the file for reading and writing and makes it where it is missing; its folder must exist.
    explicit SqlFile(const std::string &path);
    ~SqlFile();
    SqlFile(const SqlFile &) = delete;
    SqlFile &operator=(const SqlFile &) = delete;

    /// Runs any number of statements, rows ignored.
    void script(const std::string &sql);

    /// Runs one statement with its parameters in order, rows ignored.
    void run(const std::string &sql, std::initializer_list<SqlValue> parameters = {});

    /// The rows of a query, columns as text ("NULL" for NULL) with "|" between them.
    [[nodiscard]] std::vector<std::string> rows(const std::string &sql);

    /// The first row, "" where there is none.
    [[nodiscard]] std::string value(const std::string &sql);

    /// The ROWID of the row that was added last.
    [[nodiscard]] std::int64_t lastRow() const { return sqlite3_last_insert_rowid(m_handle); }

    [[nodiscard]] sqlite3 *handle() const { return m_handle; }

private:
    sqlite3_stmt *prepared(const std::string &sql);
    [[noreturn]] void fail(const std::string &sql) const;
    void close();

    sqlite3 *m_handle = nullptr;
    std::unordered_map<std::string, sqlite3_stmt *> m_statements;
};

/// Groups changes into one transaction, which a scope left by an exception undoes.
class SqlTransaction {
public:
    explicit SqlTransaction(SqlFile &file) : m_file(file) { file.script("BEGIN"); }
    ~SqlTransaction();
    SqlTransaction(const SqlTransaction &) = delete;
    SqlTransaction &operator=(const SqlTransaction &) = delete;
    void commit();

private:
    SqlFile &m_file;
    bool m_open = true;
};

} // namespace sim
