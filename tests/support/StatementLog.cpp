#include "support/StatementLog.h"

#include <sqlite3.h>
#include <utility>

// https://www.sqlite.org/c3ref/auto_extension.html and https://www.sqlite.org/c3ref/c_trace.html say how a
// connection is met when it opens, and what it then tells.

namespace support {

namespace {

std::vector<std::string> log;

int writeDown(unsigned event, void *, void *statement, void *text) {
    if (event == SQLITE_TRACE_CLOSE) {
        log.emplace_back("(close)");
        return 0;
    }
    // What a trigger does is told as a comment.
    if (!std::string(static_cast<const char *>(text)).starts_with("--"))
        log.emplace_back(sqlite3_sql(static_cast<sqlite3_stmt *>(statement)));
    return 0;
}

int meetConnection(sqlite3 *database, char **, const void *) {
    log.emplace_back("(open)");
    return sqlite3_trace_v2(database, SQLITE_TRACE_STMT | SQLITE_TRACE_CLOSE, writeDown, nullptr);
}

auto *const entryPoint = reinterpret_cast<void (*)()>(meetConnection);

} // namespace

StatementLog::StatementLog() {
    log.clear();
    sqlite3_auto_extension(entryPoint);
}

StatementLog::~StatementLog() {
    sqlite3_cancel_auto_extension(entryPoint);
}

std::vector<std::string> StatementLog::take() {
    return std::exchange(log, {});
}

} // namespace support
