// What the stand-in for the privileged tool can be told to do.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace sim {

/// One change to the properties of the older call history.
struct ToolCommand {
    std::string key; ///< of `_SqliteDatabaseProperties`
    long long value; ///< calls or seconds
};

/// Reads the arguments behind the program's name: "-i N" (limit of N calls), "-u" (the system's limit) or "-l
/// N" (timer lifetime of N seconds); nothing for any others.
[[nodiscard]] std::optional<ToolCommand> readToolCommand(const std::vector<std::string> &arguments);

/// Carries a command out on the database at `path`. False where there is no such database or it cannot be
/// changed.
[[nodiscard]] bool runToolCommand(const ToolCommand &command, const std::string &path);

} // namespace sim
