// The names in a folder in the order of the phone's file system.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host {

struct FolderEntry {
    std::string name;
    std::u16string units;  ///< the name in UTF-16, the sort key
    bool isFolder = false; ///< a folder itself, not a link to one
};

/// Sorted by UTF-16 unit, as the phone's file system lists them; hidden files included, "." and ".." not.
/// Nothing when it cannot be read.
[[nodiscard]] std::optional<std::vector<FolderEntry>> sortedFolder(const std::string &path);

} // namespace host
