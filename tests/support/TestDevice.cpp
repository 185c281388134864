#include "support/TestDevice.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

namespace support {
namespace {

namespace fs = std::filesystem;

constexpr const char *usualFolders[] = {
    "/var/mobile/Library/Preferences",
    "/var/mobile/Library/AddressBook",
    "/var/mobile/Library/CallHistoryDB",
    "/var/wireless/Library/CallHistory",
    "/Library/PreferenceBundles",
    "/Library/PreferenceLoader/Preferences",
    "/Library/Zelvora/Area",
    "/Library/Zelvora/Default",
    "/Library/Zelvora/T9",
    "/Library/Zelvora/Table",
    "/tmp",
};

} // namespace

TestDevice::TestDevice(host::DeviceOptions options)
    : m_folder((fs::temp_directory_path() / "zv-device-XXXXXX").string()) {
    if (!mkdtemp(m_folder.data()))
        std::abort();
    options.folder = m_folder;
    options.virtualTime = true;
    host::start(options);
    for (const char *folder : usualFolders)
        makeFolder(folder);
}

TestDevice::~TestDevice() {
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

std::string TestDevice::path(const std::string &path) const {
    return host::devicePath(path);
}

void TestDevice::write(const std::string &file, const std::string &content) const {
    fs::create_directories(fs::path(path(file)).parent_path());
    std::ofstream stream(path(file), std::ios::binary);
    ASSERT_TRUE(stream << content) << file;
}

void TestDevice::makeFolder(const std::string &folder) const {
    fs::create_directories(path(folder));
}

void TestDevice::remove(const std::string &file) const {
    fs::remove_all(path(file));
}

bool TestDevice::exists(const std::string &file) const {
    return fs::exists(path(file));
}

std::string TestDevice::read(const std::string &file) const {
    std::ifstream stream(path(file), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> TestDevice::list(const std::string &folder) const {
    std::vector<std::string> names;
    for (const fs::directory_entry &entry : fs::directory_iterator(path(folder)))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace support
