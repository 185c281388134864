// Any text as a command line of the phone: in a line that is let through, the words that a shell makes of it
// name nothing outside the device folder. The splitting below is a second reading of the shell's rules, kept
// plain on purpose.
#include "host/CommandLine.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

bool climbs(std::string_view path) {
    return path == ".." || path.starts_with("../") || path.ends_with("/..") ||
           path.find("/../") != std::string_view::npos;
}

bool reachesOutside(std::string_view word) {
    const std::string_view path = word.substr(word.find('=') + 1);
    const bool isAbsolute = path.starts_with('/') && path != "/dev/null";
    const bool isOfTheDevice = path == "/device" || path.starts_with("/device/");
    return climbs(word) || (isAbsolute && !isOfTheDevice);
}

void require(bool holds) {
    if (!holds)
        std::abort();
}

// The words of a line after the shell has taken the quotes off; no expansion may be left in it.
std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> all(1);
    char quote = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (quote == 0 && std::string_view(" \t\n;|&()<>").find(c) != std::string_view::npos) {
            all.emplace_back();
        } else if (c == quote || (quote == 0 && (c == '"' || c == '\''))) {
            quote = quote != 0 ? '\0' : c;
        } else if (c == '\\' && quote != '\'') {
            require(++i < line.size());
            const bool isEscape =
                quote == 0 || std::string_view("\\\"$`").find(line[i]) != std::string_view::npos;
            (all.back() += isEscape ? "" : "\\") += line[i];
        } else {
            require(quote == '\'' || (c != '$' && c != '`'));
            all.back() += c;
        }
    }
    require(quote == 0);
    return all;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    std::string command(reinterpret_cast<const char *>(data), size);
    command.resize(command.find('\0') == std::string::npos ? size : command.find('\0'));
    const auto confined = host::confinedCommand(command, "/device");
    if (!confined)
        return 0;
    for (const std::string &word : words(*confined))
        require(!reachesOutside(word));
    return 0;
}
