// How work grows with what it works on, told without a word about how fast the machine is.
#pragma once

#include <functional>
#include <gtest/gtest.h>

namespace support {

/// Whether `much` takes at most `factor` times the processor's time of `little`. They take turns, and the
/// shortest time of each counts: whatever else the machine does only adds to it. Ends as soon as it is
/// certain.
[[nodiscard]] testing::AssertionResult growsAtMost(double factor, const std::function<void()> &little,
                                                   const std::function<void()> &much);

} // namespace support
