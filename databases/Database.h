// An SQLite connection that lives as long as its scope.
#pragma once

#include <sqlite3.h>

namespace zv {

/// One short-lived connection. It is closed at the end of its scope whether or not it could be opened; SQLite
/// asks for that, since even a failed open leaves a handle behind.
class Database {
public:
    /// Opens the database file at `path` for reading and writing; a missing file is created empty.
    explicit Database(const char *path) : m_status(sqlite3_open(path, &m_handle)) {}
    ~Database() { sqlite3_close(m_handle); }
    Database(const Database &) = delete;
    Database &operator=(const Database &) = delete;

    [[nodiscard]] bool isOpen() const { return m_status == SQLITE_OK; }

    /// Null only where SQLite had no memory for a connection.
    [[nodiscard]] sqlite3 *handle() const { return m_handle; }

    /// Runs one statement that yields no rows. False where it did not prepare (a missing table, say) or did
    /// not run to its end (a locked database); callers to whom that makes no difference say so with a cast.
    [[nodiscard]] bool run(const char *sql) const;

private:
    sqlite3 *m_handle = nullptr;
    int m_status;
};

} // namespace zv
