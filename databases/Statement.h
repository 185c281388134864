// A prepared SQLite statement that lives as long as its scope.
#pragma once

#include "databases/Database.h"

namespace zv {

/// Finalized at the end of its scope whether or not it was prepared. A statement that did not prepare is
/// never stepped: it has no rows and cannot finish. Parameters and columns are counted as SQLite does, from 1
/// and from 0.
class Statement {
public:
    /// Prepares `sql`, one statement ended by a null byte. `database` must outlive the statement.
    Statement(const Database &database, const char *sql) {
        sqlite3_prepare_v2(database.handle(), sql, -1, &m_statement, nullptr);
    }
    ~Statement() { sqlite3_finalize(m_statement); }
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;

    [[nodiscard]] bool isPrepared() const { return m_statement != nullptr; }

    /// Sets parameter `index`. A text is not copied: it must live until the last step.
    void bind(int index, int value);
    void bind(int index, const char *text);

    /// Goes to the next row; false after the last one and on any error.
    [[nodiscard]] bool nextRow() { return isPrepared() && sqlite3_step(m_statement) == SQLITE_ROW; }

    /// Runs a statement that yields no rows; true where it ran to its end.
    [[nodiscard]] bool finish() { return isPrepared() && sqlite3_step(m_statement) == SQLITE_DONE; }

    /// Column `index` of the current row as SQLite converts it: 0 for NULL and for a text that is no number.
    [[nodiscard]] int integer(int index) { return sqlite3_column_int(m_statement, index); }

    /// Column `index` of the current row as UTF-8; null for NULL. Valid until the next step.
    [[nodiscard]] const char *text(int index) {
        return reinterpret_cast<const char *>(sqlite3_column_text(m_statement, index));
    }

private:
    sqlite3_stmt *m_statement = nullptr;
};

} // namespace zv
