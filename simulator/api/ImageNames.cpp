#include "simulator/api/ImageNames.h"

#include <algorithm>
#include <charconv>

namespace sim {

namespace fs = std::filesystem;

void ImageNames::allow(const fs::path &folder) {
    const std::lock_guard lock(_mutex);
    _folders.push_back(fs::weakly_canonical(folder));
}

std::string ImageNames::name(const std::string &file) {
    const std::lock_guard lock(_mutex);
    const auto known = _names.find(file);
    if (known != _names.end())
        return known->second;
    std::error_code failed;
    const fs::path real = fs::canonical(file, failed);
    if (failed || !fs::is_regular_file(real) || !isAllowed(real))
        return {};
    _files.push_back(real);
    return _names[file] = std::to_string(_files.size() - 1);
}

std::optional<fs::path> ImageNames::file(const std::string &name) const {
    std::size_t index = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), index);
    const std::lock_guard lock(_mutex);
    if (error != std::errc{} || end != name.data() + name.size() || index >= _files.size())
        return std::nullopt;
    return _files[index];
}

bool ImageNames::isAllowed(const fs::path &file) const {
    return std::any_of(_folders.begin(), _folders.end(), [&](const fs::path &folder) {
        return std::mismatch(folder.begin(), folder.end(), file.begin(), file.end()).first == folder.end();
    });
}

} // namespace sim
