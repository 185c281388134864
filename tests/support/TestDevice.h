// A phone of its own for a test: a temporary device folder with the usual directories, the platform
// started on it in virtual time. Files are named by the phone's paths.
#pragma once

#include "host/Device.h"

#include <string>
#include <vector>

namespace support {

class TestDevice {
public:
    /// `options.folder` is ignored. Time is virtual unless the test itself restarts the platform.
    explicit TestDevice(host::DeviceOptions options = {});
    ~TestDevice();
    TestDevice(const TestDevice &) = delete;
    TestDevice &operator=(const TestDevice &) = delete;

    /// Where the phone's `path` lies on this machine.
    [[nodiscard]] std::string path(const std::string &path) const;

    /// Missing folders on the way are made.
    void write(const std::string &path, const std::string &content) const;
    void makeFolder(const std::string &path) const;
    void remove(const std::string &path) const;

    [[nodiscard]] bool exists(const std::string &path) const;
    /// The file's bytes; empty when there is none.
    [[nodiscard]] std::string read(const std::string &path) const;
    /// Names in the folder, sorted.
    [[nodiscard]] std::vector<std::string> list(const std::string &path) const;

private:
    std::string m_folder;
};

} // namespace support
