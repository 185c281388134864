// A folder of its own for one test.
#pragma once

#include <filesystem>
#include <string>

namespace support {

/// An empty folder, removed with all it holds at the end of its scope.
class TemporaryFolder {
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder &) = delete;
    TemporaryFolder &operator=(const TemporaryFolder &) = delete;

    [[nodiscard]] const std::filesystem::path &path() const { return m_path; }

    /// The path of a file in the folder.
    [[nodiscard]] std::string file(const std::string &name) const { return (m_path / name).string(); }

private:
    std::filesystem::path m_path;
};

/// Makes the folders above `path`; returns `path`.
const std::string &inNewFolders(const std::string &path);

/// The bytes of a file, "" where there is none.
[[nodiscard]] std::string fileBytes(const std::string &path);

/// Writes a file whole.
void writeFile(const std::string &path, const std::string &bytes);

} // namespace support
