#include "simulator/api/Options.h"

#include <algorithm>
#include <charconv>
#include <functional>
#include <map>

namespace sim {

namespace {

struct NamedScreen {
    const char *name;
    ScreenSize size;
};

/// The phones that the system runs on, by their points.
constexpr NamedScreen screens[] = {
    {"320x480", {320, 480, 2}},
    {"320x568", {320, 568, 2}},
    {"375x667", {375, 667, 2}},
    {"414x736", {414, 736, 3}},
};

bool readNumber(const std::string &text, int least, int most, int &into) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), into);
    return error == std::errc{} && end == text.data() + text.size() && into >= least && into <= most;
}

bool keep(const std::string &text, bool valid, std::string &into) {
    into = text;
    return valid;
}

using Reader = std::function<bool(Options &, const std::string &)>;

/// The options that take a value; a reader says whether the value can be one.
const std::map<std::string, Reader> &readers() {
    static const std::map<std::string, Reader> all = {
        {"--device", [](Options &o, const std::string &v) { return keep(v, !v.empty(), o.device); }},
        {"--bundle", [](Options &o, const std::string &v) { return keep(v, !v.empty(), o.bundles); }},
        {"--ios",
         [](Options &o, const std::string &v) { return keep(v, isSystemVersion(v), o.systemVersion); }},
        {"--language", [](Options &o, const std::string &v) { return keep(v, isLanguage(v), o.language); }},
        {"--region", [](Options &o, const std::string &v) { return keep(v, isRegion(v), o.region); }},
        {"--screen",
         [](Options &o, const std::string &v) { return keep(v, screenSize(v).width > 0, o.screen); }},
        {"--port", [](Options &o, const std::string &v) { return readNumber(v, 0, 65535, o.port); }},
        {"--contacts",
         [](Options &o, const std::string &v) { return readNumber(v, 0, 100'000, o.contacts); }},
        {"--calls", [](Options &o, const std::string &v) { return readNumber(v, 0, 100'000, o.calls); }},
    };
    return all;
}

/// Sets the option `name` where it is one that stands alone.
bool setFlag(Options &options, const std::string &name) {
    if (name == "--virtual-time")
        options.virtualTime = true;
    else if (name == "--no-open")
        options.open = false;
    else
        return false;
    return true;
}

bool all(const std::string &text, bool (*accept)(char)) {
    return !text.empty() && std::all_of(text.begin(), text.end(), accept);
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

} // namespace

CommandLine readCommandLine(const std::vector<std::string> &arguments) {
    CommandLine read;
    for (std::size_t i = 0; i < arguments.size(); i++) {
        const std::string &name = arguments[i];
        if (setFlag(read.options, name))
            continue;
        if (const auto reader = readers().find(name); reader == readers().end()) {
            read.problem = "unknown option " + name + "; ./zv run --help lists the options";
        } else if (i + 1 == arguments.size()) {
            read.problem = name + " needs a value";
        } else if (!reader->second(read.options, arguments[++i])) {
            read.problem = name + " cannot be " + arguments[i];
        }
        if (!read.problem.empty())
            break;
    }
    return read;
}

std::vector<std::string> commandLine(const Options &options) {
    std::vector<std::string> line = {"--device",   options.device,   "--ios",    options.systemVersion,
                                     "--language", options.language, "--region", options.region,
                                     "--screen",   options.screen,   "--port",   std::to_string(options.port),
                                     "--no-open"};
    if (!options.bundles.empty())
        line.insert(line.end(), {"--bundle", options.bundles});
    if (options.virtualTime)
        line.emplace_back("--virtual-time");
    return line;
}

ScreenSize screenSize(const std::string &name) {
    for (const NamedScreen &screen : screens) {
        if (name == screen.name)
            return screen.size;
    }
    return {};
}

const std::vector<std::string> &screenNames() {
    static const std::vector<std::string> names = [] {
        std::vector<std::string> found;
        for (const NamedScreen &screen : screens)
            found.emplace_back(screen.name);
        return found;
    }();
    return names;
}

bool isSystemVersion(const std::string &text) {
    return text.size() <= 12 && all(text, [](char c) { return isDigit(c) || c == '.'; }) &&
           isDigit(text.front()) && isDigit(text.back());
}

bool isLanguage(const std::string &text) {
    return text.size() >= 2 && text.size() <= 12 && all(text, [](char c) { return isLetter(c) || c == '-'; });
}

bool isRegion(const std::string &text) {
    return text.size() == 2 && all(text, [](char c) { return c >= 'A' && c <= 'Z'; });
}

} // namespace sim
