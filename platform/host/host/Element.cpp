#include "host/Element.h"

namespace host {

namespace {

template<typename Value>
Value attribute(const Element &element, const std::string &name) {
    const auto found = element.attributes.find(name);
    if (found == element.attributes.end())
        return Value{};
    const auto *value = std::get_if<Value>(&found->second);
    return value ? *value : Value{};
}

void collect(const Element &element, const std::string &type, std::vector<const Element *> &into) {
    if (element.type == type)
        into.push_back(&element);
    for (const Element &child : element.children)
        collect(child, type, into);
}

} // namespace

std::string Element::text(const std::string &name) const {
    return attribute<std::string>(*this, name);
}

double Element::amount(const std::string &name) const {
    return attribute<double>(*this, name);
}

bool Element::flag(const std::string &name) const {
    return attribute<bool>(*this, name);
}

std::vector<const Element *> Element::all(const std::string &ofType) const {
    std::vector<const Element *> found;
    collect(*this, ofType, found);
    return found;
}

} // namespace host
