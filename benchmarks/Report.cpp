#include "Report.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <thread>

namespace bench {
namespace {

constexpr const char *lineForm = "%-52s %11s %11s %12s %7s %7s  %s\n";

enum class Verdict { failed, overTheBar, overTheAim, held, noted };

Verdict verdict(const Benchmark &benchmark, const std::optional<Result> &result) {
    const auto &[aim, bar] = benchmark.limits;
    if (!result || !std::isfinite(result->figure))
        return Verdict::failed;
    if (bar && result->figure > *bar)
        return Verdict::overTheBar;
    if (!aim && !bar)
        return Verdict::noted;
    return aim && result->figure > *aim ? Verdict::overTheAim : Verdict::held;
}

const char *words(Verdict verdict) {
    switch (verdict) {
    case Verdict::failed: return "FAILED";
    case Verdict::overTheBar: return "OVER THE BAR";
    case Verdict::overTheAim: return "over the aim";
    case Verdict::held: return "held";
    case Verdict::noted: return "";
    }
    return "";
}

std::string text(double number) {
    char digits[32];
    std::snprintf(digits, sizeof digits, std::abs(number) < 100 ? "%.2f" : "%.0f", number);
    return digits;
}

std::string text(const std::optional<double> &number) {
    return number ? text(*number) : "-";
}

std::string milliseconds(double seconds) {
    return seconds > 0 ? text(seconds * 1e3) + " ms" : "";
}

nlohmann::ordered_json numberOrNull(const std::optional<double> &number) {
    return number ? nlohmann::ordered_json(*number) : nlohmann::ordered_json(nullptr);
}

nlohmann::ordered_json timeOrNull(double seconds) {
    return numberOrNull(seconds > 0 ? std::optional(seconds * 1e3) : std::nullopt);
}

nlohmann::ordered_json json(const Benchmark &benchmark, const std::optional<Result> &result) {
    const Result measured = result.value_or(Result{});
    return {{"name", benchmark.name},
            {"figure", numberOrNull(result ? std::optional(measured.figure) : std::nullopt)},
            {"unit", benchmark.unit},
            {"ours_ms", timeOrNull(measured.ourSeconds)},
            {"bare_ms", timeOrNull(measured.bareSeconds)},
            {"aim", numberOrNull(benchmark.limits.aim)},
            {"bar", numberOrNull(benchmark.limits.bar)},
            {"verdict", words(verdict(benchmark, result))}};
}

} // namespace

void Report::begin() {
    getloadavg(&m_load, 1);
    std::printf("%u processors, load %.1f; times are the processor's, medians of 9 repetitions\n\n",
                std::thread::hardware_concurrency(), m_load);
    std::printf(lineForm, "", "ours", "bare", "figure", "aim", "bar", "");
}

void Report::add(const Benchmark &benchmark, const std::optional<Result> &result) {
    m_lines.push_back({benchmark, result});
    const Result measured = result.value_or(Result{});
    const std::string figure = result ? text(measured.figure) + " " + benchmark.unit : "";
    std::printf(lineForm, benchmark.name.c_str(), milliseconds(measured.ourSeconds).c_str(),
                milliseconds(measured.bareSeconds).c_str(), figure.c_str(),
                text(benchmark.limits.aim).c_str(), text(benchmark.limits.bar).c_str(),
                words(verdict(benchmark, result)));
    std::fflush(stdout);
}

bool Report::allHeld() const {
    return std::none_of(m_lines.begin(), m_lines.end(), [](const Line &line) {
        const Verdict one = verdict(line.benchmark, line.result);
        return one == Verdict::failed || one == Verdict::overTheBar;
    });
}

bool Report::writeJSON(const std::string &path) const {
    nlohmann::ordered_json lines = nlohmann::ordered_json::array();
    for (const Line &line : m_lines)
        lines.push_back(json(line.benchmark, line.result));
    const nlohmann::ordered_json report{
        {"processors", std::thread::hardware_concurrency()}, {"load", m_load}, {"benchmarks", lines}};
    std::ofstream file(path);
    file << report.dump(2) << "\n";
    file.close();
    return file.good();
}

} // namespace bench
