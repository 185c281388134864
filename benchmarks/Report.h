// What `./zv bench` tells: the table as it grows, and the same as JSON.
#pragma once

#include "Benchmark.h"

namespace bench {

class Report {
public:
    /// The head of the table, with the machine in it.
    void begin();

    /// Prints the line of one benchmark; without a result it failed.
    void add(const Benchmark &benchmark, const std::optional<Result> &result);

    [[nodiscard]] bool isEmpty() const { return m_lines.empty(); }
    /// True when every benchmark came to an end and none is over its bar.
    [[nodiscard]] bool allHeld() const;

    [[nodiscard]] bool writeJSON(const std::string &path) const;

private:
    struct Line {
        Benchmark benchmark;
        std::optional<Result> result;
    };

    std::vector<Line> m_lines;
    double m_load = 0; ///< of the machine in the last minute, before the first benchmark
};

} // namespace bench
