// The folder of one run of the program, for the files that the benchmarks work on.
#pragma once

#include <filesystem>

namespace bench {

/// Made at the first call; a child process uses that of its parent.
[[nodiscard]] const std::filesystem::path &folder();

/// Removes the folder with all that is in it.
void removeFolder();

} // namespace bench
