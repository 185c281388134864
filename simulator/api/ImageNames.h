// Names for the pictures that elements show, so that the page can ask for them without knowing a path.
#pragma once

#include <filesystem>
#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace sim {

/// Gives files short names and back. Only regular files below the allowed folders get one. May be used from
/// every thread.
class ImageNames {
public:
    void allow(const std::filesystem::path &folder);

    /// The name of a file, the same each time; "" for a file that may not be shown.
    [[nodiscard]] std::string name(const std::string &file);

    /// The file of a name that was given out.
    [[nodiscard]] std::optional<std::filesystem::path> file(const std::string &name) const;

private:
    [[nodiscard]] bool isAllowed(const std::filesystem::path &file) const;

    mutable std::mutex _mutex;
    std::vector<std::filesystem::path> _folders;
    std::map<std::string, std::string> _names; ///< by path as elements give it
    std::vector<std::filesystem::path> _files; ///< canonical; the name is the index
};

} // namespace sim
