// The property lists in the device's preferences folder, as a person reads them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <mutex>
#include <nlohmann/json.hpp>
#include <string>

namespace sim {

/// Follows the files of one folder. Each change gets the next number, so that a reader can ask for what has
/// changed since the last one it saw. May be used from every thread.
class DeviceFiles {
public:
    /// `folder` lies on this machine; `phoneFolder` is what the phone calls it.
    DeviceFiles(std::filesystem::path folder, std::string phoneFolder);

    /// Looks at the folder again; true when a file has come, changed or gone.
    bool refresh();

    /// {"sequence", "paths": [every file], "files": [those changed after `since`]}.
    [[nodiscard]] nlohmann::json changedSince(std::uint64_t since);

private:
    struct Seen {
        std::string stamp;          ///< size, time and inode: what an atomic write always changes
        std::uint64_t sequence = 0; ///< number of the last change
    };

    [[nodiscard]] std::map<std::string, std::string> stamps() const;

    std::filesystem::path _folder;
    std::string _phoneFolder;
    std::mutex _mutex;
    std::uint64_t _sequence = 0;
    std::map<std::string, Seen> _seen; ///< by file name
};

/// What a property list holds: {"entries": [{"key", "type", "value"}], "count"} for a dictionary (at most
/// `most` entries, ordered by key), {"problem"} for a file that is none.
[[nodiscard]] nlohmann::json describePropertyList(const std::string &bytes, std::size_t most);

} // namespace sim
