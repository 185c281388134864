// Where the parts of alerts and sheets lie. Points, in the window.
#pragma once

#include "host/Element.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace host {

inline constexpr double alertTitlePoints = 17, alertMessagePoints = 14, alertButtonPoints = 17;
inline constexpr double sheetTitlePoints = 13, sheetButtonPoints = 20;

struct PopupParts {
    std::u16string_view title, message;
    std::size_t fields = 0;
    std::vector<std::u16string_view> buttons; ///< titles by index
    std::ptrdiff_t cancel = -1;               ///< index of the cancel button, -1 for none
};

struct PopupPlaces {
    Rect frame;
    Rect title, message;
    std::vector<Rect> fields;
    std::vector<Rect> buttons; ///< by index
};

/// In the middle of the window. Two short buttons lie side by side, others one below the other with the
/// cancel button last.
[[nodiscard]] PopupPlaces alertPlaces(const PopupParts &parts, double windowWidth, double windowHeight);

/// At the bottom of the window: the title and the buttons in one block, the cancel button in one of its own
/// below.
[[nodiscard]] PopupPlaces sheetPlaces(const PopupParts &parts, double windowWidth, double windowHeight);

} // namespace host
