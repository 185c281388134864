// Gestures as JSON: {"kind": "tap", "number": 7}, or with the element described instead of numbered.
#pragma once

#include "host/Gesture.h"

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <variant>

namespace sim {

/// What a script knows of an element whose number it has not looked up. Empty members accept anything.
struct Description {
    std::string type;
    std::string label;
    std::string identifier;

    [[nodiscard]] bool matches(const host::Element &element) const;
};

struct GestureRequest {
    host::Gesture gesture;
    std::optional<Description> element; ///< to be looked up on the screen; gives number and part
};

/// The request, or why it is none.
[[nodiscard]] std::variant<GestureRequest, std::string> gestureFromJson(const nlohmann::json &json);

/// The first element of the screen that is described and can be acted on; null when there is none.
[[nodiscard]] const host::Element *findElement(const host::Element &screen, const Description &description);

[[nodiscard]] std::string outcomeName(host::Outcome outcome);

} // namespace sim
