#include "simulator/api/TreeJson.h"

namespace sim {

using Json = nlohmann::json;

namespace {

Json toJson(const host::Rect &rect) {
    return {{"x", rect.x}, {"y", rect.y}, {"width", rect.width}, {"height", rect.height}};
}

bool isImage(const std::string &name) {
    return name == "image" || name == "minimumImage" || name == "maximumImage";
}

Json toJson(const std::string &name, const host::Attribute &attribute, ImageNames &images) {
    if (isImage(name) && std::holds_alternative<std::string>(attribute)) {
        const std::string picture = images.name(std::get<std::string>(attribute));
        return picture.empty() ? Json() : Json("/api/image/" + picture);
    }
    return std::visit([](const auto &value) { return Json(value); }, attribute);
}

void addText(Json &json, const char *name, const std::string &text) {
    if (!text.empty())
        json[name] = text;
}

void addAttributes(Json &json, const host::Element &element, ImageNames &images) {
    Json attributes = Json::object();
    for (const auto &[name, attribute] : element.attributes)
        attributes[name] = toJson(name, attribute, images);
    if (!attributes.empty())
        json["attributes"] = std::move(attributes);
}

void addChildren(Json &json, const host::Element &element, ImageNames &images) {
    if (element.children.empty())
        return;
    Json children = Json::array();
    for (const host::Element &child : element.children)
        children.push_back(sim::toJson(child, images));
    json["children"] = std::move(children);
}

} // namespace

Json toJson(const host::Element &element, ImageNames &images) {
    Json json = {{"type", element.type}, {"rect", toJson(element.rect)}};
    addText(json, "identifier", element.identifier);
    addText(json, "label", element.label);
    addText(json, "value", element.value);
    addText(json, "part", element.part);
    if (element.number != 0)
        json["number"] = element.number;
    if (!element.enabled)
        json["enabled"] = false;
    if (element.selected)
        json["selected"] = true;
    addAttributes(json, element, images);
    addChildren(json, element, images);
    return json;
}

} // namespace sim
