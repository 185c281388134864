// Settings for Linux: shows preference bundles on a phone made of a folder, in a web page.
#include "simulator/api/Browser.h"
#include "simulator/api/Bundles.h"
#include "simulator/api/DeviceFolder.h"
#include "simulator/api/Routes.h"

#include "host/Control.h"
#include "host/Work.h"

#import <Foundation/Foundation.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <unistd.h>

namespace {

/// Carries the token over to a new start; no argument, because those are seen by everyone on the machine.
constexpr const char *tokenVariable = "ZELVORA_SIMULATOR_TOKEN";

std::string takeToken() {
    const char *given = std::getenv(tokenVariable);
    std::string token = given ? given : sim::makeToken();
    unsetenv(tokenVariable);
    return token;
}

host::DeviceOptions deviceOptions(const sim::Options &options) {
    const sim::ScreenSize screen = sim::screenSize(options.screen);
    host::DeviceOptions device;
    device.folder = std::filesystem::absolute(options.device);
    device.systemVersion = options.systemVersion;
    device.language = options.language;
    device.region = options.region;
    device.width = screen.width;
    device.height = screen.height;
    device.scale = screen.scale;
    device.virtualTime = options.virtualTime;
    return device;
}

/// One bundle opens by itself; of several the list of Settings offers the choice.
void showFirstPage(const sim::Options &options) {
    const std::vector<std::string> names = sim::bundleNames(options);
    host::closePages();
    if (names.size() == 1 && !sim::showBundle(options, names.front()))
        fprintf(stderr, "zelvora-simulator: %s cannot be opened\n", names.front().c_str());
}

/// Page code runs here, a turn of the run loop at a time, until `isOver`.
template<typename Condition>
void runUntil(const Condition &isOver) {
    while (!isOver()) {
        @autoreleasepool {
            [[NSRunLoop mainRunLoop] runMode:NSDefaultRunLoopMode beforeDate:[NSDate distantFuture]];
        }
    }
}

/// The requests under way may need the main thread, so it goes on running while another one waits for them.
void stop(sim::HttpServer &server) {
    bool stopped = false;
    std::thread waiting([&] {
        server.stop();
        host::later([&] { stopped = true; });
    });
    runUntil([&] { return stopped; });
    waiting.join();
}

/// Does not return when it succeeds.
int startAgain(const sim::Options &options, const std::string &token) {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe");
    std::vector<std::string> line = sim::commandLine(options);
    line.insert(line.begin(), program);
    std::vector<char *> arguments;
    for (std::string &argument : line)
        arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    setenv(tokenVariable, token.c_str(), 1);
    execv(program.c_str(), arguments.data());
    perror("zelvora-simulator: starting again");
    return 1;
}

int run(sim::Options options) {
    const std::string token = takeToken();
    const std::string problem = sim::prepareDeviceFolder(options);
    if (!problem.empty()) {
        fprintf(stderr, "zelvora-simulator: %s\n", problem.c_str());
        return 1;
    }
    host::start(deviceOptions(options));
    sim::HttpServer server({.token = token, .port = options.port});
    sim::Session session(options, server);
    sim::addRoutes(server, session);
    showFirstPage(options);
    if (!server.start()) {
        fprintf(stderr,
                "zelvora-simulator: port %d of 127.0.0.1 is taken or not allowed; another one can be given "
                "with --port\n",
                options.port);
        return 1;
    }
    printf("Settings for Linux: %s\n", server.address().c_str());
    fflush(stdout);
    if (options.open)
        sim::showInBrowser(server.address());
    runUntil([&] { return session.relaunchAsked().has_value(); });
    options = *session.relaunchAsked();
    options.port = server.port();
    stop(server);
    return startAgain(options, token);
}

} // namespace

int main(int argc, char **argv) {
    const sim::CommandLine line = sim::readCommandLine({argv + 1, argv + argc});
    if (!line.problem.empty()) {
        fprintf(stderr, "zelvora-simulator: %s\n", line.problem.c_str());
        return 2;
    }
    std::signal(SIGPIPE, SIG_IGN);
    @autoreleasepool {
        return run(line.options);
    }
}
