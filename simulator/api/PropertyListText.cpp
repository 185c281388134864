// Property lists as readable text.
#include "simulator/api/DeviceFiles.h"

#include <memory>
#include <plist/plist.h>

namespace sim {

using Json = nlohmann::json;

namespace {

struct FreePlist {
    void operator()(void *node) const { plist_free(node); }
};
using OwnedPlist = std::unique_ptr<void, FreePlist>;

struct FreeMemory {
    void operator()(char *text) const { free(text); } // NOLINT: libplist hands out malloc's memory
};
using OwnedText = std::unique_ptr<char, FreeMemory>;

struct Readable {
    const char *type;
    std::string value;
};

Readable readable(plist_t node);

Readable readableText(plist_t node) {
    char *text = nullptr;
    plist_get_string_val(node, &text);
    const OwnedText owned(text);
    return {"string", text ? text : ""};
}

Readable readableInteger(plist_t node) {
    std::uint64_t bits = 0;
    plist_get_uint_val(node, &bits);
    return {"integer", std::to_string(static_cast<std::int64_t>(bits))};
}

Readable readableReal(plist_t node) {
    double number = 0;
    plist_get_real_val(node, &number);
    return {"real", Json(number).dump()};
}

Readable readableFlag(plist_t node) {
    std::uint8_t flag = 0;
    plist_get_bool_val(node, &flag);
    return {"boolean", flag ? "true" : "false"};
}

std::string counted(std::uint32_t count, const char *what) {
    return std::to_string(count) + " " + what;
}

Readable readable(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_STRING: return readableText(node);
    case PLIST_UINT: return readableInteger(node);
    case PLIST_REAL: return readableReal(node);
    case PLIST_BOOLEAN: return readableFlag(node);
    case PLIST_DICT: return {"dictionary", counted(plist_dict_get_size(node), "entries")};
    case PLIST_ARRAY: return {"array", counted(plist_array_get_size(node), "elements")};
    case PLIST_DATA: return {"data", "bytes"};
    case PLIST_DATE: return {"date", "date"};
    default: return {"other", ""};
    }
}

std::map<std::string, Readable> entries(plist_t dictionary) {
    std::map<std::string, Readable> found;
    plist_dict_iter iterator = nullptr;
    plist_dict_new_iter(dictionary, &iterator);
    const std::unique_ptr<void, void (*)(void *)> owned(iterator, free);
    for (;;) {
        char *key = nullptr;
        plist_t node = nullptr;
        plist_dict_next_item(dictionary, iterator, &key, &node);
        const OwnedText ownedKey(key);
        if (!node || !key)
            return found;
        found.emplace(key, readable(node));
    }
}

OwnedPlist parse(const std::string &bytes) {
    plist_t root = nullptr;
    const auto length = static_cast<std::uint32_t>(bytes.size());
    if (plist_is_binary(bytes.data(), length))
        plist_from_bin(bytes.data(), length, &root);
    else
        plist_from_xml(bytes.data(), length, &root);
    return OwnedPlist(root);
}

} // namespace

Json describePropertyList(const std::string &bytes, std::size_t most) {
    const OwnedPlist root = parse(bytes);
    if (!root || plist_get_node_type(root.get()) != PLIST_DICT)
        return {{"problem", "not a property list with a dictionary at its top"}};
    Json shown = Json::array();
    const auto all = entries(root.get());
    for (const auto &[key, entry] : all) {
        if (shown.size() == most)
            break;
        shown.push_back({{"key", key}, {"type", entry.type}, {"value", entry.value}});
    }
    return {{"entries", std::move(shown)}, {"count", all.size()}};
}

} // namespace sim
