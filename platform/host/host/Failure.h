// For mistakes of the program itself: the platform stops loudly instead of pretending.
#pragma once

#include <string>

namespace host {

/// Writes `message` to stderr and aborts.
[[noreturn]] void fail(const std::string &message);

} // namespace host
