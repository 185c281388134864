// Time, as Google Benchmark takes it.
#pragma once

#include "Benchmark.h"

namespace bench {

/// The processor's seconds for one run of each work: the median of many repetitions, in which the works take
/// turns, so that a slow moment of the machine meets all of them. Once in the life of a process.
[[nodiscard]] std::vector<double> secondsOfEach(const std::vector<Work> &works);

/// The middle one of some numbers, at least one.
[[nodiscard]] double median(std::vector<double> numbers);

} // namespace bench
