#include "simulator/api/GestureJson.h"

#include <array>
#include <cmath>

namespace sim {

using host::Element;
using host::GestureKind;
using Json = nlohmann::json;

namespace {

struct NamedKind {
    const char *name;
    GestureKind kind;
};

constexpr std::array kinds = {
    NamedKind{"tap", GestureKind::tap},
    NamedKind{"slide", GestureKind::slide},
    NamedKind{"type", GestureKind::type},
    NamedKind{"replace", GestureKind::replace},
    NamedKind{"clear", GestureKind::clear},
    NamedKind{"returnKey", GestureKind::returnKey},
    NamedKind{"swipe", GestureKind::swipe},
    NamedKind{"closeSwipe", GestureKind::closeSwipe},
    NamedKind{"scroll", GestureKind::scroll},
    NamedKind{"back", GestureKind::back},
    NamedKind{"backSwipe", GestureKind::backSwipe},
    NamedKind{"backSwipeGivenUp", GestureKind::backSwipeGivenUp},
    NamedKind{"tapOutside", GestureKind::tapOutside},
};

constexpr std::array gestureMembers = {"kind", "number", "part", "amount", "text", "element"};
constexpr std::array descriptionMembers = {"type", "label", "identifier"};

template<typename Names>
std::string unknownMember(const Json &json, const Names &names) {
    for (const auto &[name, value] : json.items()) {
        if (std::find(names.begin(), names.end(), name) == names.end())
            return name;
    }
    return {};
}

/// Copies the text member `name` to `into`; false when it is something else than text.
bool readText(const Json &json, const char *name, std::string &into) {
    const auto found = json.find(name);
    if (found == json.end())
        return true;
    if (!found->is_string())
        return false;
    into = found->get<std::string>();
    return true;
}

std::string readKind(const Json &json, GestureKind &into) {
    std::string name;
    if (!readText(json, "kind", name) || name.empty())
        return "\"kind\" must name a gesture";
    for (const NamedKind &known : kinds) {
        if (name == known.name) {
            into = known.kind;
            return {};
        }
    }
    return "there is no gesture \"" + name + "\"";
}

std::string readNumbers(const Json &json, host::Gesture &into) {
    const auto number = json.find("number");
    if (number != json.end()) {
        if (!number->is_number_unsigned())
            return "\"number\" must be the number of an element";
        into.number = number->get<std::uint64_t>();
    }
    const auto amount = json.find("amount");
    if (amount != json.end()) {
        if (!amount->is_number() || !std::isfinite(amount->get<double>()))
            return "\"amount\" must be a number";
        into.amount = amount->get<double>();
    }
    return {};
}

std::string readDescription(const Json &json, std::optional<Description> &into) {
    const auto found = json.find("element");
    if (found == json.end())
        return {};
    if (!found->is_object() || found->empty() || !unknownMember(*found, descriptionMembers).empty())
        return "\"element\" takes \"type\", \"label\" and \"identifier\"";
    Description described;
    if (!readText(*found, "type", described.type) || !readText(*found, "label", described.label) ||
        !readText(*found, "identifier", described.identifier))
        return "\"element\" is described by texts";
    into = described;
    return {};
}

std::string read(const Json &json, GestureRequest &into) {
    const std::string unknown = unknownMember(json, gestureMembers);
    if (!unknown.empty())
        return "a gesture has no \"" + unknown + "\"";
    if (!readText(json, "part", into.gesture.part) || !readText(json, "text", into.gesture.text))
        return "\"part\" and \"text\" must be texts";
    for (const std::string &fault : {readKind(json, into.gesture.kind), readNumbers(json, into.gesture),
                                     readDescription(json, into.element)}) {
        if (!fault.empty())
            return fault;
    }
    return {};
}

bool accepts(const std::string &wanted, const std::string &actual) {
    return wanted.empty() || wanted == actual;
}

/// What a person calls the element: an empty field by its placeholder.
std::string nameOf(const Element &element) {
    return element.label.empty() ? element.text("placeholder") : element.label;
}

} // namespace

bool Description::matches(const Element &element) const {
    return element.number != 0 && accepts(type, element.type) && accepts(label, nameOf(element)) &&
           accepts(identifier, element.identifier);
}

std::variant<GestureRequest, std::string> gestureFromJson(const Json &json) {
    GestureRequest request;
    std::string fault = read(json, request);
    if (!fault.empty())
        return fault;
    return request;
}

const Element *findElement(const Element &screen, const Description &description) {
    return screen.find([&](const Element &element) { return description.matches(element); });
}

std::string outcomeName(host::Outcome outcome) {
    switch (outcome) {
    case host::Outcome::done: return "done";
    case host::Outcome::notThere: return "notThere";
    case host::Outcome::disabled: return "disabled";
    }
    return {};
}

} // namespace sim
