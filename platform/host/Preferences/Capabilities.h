// What the imitated phone can do, for rows that ask for it.
#pragma once

#include <string_view>

namespace host {

/// Whether the phone has a capability, by the names of UIRequiredDeviceCapabilities; false for unknown names.
[[nodiscard]] bool hasCapability(std::string_view name);

} // namespace host
