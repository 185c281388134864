// Collects the times of works and bare works and tells their ratios.
#pragma once

#include "Ratio.h"

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace bench {

class Report : public benchmark::BenchmarkReporter {
public:
    explicit Report(std::vector<Ratio> ratios) : m_ratios(std::move(ratios)) {}

    bool ReportContext(const Context &context) override;
    void ReportRuns(const std::vector<Run> &runs) override;

    /// The table, on the standard output. True when no ratio is over its bar.
    bool print() const;

    /// The same as JSON.
    [[nodiscard]] bool writeJSON(const std::string &path) const;

private:
    struct Line {
        const Ratio *ratio;
        double work; ///< seconds
        double bare;
    };

    [[nodiscard]] std::vector<Line> lines() const;

    std::vector<Ratio> m_ratios;
    std::map<std::string, double> m_best; ///< seconds of the quickest repetition, by name
};

} // namespace bench
