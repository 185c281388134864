// What the built bundle holds beside its executable, read for the checks of this folder.
#pragma once

#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <utility>
#include <vector>

namespace resources {

using Json = nlohmann::ordered_json;
/// Text in the code -> text on the screen.
using Table = std::map<std::string, std::string>;

/// The property list at `path`; null when it does not parse.
[[nodiscard]] Json propertyList(const std::string &path);

/// The property lists of the bundle that describe pages, by name, without ".plist".
[[nodiscard]] std::vector<std::string> pageNames();

/// The page described by NAME.plist of the bundle.
[[nodiscard]] Json page(const std::string &name);

/// The rows and groups of a page, in order.
[[nodiscard]] std::vector<Json> itemsOf(const std::string &page);

/// All rows and groups of all pages, each with the name of its page.
[[nodiscard]] std::vector<std::pair<std::string, Json>> allItems();

/// Whether the item is a group header, not a row.
[[nodiscard]] bool isGroup(const Json &item);

/// Whether the item's cell shows a value that the user changes.
[[nodiscard]] bool isControl(const Json &item);

/// A text of the item, "" when it has none.
[[nodiscard]] std::string text(const Json &item, const char *key);

/// The item in the words of a failure message.
[[nodiscard]] std::string describe(const std::string &page, const Json &item);

/// Every text of a page that the platform looks up in the page's own string table.
[[nodiscard]] std::vector<std::string> textsOf(const Json &page);

/// The bundle's languages, by the names of their folders.
[[nodiscard]] std::vector<std::string> languages();

/// The string table NAME.strings of a language; empty when it is missing or does not parse.
[[nodiscard]] Table table(const std::string &language, const std::string &name);

/// The string tables of a language, by name, without ".strings".
[[nodiscard]] std::vector<std::string> tableNames(const std::string &language);

/// The string table in the words of a failure message.
[[nodiscard]] std::string where(const std::string &language, const std::string &name);

/// Names of a folder's entries that end in `suffix`, without it, in order.
[[nodiscard]] std::vector<std::string> namesIn(const std::string &folder, const std::string &suffix);

} // namespace resources
