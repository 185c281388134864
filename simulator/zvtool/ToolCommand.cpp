#include "simulator/zvtool/ToolCommand.h"

#include "simulator/demo/SqlFile.h"

#include <charconv>
#include <filesystem>

namespace sim {

namespace {

const std::string limitKey = "call_history_limit";
const std::string lifetimeKey = "timer_lifetime";
constexpr long long systemLimit = 100; // calls

std::optional<long long> readNumber(const std::string &text) {
    long long number = 0;
    auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    bool whole = error == std::errc() && end == text.data() + text.size();
    return whole ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<ToolCommand> readToolCommand(const std::vector<std::string> &arguments) {
    if (arguments == std::vector<std::string>{"-u"})
        return ToolCommand{limitKey, systemLimit};
    if (arguments.size() != 2 || (arguments[0] != "-i" && arguments[0] != "-l"))
        return {};
    std::optional<long long> number = readNumber(arguments[1]);
    if (!number)
        return {};
    return ToolCommand{arguments[0] == "-i" ? limitKey : lifetimeKey, *number};
}

bool runToolCommand(const ToolCommand &command, const std::string &path) {
    if (!std::filesystem::is_regular_file(path))
        return false;
    try {
        SqlFile(path).run("INSERT OR REPLACE INTO _SqliteDatabaseProperties (key, value) VALUES (?, ?)",
                          {command.key, std::to_string(command.value)});
        return true;
    } catch (const SqlError &) {
        return false;
    }
}

} // namespace sim
