#include "host/FileContent.h"

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace host {
namespace {

class Descriptor {
public:
    explicit Descriptor(int number) : m_number(number) {}
    ~Descriptor() { (void)close(); }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    [[nodiscard]] int get() const { return m_number; }

    bool close() {
        const int number = m_number;
        m_number = -1;
        return number < 0 || ::close(number) == 0;
    }

private:
    int m_number;
};

bool writeAll(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t written = write(file, content.data(), content.size());
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            content.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

bool readAll(int file, std::string &content) {
    std::size_t filled = 0;
    while (filled < content.size()) {
        const ssize_t count = read(file, content.data() + filled, content.size() - filled);
        if (count == 0)
            break;
        if (count < 0 && errno != EINTR)
            return false;
        if (count > 0)
            filled += static_cast<std::size_t>(count);
    }
    content.resize(filled);
    return true;
}

bool writeNew(const std::string &path, std::string_view content, const struct stat *old) {
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    if (!file.isOpen())
        return false;
    if (old && fchmod(file.get(), old->st_mode & 07777) != 0)
        return false;
    return writeAll(file.get(), content) && file.close();
}

std::string temporaryBeside(const std::string &path) {
    static std::atomic<unsigned> counter = 0;
    const std::size_t name = path.rfind('/') + 1;
    return path.substr(0, name) + ".new-" + std::to_string(getpid()) + "-" + std::to_string(++counter);
}

} // namespace

std::optional<std::string> contentOfFile(const std::string &path) {
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status {};
    if (!file.isOpen() || fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    std::string content(static_cast<std::size_t>(status.st_size), '\0');
    if (!readAll(file.get(), content))
        return std::nullopt;
    return content;
}

bool overwriteFile(const std::string &path, std::string_view content) {
    Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK, 0666));
    return file.isOpen() && writeAll(file.get(), content) && file.close();
}

bool replaceFile(const std::string &path, std::string_view content) {
    struct stat old {};
    const bool exists = stat(path.c_str(), &old) == 0;
    const std::string temporary = temporaryBeside(path);
    if (writeNew(temporary, content, exists ? &old : nullptr) && rename(temporary.c_str(), path.c_str()) == 0)
        return true;
    (void)unlink(temporary.c_str());
    return false;
}

} // namespace host
