// What the bundle did, as JSON.
#pragma once

#include "host/Clock.h"
#include "host/EventLog.h"

#include <nlohmann/json.hpp>

namespace sim {

/// {"number", "time", "kind", "text", "detail", "status"}; kinds are named as in host::EventKind. The text of
/// a vibration is given once more, parsed, as "vibration".
[[nodiscard]] nlohmann::json toJson(const host::Event &event);

/// {"selector", "due", "delay"}
[[nodiscard]] nlohmann::json toJson(const host::PendingCall &call);

} // namespace sim
