// The files of the page. Which addresses exist is settled by listing the folders at the start, so that no
// address can name a file outside of them.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>

namespace sim {

struct StaticFile {
    std::string content;
    std::string type; ///< MIME type
};

class StaticFiles {
public:
    /// Every file below `folder` gets the address `prefix` + its path in the folder.
    void addFolder(const std::string &prefix, const std::filesystem::path &folder);

    /// The same for a folder of modules that import each other without the ending ".js": they are found
    /// under both names.
    void addModules(const std::string &prefix, const std::filesystem::path &folder);

    /// The file at an address, read from disk; nothing when there is none.
    [[nodiscard]] std::optional<StaticFile> read(const std::string &address) const;

private:
    std::map<std::string, std::filesystem::path> _files;
};

} // namespace sim
