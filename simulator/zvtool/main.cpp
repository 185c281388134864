// zvtool: stands in the device folder for the tool that has the rights to change the older call history.
// usage: zvtool -i N | -u | -l N
//
// The device folder is $DEVICE, or else the folder that holds Library/Zelvora/zvtool. Where a file
// zvtool.fail lies in the device's Library/Zelvora, the tool fails without doing anything, so that one can
// see what its failure looks like. Exit status: 0 done, 1 failed, 2 arguments that mean nothing.
#include "simulator/zvtool/ToolCommand.h"

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>

namespace {

namespace fs = std::filesystem;

constexpr int failed = 1;
constexpr int usageError = 2;

const fs::path toolFolder = "Library/Zelvora";
const fs::path callHistory = "var/wireless/Library/CallHistory/call_history.db";

fs::path deviceFolder() {
    if (const char *device = std::getenv("DEVICE"))
        return device;
    return fs::read_symlink("/proc/self/exe").parent_path().parent_path().parent_path();
}

int run(const std::vector<std::string> &arguments) {
    std::optional<sim::ToolCommand> command = sim::readToolCommand(arguments);
    if (!command) {
        std::fputs("usage: zvtool -i N | -u | -l N\n", stderr);
        return usageError;
    }
    const fs::path device = deviceFolder();
    if (fs::exists(device / toolFolder / "zvtool.fail"))
        return failed;
    return sim::runToolCommand(*command, device / callHistory) ? EXIT_SUCCESS : failed;
}

} // namespace

int main(int argc, char **argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception &error) {
        std::fprintf(stderr, "zvtool: %s\n", error.what());
        return failed;
    }
}
