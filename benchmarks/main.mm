// Runs the registered ratios. usage: zv_bench [--json FILE] [FILTER]     FILTER: a regular expression on
// their names
#include "host/PrivateDefaults.h"
#include "Report.h"

#import <Foundation/Foundation.h>

#include <cstdio>
#include <cstring>

namespace bench {
namespace {

std::vector<Maker> &makers() {
    static auto &all = *new std::vector<Maker>;
    return all;
}

void measure(const std::string &name, const std::function<void()> &work) {
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for (auto _ : state) {
            @autoreleasepool {
                work();
            }
        }
    })->UseRealTime();
}

std::vector<Ratio> makeRatios() {
    std::vector<Ratio> ratios;
    for (const Maker &maker : makers())
        ratios.push_back(maker());
    for (const Ratio &ratio : ratios) {
        measure(ratio.name + "/work", ratio.work);
        measure(ratio.name + "/bare", ratio.bare);
    }
    return ratios;
}

// Repetitions take turns, so that a slow moment of the machine meets both sides.
void configure(const std::string &filter) {
    std::vector<std::string> words{"zv_bench", "--benchmark_filter=" + (filter.empty() ? "." : filter),
                                   "--benchmark_repetitions=9", "--benchmark_min_time=0.05",
                                   "--benchmark_enable_random_interleaving=true"};
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
}

int run(const std::string &filter, const std::string &json) {
    configure(filter);
    Report report(makeRatios());
    if (benchmark::RunSpecifiedBenchmarks(&report) == 0) {
        std::fprintf(stderr, "zv_bench: nothing is called that\n");
        return 2;
    }
    const bool good = report.print();
    if (!json.empty() && !report.writeJSON(json)) {
        std::fprintf(stderr, "zv_bench: cannot write %s\n", json.c_str());
        return 2;
    }
    return good ? 0 : 1;
}

} // namespace

Registration::Registration(Maker maker) {
    makers().push_back(std::move(maker));
}

void use(const void *result) {
    benchmark::DoNotOptimize(result);
}

} // namespace bench

int main(int argc, char **argv) {
    host::usePrivateDefaults();
    std::string filter;
    std::string json;
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--json") == 0 && i + 1 < argc)
            json = argv[++i];
        else
            filter = argv[i];
    }
    @autoreleasepool {
        return bench::run(filter, json);
    }
}
