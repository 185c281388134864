// Processes of their own for what is measured.
#pragma once

#include "Benchmark.h"

#include <optional>

namespace bench {

/// What `measure` returns in a copy of this process; nothing when the copy came to a bad end.
[[nodiscard]] std::optional<Result> inChild(const std::function<Result()> &measure);

/// By how many bytes the memory of a process rises at most while it does `work`. `before` runs first, in the
/// same process, and pays what is paid once: libraries' pages, tables of dates and languages. Nothing when
/// the work came to a bad end.
[[nodiscard]] std::optional<double> peakBytes(const Work &before, const Work &work);

} // namespace bench
