#include "Foundation/SortedFolder.h"

#include "host/Text.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace host {

namespace fs = std::filesystem;

std::optional<std::vector<FolderEntry>> sortedFolder(const std::string &path) {
    std::error_code error;
    fs::directory_iterator iterator(path, error);
    std::vector<FolderEntry> entries;
    for (; !error && iterator != fs::directory_iterator(); iterator.increment(error)) {
        std::error_code ignored;
        const std::string name = iterator->path().filename().string();
        // Both are told by the folder itself, without a look at the file.
        const bool isFolder = !iterator->is_symlink(ignored) && iterator->is_directory(ignored);
        entries.push_back({name, utf16(string(name)), isFolder});
    }
    if (error)
        return std::nullopt;
    std::sort(entries.begin(), entries.end(),
              [](const FolderEntry &one, const FolderEntry &other) { return one.units < other.units; });
    return entries;
}

} // namespace host
