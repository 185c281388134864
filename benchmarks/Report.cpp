#include "Report.h"

#include <algorithm>
#include <cstdio>
#include <fstream>

namespace bench {

bool Report::ReportContext(const Context &) {
    return true;
}

// Other programs on the machine only ever add time: the quickest repetition is the truest.
void Report::ReportRuns(const std::vector<Run> &runs) {
    for (const Run &run : runs) {
        if (run.run_type != Run::RT_Iteration || run.iterations == 0)
            continue;
        const double seconds = run.real_accumulated_time / static_cast<double>(run.iterations);
        const auto [known, isNew] = m_best.emplace(run.run_name.function_name, seconds);
        if (!isNew)
            known->second = std::min(known->second, seconds);
    }
}

std::vector<Report::Line> Report::lines() const {
    std::vector<Line> all;
    for (const Ratio &ratio : m_ratios) {
        const auto work = m_best.find(ratio.name + "/work");
        const auto bare = m_best.find(ratio.name + "/bare");
        if (work != m_best.end() && bare != m_best.end())
            all.push_back({&ratio, work->second, bare->second});
    }
    return all;
}

bool Report::print() const {
    bool good = true;
    std::printf("%-48s %11s %11s %7s %5s %5s\n", "", "ours ms", "bare ms", "ratio", "aim", "bar");
    for (const Line &line : lines()) {
        const double ratio = line.work / line.bare;
        const bool isGood = ratio <= line.ratio->bar;
        good = good && isGood;
        std::printf("%-48s %11.4f %11.4f %7.2f %5.1f %5.1f%s\n", line.ratio->name.c_str(), line.work * 1e3,
                    line.bare * 1e3, ratio, line.ratio->aim, line.ratio->bar, isGood ? "" : "  OVER THE BAR");
    }
    return good;
}

bool Report::writeJSON(const std::string &path) const {
    std::ofstream file(path);
    const char *separator = "[\n";
    for (const Line &line : lines()) {
        file << separator << "  {\"name\": \"" << line.ratio->name << "\", \"ours_ms\": " << line.work * 1e3
             << ", \"bare_ms\": " << line.bare * 1e3 << ", \"ratio\": " << line.work / line.bare
             << ", \"aim\": " << line.ratio->aim << ", \"bar\": " << line.ratio->bar << "}";
        separator = ",\n";
    }
    file << (*separator == '[' ? "[" : "\n") << "]\n";
    return file.good();
}

} // namespace bench
