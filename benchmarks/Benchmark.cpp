#include "Benchmark.h"

#include "Timing.h"

#include <algorithm>
#include <benchmark/benchmark.h>

namespace bench {
namespace {

std::vector<Benchmark> &registered() {
    static auto &all = *new std::vector<Benchmark>;
    return all;
}

Result ratioOf(const Works &works) {
    const std::vector<double> seconds = secondsOfEach({works.ours, works.bare});
    return {.figure = seconds[0] / seconds[1], .ourSeconds = seconds[0], .bareSeconds = seconds[1]};
}

Result timeOf(const Work &work) {
    const double seconds = secondsOfEach({work})[0];
    return {.figure = seconds * 1e3, .ourSeconds = seconds};
}

} // namespace

std::vector<Benchmark> benchmarks() {
    std::vector<Benchmark> sorted = registered();
    std::stable_sort(sorted.begin(), sorted.end(), [](const Benchmark &one, const Benchmark &other) {
        return one.name.substr(0, one.name.find(':')) < other.name.substr(0, other.name.find(':'));
    });
    return sorted;
}

Ratio::Ratio(const char *name, Limits limits, std::function<Works()> prepare) {
    registered().push_back({name, "x", limits, [prepare] { return ratioOf(prepare()); }});
}

Time::Time(const char *name, double aim, std::function<Work()> prepare) {
    registered().push_back({name, "ms", {.aim = aim}, [prepare] { return timeOf(prepare()); }});
}

Amount::Amount(const char *name, const char *unit, Limits limits, std::function<double()> measure) {
    registered().push_back({name, unit, limits, [measure] { return Result{.figure = measure()}; }});
}

void use(const void *result) {
    benchmark::DoNotOptimize(result);
}

} // namespace bench
