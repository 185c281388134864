#include "simulator/api/Options.h"

#include <algorithm>
#include <charconv>
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

/// An option that takes a value.
struct Reader {
    const char *wanted; ///< what its value must be
    /// Takes the value over and says whether it can be one.
    bool (*read)(Options &, const std::string &);
};

const std::map<std::string, Reader> &readers() {
    static const std::map<std::string, Reader> all = {
        {"--device",
         {"the name of a folder",
          [](Options &o, const std::string &v) { return keep(v, !v.empty(), o.device); }}},
        {"--bundle",
         {"the name of a folder",
          [](Options &o, const std::string &v) { return keep(v, !v.empty(), o.bundles); }}},
        {"--ios",
         {"a system version such as 7.1.2",
          [](Options &o, const std::string &v) { return keep(v, isSystemVersion(v), o.systemVersion); }}},
        {"--language",
         {"a language such as zh-Hans",
          [](Options &o, const std::string &v) { return keep(v, isLanguage(v), o.language); }}},
        {"--region",
         {"two capital letters such as CN",
          [](Options &o, const std::string &v) { return keep(v, isRegion(v), o.region); }}},
        {"--screen",
         {"320x480, 320x568, 375x667 or 414x736",
          [](Options &o, const std::string &v) { return keep(v, screenSize(v).width > 0, o.screen); }}},
        {"--port",
         {"a number up to 65535",
          [](Options &o, const std::string &v) { return readNumber(v, 0, 65535, o.port); }}},
        {"--contacts",
         {"a number up to 100000",
          [](Options &o, const std::string &v) { return readNumber(v, 0, 100'000, o.contacts); }}},
        {"--calls",
         {"a number up to 100000",
          [](Options &o, const std::string &v) { return readNumber(v, 0, 100'000, o.calls); }}},
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
            read.problem = name + " needs a value: " + reader->second.wanted;
        } else if (!reader->second.read(read.options, arguments[++i])) {
            read.problem = name + " cannot be \"" + arguments[i] + "\", it is " + reader->second.wanted;
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
