// What is asked of SQLite, in its own words.
#pragma once

#include <string>
#include <vector>

namespace support {

/// While it lives, writes down what every new connection does: "(open)", each statement that is run, as it
/// was prepared, and "(close)". A statement that cannot be prepared is never run.
class StatementLog {
public:
    StatementLog();
    ~StatementLog();
    StatementLog(const StatementLog &) = delete;
    StatementLog &operator=(const StatementLog &) = delete;

    /// What was written down since the last call.
    [[nodiscard]] std::vector<std::string> take();
};

} // namespace support
