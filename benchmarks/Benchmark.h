// How a benchmark is written down. Each is a line of the table that `./zv bench` prints, and runs in a
// process of its own, started anew as a phone's Settings would be: none of them meets what another one left
// behind.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace bench {

using Work = std::function<void()>;

/// A piece of work and the bare work that any implementation of it would have to do.
struct Works {
    Work ours;
    Work bare;
};

/// What we want a figure to be at most, and what it must be at most; a figure without them is for the record.
struct Limits {
    std::optional<double> aim{};
    std::optional<double> bar{};
};

/// What came of a benchmark. Seconds are those of the processor: other programs on the machine do not count.
struct Result {
    double figure = 0;      ///< what the limits are about, in the unit of the benchmark
    double ourSeconds = 0;  ///< 0 where nothing was timed
    double bareSeconds = 0; ///< 0 where there is no bare work
};

/// One line of the table.
struct Benchmark {
    std::string name;
    std::string unit; ///< "x" for a ratio
    Limits limits;
    std::function<Result()> measure;
};

/// All benchmarks, in the order of the table.
[[nodiscard]] std::vector<Benchmark> benchmarks();

// A global of one of these types adds a benchmark. Globals are made before Objective-C works: messages belong
// into the functions given. `prepare` runs once, untimed.
//
//     const bench::Ratio reading("Property list: read", {.aim = 1, .bar = 2}, [] { ... return Works{...}; });

/// The time of a work divided by that of its bare work.
struct Ratio {
    Ratio(const char *name, Limits limits, std::function<Works()> prepare);
};

/// The time of a work in milliseconds. A machine's own speed shows in it, so there is no bar.
struct Time {
    Time(const char *name, double aim, std::function<Work()> prepare);
};

/// A number that is measured in one go.
struct Amount {
    Amount(const char *name, const char *unit, Limits limits, std::function<double()> measure);
};

/// Keeps the compiler from dropping work whose result nobody reads.
void use(const void *result);

} // namespace bench
