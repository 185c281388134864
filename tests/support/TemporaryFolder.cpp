#include "support/TemporaryFolder.h"

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace support {

TemporaryFolder::TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "zv-test-XXXXXX").string();
    if (!mkdtemp(name.data()))
        throw std::runtime_error("cannot make a temporary folder");
    m_path = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

const std::string &inNewFolders(const std::string &path) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    return path;
}

std::string fileBytes(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void writeFile(const std::string &path, const std::string &bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

} // namespace support
