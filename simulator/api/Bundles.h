// Which settings bundles the phone shows.
#pragma once

#include "simulator/api/Options.h"

#include <filesystem>
#include <string>
#include <vector>

namespace sim {

/// The bundle folders to show: the one given, those in the folder given, or this project's own. Sorted.
[[nodiscard]] std::vector<std::filesystem::path> bundleFolders(const Options &options);

/// Their names, ending left out.
[[nodiscard]] std::vector<std::string> bundleNames(const Options &options);

/// The languages that the bundles have texts in.
[[nodiscard]] std::vector<std::string> bundleLanguages(const Options &options);

/// Opens the bundle of that name, as a tap on its row in Settings does. Main thread.
[[nodiscard]] bool showBundle(const Options &options, const std::string &name);

} // namespace sim
