#include "simulator/api/DeviceFiles.h"

#include <fstream>
#include <iterator>
#include <sys/stat.h>

namespace sim {

namespace fs = std::filesystem;
using Json = nlohmann::json;

namespace {

/// A list of 10,000 numbers is no use to an inspector.
constexpr std::size_t mostEntries = 200;

std::string stampOf(const fs::path &file) {
    struct stat status {};
    if (stat(file.c_str(), &status) != 0)
        return {};
    return std::to_string(status.st_ino) + " " + std::to_string(status.st_size) + " " +
           std::to_string(status.st_mtim.tv_sec) + "." + std::to_string(status.st_mtim.tv_nsec);
}

std::string read(const fs::path &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace

DeviceFiles::DeviceFiles(fs::path folder, std::string phoneFolder)
    : _folder(std::move(folder)), _phoneFolder(std::move(phoneFolder)) {
    refresh();
}

std::map<std::string, std::string> DeviceFiles::stamps() const {
    std::map<std::string, std::string> found;
    std::error_code failed;
    for (const auto &entry : fs::directory_iterator(_folder, failed)) {
        if (entry.path().extension() != ".plist")
            continue;
        std::string stamp = stampOf(entry.path());
        if (!stamp.empty())
            found[entry.path().filename()] = std::move(stamp);
    }
    return found;
}

bool DeviceFiles::refresh() {
    const std::map<std::string, std::string> now = stamps();
    const std::lock_guard lock(_mutex);
    const std::uint64_t next = _sequence + 1;
    bool changed = std::erase_if(_seen, [&](const auto &entry) { return !now.contains(entry.first); }) > 0;
    for (const auto &[name, stamp] : now) {
        Seen &seen = _seen[name];
        if (seen.stamp == stamp)
            continue;
        seen = {stamp, next};
        changed = true;
    }
    if (changed)
        _sequence = next;
    return changed;
}

Json DeviceFiles::changedSince(std::uint64_t since) {
    const std::lock_guard lock(_mutex);
    Json paths = Json::array();
    Json files = Json::array();
    for (const auto &[name, seen] : _seen) {
        paths.push_back(_phoneFolder + "/" + name);
        if (seen.sequence <= since)
            continue;
        Json file = describePropertyList(read(_folder / name), mostEntries);
        file["path"] = paths.back();
        file["sequence"] = seen.sequence;
        files.push_back(std::move(file));
    }
    return {{"sequence", _sequence}, {"paths", std::move(paths)}, {"files", std::move(files)}};
}

} // namespace sim
