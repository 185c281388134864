// The C library's `system` for bundles: found before the C library's own, it runs the phone's command lines
// inside the device folder (system(3)).
#include "host/CommandLine.h"
#include "host/Device.h"
#include "host/EventLog.h"
#include "host/Failure.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace host {
namespace {

constexpr int cannotExecute = 126;

// Ending processes of this machine is not what a phone's command line means.
constexpr const char *prelude = "killall() { :; }\npkill() { :; }\nkill() { :; }\n";

std::vector<std::string> environment() {
    const std::string &folder = device().folder;
    return {"PATH=" + folder + "/usr/bin:/usr/bin:/bin", "HOME=" + folder + "/var/mobile",
            "TMPDIR=" + folder + "/tmp", "LANG=C.UTF-8", "DEVICE=" + folder};
}

[[noreturn]] void runShell(const char *folder, char *const *arguments, char *const *variables) {
    if (chdir(folder) == 0)
        execve("/bin/sh", arguments, variables);
    _exit(cannotExecute + 1);
}

// Between fork and exec nothing may be allocated.
int run(std::string script) {
    std::array<std::string, 2> words{"sh", "-c"};
    const std::array<char *, 4> arguments{words[0].data(), words[1].data(), script.data(), nullptr};
    std::vector<std::string> settings = environment();
    std::vector<char *> variables;
    variables.reserve(settings.size() + 1);
    for (std::string &setting : settings)
        variables.push_back(setting.data());
    variables.push_back(nullptr);
    const char *folder = device().folder.c_str();
    const pid_t child = fork();
    if (child == 0)
        runShell(folder, arguments.data(), variables.data());
    int status = -1;
    while (child > 0 && waitpid(child, &status, 0) < 0) {
        if (errno != EINTR)
            return -1;
    }
    return status;
}

int exitStatus(int status) {
    if (status == -1)
        return -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

int perform(const std::string &command) {
    const std::optional<std::string> confined = confinedCommand(command, device().folder);
    if (confined)
        return run(prelude + *confined);
    record(EventKind::log, "a command line that could reach outside the device folder was not run", command);
    return cannotExecute << 8;
}

} // namespace
} // namespace host

extern "C" int system(const char *command) {
    if (!command)
        return 1;
    if (host::device().folder.empty())
        host::fail("host::start() comes before any command line");
    const int status = host::perform(command);
    host::record(host::EventKind::command, command, {}, host::exitStatus(status));
    return status;
}
