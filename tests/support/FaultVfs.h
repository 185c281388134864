// A disk that fails on request: an SQLite file layer over the real one.
#pragma once

#include <sqlite3.h>
#include <string>

namespace support {

enum class Fault {
    ioError,  ///< any operation may fail
    fullDisk, ///< writes fail half way, and no file can be made
    busy,     ///< locks are refused
};

enum class FaultSpan { once, fromThenOn };

/// While it lives, every database opened without naming a file layer goes through it.
class FaultVfs {
public:
    FaultVfs();
    ~FaultVfs();
    FaultVfs(const FaultVfs &) = delete;
    FaultVfs &operator=(const FaultVfs &) = delete;

    /// Lets operation number `number` fail, counted from 1 over those that can fail this way.
    void failOperation(int number, Fault fault, FaultSpan span);

    /// Nothing fails any more. Counts start again at 0.
    void heal();

    /// Whether an operation has failed since failOperation().
    [[nodiscard]] bool hasFailed() const { return m_failed; }

    /// How many operations that can fail this way there were since failOperation().
    [[nodiscard]] int attempts() const { return m_count; }

    /// Files that are open now, and counts since heal().
    [[nodiscard]] int openFiles() const { return m_openFiles; }
    [[nodiscard]] int databasesOpened() const { return m_databasesOpened; }
    [[nodiscard]] long reads() const { return m_reads; }

    enum class Operation { open, read, write, truncate, sync, fileSize, lock, checkLock, remove, access };

    /// For the file layer's own functions: whether this operation is to fail now.
    [[nodiscard]] bool fails(Operation operation, bool creates = false);
    [[nodiscard]] Fault fault() const { return m_fault; }
    void opened(bool isDatabase);
    void closed() { --m_openFiles; }
    void countRead() { ++m_reads; }

    [[nodiscard]] sqlite3_vfs *real() const { return m_real; }

private:
    sqlite3_vfs m_layer{};
    sqlite3_vfs *m_real;
    Fault m_fault = Fault::ioError;
    FaultSpan m_span = FaultSpan::once;
    int m_target = 0;
    int m_count = 0;
    bool m_failed = false;
    int m_openFiles = 0;
    int m_databasesOpened = 0;
    long m_reads = 0;
};

} // namespace support
