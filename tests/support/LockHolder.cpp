#include "support/LockHolder.h"

#include <sqlite3.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace support {

namespace {

bool execute(sqlite3 *database, const char *sql) {
    return sqlite3_exec(database, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
}

// The other process: says "held" with one byte, waits for the other end to close, commits.
[[noreturn]] void holdLock(int pipe, const char *path, const char *change) {
    sqlite3 *database = nullptr;
    bool held = sqlite3_open(path, &database) == SQLITE_OK && execute(database, "PRAGMA synchronous = OFF") &&
                execute(database, "BEGIN EXCLUSIVE") && execute(database, change);
    char byte = held ? 1 : 0;
    bool told = write(pipe, &byte, 1) == 1;
    (void)read(pipe, &byte, 1);
    bool committed = held && told && execute(database, "COMMIT");
    sqlite3_close(database);
    _exit(committed ? 0 : 1);
}

} // namespace

LockHolder::LockHolder(const std::string &path, const std::string &change) {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
        return;
    m_process = fork();
    if (m_process == 0) {
        close(ends[0]);
        holdLock(ends[1], path.c_str(), change.c_str());
    }
    close(ends[1]);
    m_pipe = ends[0];
    char byte = 0;
    m_holding = read(m_pipe, &byte, 1) == 1 && byte == 1;
}

LockHolder::~LockHolder() {
    (void)release();
}

bool LockHolder::release() {
    if (m_process < 0)
        return false;
    shutdown(m_pipe,
             SHUT_RDWR); // a holder forked later has a copy of this end, which closing would not reach
    close(m_pipe);
    int status = -1;
    waitpid(m_process, &status, 0);
    m_process = -1;
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace support
