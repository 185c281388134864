#include "Folder.h"

#include <cstdlib>
#include <stdexcept>

namespace bench {
namespace {

std::filesystem::path newFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "zv-bench-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("no temporary folder " + name);
    return name;
}

} // namespace

const std::filesystem::path &folder() {
    static const std::filesystem::path path = newFolder();
    return path;
}

void removeFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder(), ignored);
}

} // namespace bench
