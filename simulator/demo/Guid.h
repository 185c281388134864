// Identifiers as the phone's databases hold them.
#pragma once

#include <random>
#include <string>

namespace sim {

/// A random UUID (RFC 4122, version 4) in upper case: 36 characters.
[[nodiscard]] std::string makeGuid(std::mt19937_64 &random);

} // namespace sim
