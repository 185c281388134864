// How the simulator is started: the command line, read and written.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace sim {

/// What the simulator was started with.
struct Options {
    std::string device = "build/device"; ///< folder that stands for the phone's "/"
    std::string systemVersion = "8.1";
    std::string language = "en";
    std::string region = "US";
    std::string screen = "320x568"; ///< points
    std::string bundles;            ///< another bundle folder, or a folder of several; "" for the own one
    int port = 0;
    int contacts = -1; ///< people of a new demo device; -1 for its own choice
    int calls = -1;    ///< calls of a new demo device, likewise
    bool virtualTime = false;
    bool open = true; ///< show the page in a browser where there is a desktop
};

/// The command line read, or `problem` says what is wrong with it.
struct CommandLine {
    Options options;
    std::string problem;
};
[[nodiscard]] CommandLine readCommandLine(const std::vector<std::string> &arguments);

/// The command line that starts the simulator again with `options`, program name left out.
[[nodiscard]] std::vector<std::string> commandLine(const Options &options);

struct ScreenSize {
    double width = 0, height = 0, scale = 0;
};
/// The screen called `name` ("320x568"); width 0 for an unknown one.
[[nodiscard]] ScreenSize screenSize(const std::string &name);

/// Names of the screens, system versions and languages offered for choice.
[[nodiscard]] const std::vector<std::string> &screenNames();

/// Whether the text can be a system version ("8.1.2"), a language ("zh-Hans") or a region ("CN").
[[nodiscard]] bool isSystemVersion(const std::string &text);
[[nodiscard]] bool isLanguage(const std::string &text);
[[nodiscard]] bool isRegion(const std::string &text);

} // namespace sim
