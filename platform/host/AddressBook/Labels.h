// Labels of numbers and addresses in the device's language.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// The label as it is shown (UTF-8) in `language`: without the marks around the system's own labels,
/// translated where the word is known; a label without marks, which somebody typed, as it is.
[[nodiscard]] std::string localizedLabel(std::string_view label, std::string_view language);

} // namespace host
