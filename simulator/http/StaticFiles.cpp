#include "simulator/http/StaticFiles.h"

#include <fstream>
#include <iterator>

namespace sim {

namespace fs = std::filesystem;

namespace {

std::string mimeType(const fs::path &file) {
    static const std::map<std::string, std::string> types = {
        {".html", "text/html; charset=utf-8"},
        {".js", "text/javascript; charset=utf-8"},
        {".css", "text/css; charset=utf-8"},
        {".svg", "image/svg+xml"},
        {".png", "image/png"},
    };
    const auto found = types.find(file.extension().string());
    return found == types.end() ? "application/octet-stream" : found->second;
}

} // namespace

void StaticFiles::addFolder(const std::string &prefix, const fs::path &folder) {
    std::error_code failed;
    for (const auto &entry : fs::recursive_directory_iterator(folder, failed)) {
        if (entry.is_regular_file())
            _files[prefix + fs::relative(entry.path(), folder).generic_string()] = entry.path();
    }
}

void StaticFiles::addModules(const std::string &prefix, const fs::path &folder) {
    StaticFiles modules;
    modules.addFolder(prefix, folder);
    for (const auto &[address, file] : modules._files) {
        if (file.extension() != ".js")
            continue;
        _files[address] = file;
        _files[address.substr(0, address.size() - 3)] = file;
    }
}

std::optional<StaticFile> StaticFiles::read(const std::string &address) const {
    const auto found = _files.find(address);
    if (found == _files.end())
        return std::nullopt;
    std::ifstream stream(found->second, std::ios::binary);
    if (!stream)
        return std::nullopt;
    std::string content(std::istreambuf_iterator<char>(stream), {});
    return StaticFile{std::move(content), mimeType(found->second)};
}

} // namespace sim
