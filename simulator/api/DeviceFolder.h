// The folder that stands for the phone's "/": what the simulator puts there before the phone starts.
#pragma once

#include "simulator/api/Options.h"

#include <string>

namespace sim {

/// Lays out the device folder: the usual directories, the product's data, the bundles with an entry for each
/// in the list of Settings. What is there already stays as it is, except that the bundles are those of
/// `options`. The databases of a demo device are made where the folder is new. What went wrong; empty when
/// all is well.
[[nodiscard]] std::string prepareDeviceFolder(const Options &options);

} // namespace sim
