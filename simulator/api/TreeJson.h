// The screen as JSON.
#pragma once

#include "host/Element.h"
#include "simulator/api/ImageNames.h"

#include <nlohmann/json.hpp>

namespace sim {

/// An element and what it contains. Members that say nothing (an empty label, `enabled` true, `selected`
/// false, no children) are left out. The files of images become addresses that the server answers.
[[nodiscard]] nlohmann::json toJson(const host::Element &element, ImageNames &images);

} // namespace sim
