// Another process that keeps a database locked, as a system service at work does.
#pragma once

#include <string>
#include <sys/types.h>

namespace support {

/// Holds an exclusive lock, in a transaction with a change of its own, from its creation until release().
class LockHolder {
public:
    /// Returns when the lock is held. `change` is an SQL statement that is part of the transaction.
    LockHolder(const std::string &path, const std::string &change);
    ~LockHolder();
    LockHolder(const LockHolder &) = delete;
    LockHolder &operator=(const LockHolder &) = delete;

    /// Whether the lock could be taken.
    [[nodiscard]] bool isHolding() const { return m_holding; }

    /// Commits, ends the process and says whether the commit succeeded.
    [[nodiscard]] bool release();

private:
    pid_t m_process = -1;
    int m_pipe = -1;
    bool m_holding = false;
};

} // namespace support
