#include "Timing.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <map>

namespace bench {
namespace {

/// Keeps the time of every repetition and prints nothing.
class Collector : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &run : runs) {
            if (run.run_type == Run::RT_Iteration && run.iterations > 0)
                m_seconds[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                                static_cast<double>(run.iterations));
        }
    }

    [[nodiscard]] const std::vector<double> &secondsOf(const std::string &name) const {
        return m_seconds.at(name);
    }

private:
    std::map<std::string, std::vector<double>> m_seconds;
};

void initialize() {
    std::vector<std::string> words{"zv_bench", "--benchmark_repetitions=9", "--benchmark_min_time=0.1",
                                   "--benchmark_enable_random_interleaving=true"};
    std::vector<char *> arguments;
    for (std::string &word : words)
        arguments.push_back(word.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
}

void add(const std::string &name, const Work &work) {
    benchmark::RegisterBenchmark(name.c_str(), [work](benchmark::State &state) {
        for ([[maybe_unused]] auto step : state) {
            @autoreleasepool {
                work();
            }
        }
    })->MeasureProcessCPUTime();
}

} // namespace

std::vector<double> secondsOfEach(const std::vector<Work> &works) {
    initialize();
    for (std::size_t i = 0; i < works.size(); ++i)
        add(std::to_string(i), works[i]);
    Collector collector;
    benchmark::RunSpecifiedBenchmarks(&collector);
    std::vector<double> seconds;
    for (std::size_t i = 0; i < works.size(); ++i)
        seconds.push_back(median(collector.secondsOf(std::to_string(i))));
    return seconds;
}

double median(std::vector<double> numbers) {
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::nth_element(numbers.begin(), middle, numbers.end());
    return *middle;
}

} // namespace bench
