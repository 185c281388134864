// Sizes of the parts of a screen that several classes must agree on, in points, as on a phone held upright.
#pragma once

namespace host {

inline constexpr double statusBarHeight = 20;
inline constexpr double navigationBarHeight = 44;
inline constexpr double keyboardHeight = 216;

} // namespace host
