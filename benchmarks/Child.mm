#include "Child.h"

#import <Foundation/Foundation.h>

#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {
namespace {

/// A line of proc(5)'s status in bytes: "VmRSS:" what the process holds in memory, "VmHWM:" the most that it
/// held.
double memory(const std::string &line) {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        double kilobytes = 0;
        if (word == line && status >> kilobytes)
            return kilobytes * 1024;
    }
    return 0;
}

void doIt(const Work &work) {
    @autoreleasepool {
        work();
    }
}

double rise(const Work &work) {
    malloc_trim(0);
    const double before = memory("VmRSS:");
    std::ofstream("/proc/self/clear_refs") << 5; // the peak starts over: proc(5)
    doIt(work);
    return memory("VmHWM:") - before;
}

/// The child's side: never returns, and leaves alone what the parent does at its end.
[[noreturn]] void answer(int pipe, const std::function<Result()> &measure) {
    Result result;
    bool measured = false;
    try {
        @autoreleasepool {
            result = measure();
            measured = true;
        }
    } catch (const std::exception &error) {
        std::fprintf(stderr, "zv_bench: %s\n", error.what());
    }
    _exit(measured && write(pipe, &result, sizeof result) == sizeof result ? 0 : 1);
}

bool endedWell(pid_t child) {
    int status = 0;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace

std::optional<Result> inChild(const std::function<Result()> &measure) {
    int ends[2];
    if (pipe(ends) != 0)
        return std::nullopt;
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child == 0)
        answer(ends[1], measure);
    close(ends[1]);
    Result result;
    const bool arrived = read(ends[0], &result, sizeof result) == sizeof result;
    close(ends[0]);
    if (child < 0 || !endedWell(child) || !arrived)
        return std::nullopt;
    return result;
}

std::optional<double> peakBytes(const Work &before, const Work &work) {
    const auto measured = inChild([&] {
        doIt(before);
        return Result{.figure = rise(work)};
    });
    return measured ? std::optional(measured->figure) : std::nullopt;
}

} // namespace bench
