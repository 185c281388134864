#include "simulator/api/DeviceFolder.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace sim {

namespace fs = std::filesystem;

namespace {

class TheDeviceFolder : public testing::Test {
protected:
    TheDeviceFolder() {
        std::string name = fs::temp_directory_path() / "zv-folder-XXXXXX";
        _folder = mkdtemp(name.data());
        options.device = _folder / "device";
        options.contacts = options.calls = 1;
    }
    ~TheDeviceFolder() override { fs::remove_all(_folder); }

    fs::path file(const std::string &name) {
        std::ofstream(_folder / name) << name;
        return _folder / name;
    }
    fs::path bundle(const std::string &name) {
        fs::create_directories(_folder / "bundles" / name);
        return _folder / "bundles" / name;
    }
    [[nodiscard]] fs::path entries() const {
        return fs::path(options.device) / "Library/PreferenceLoader/Preferences";
    }

    Options options;

private:
    fs::path _folder;
};

} // namespace

TEST_F(TheDeviceFolder, IsMadeWhereItIsMissing) {
    EXPECT_EQ(prepareDeviceFolder(options), "");
    EXPECT_TRUE(fs::exists(fs::path(options.device) / "var/mobile/Library/AddressBook/AddressBook.sqlitedb"));
}

TEST_F(TheDeviceFolder, KeepsWhatIsInItAlready) {
    ASSERT_EQ(prepareDeviceFolder(options), "");
    const fs::path list = fs::path(options.device) / "var/mobile/Library/Preferences/zelvora.black.plist";
    std::ofstream(list) << "mine";
    ASSERT_EQ(prepareDeviceFolder(options), "");
    EXPECT_EQ(fs::file_size(list), 4U);
}

TEST_F(TheDeviceFolder, ThatIsAFileIsToldWithItsName) {
    options.device = file("letter");
    EXPECT_EQ(prepareDeviceFolder(options), "the device folder cannot be used: " + options.device +
                                                "/var/mobile/Library/Preferences: Not a directory");
}

TEST_F(TheDeviceFolder, WithoutABundleToShowIsToldWithItsName) {
    options.bundles = bundle("").parent_path();
    EXPECT_EQ(prepareDeviceFolder(options), "there is no settings bundle in " + options.bundles);
    options.bundles += "/Missing.bundle";
    EXPECT_EQ(prepareDeviceFolder(options), "there is no settings bundle in " + options.bundles);
}

TEST_F(TheDeviceFolder, HasAnEntryForEachBundleOfAFolderAndForNoEarlierOne) {
    options.bundles = bundle("One.bundle").parent_path();
    const fs::path two = bundle("Two.bundle");
    ASSERT_EQ(prepareDeviceFolder(options), "");
    EXPECT_TRUE(fs::exists(entries() / "One.plist"));
    EXPECT_TRUE(fs::exists(entries() / "Two.plist"));
    options.bundles = two;
    ASSERT_EQ(prepareDeviceFolder(options), "");
    EXPECT_FALSE(fs::exists(entries() / "One.plist"));
    EXPECT_TRUE(fs::exists(entries() / "Two.plist"));
}

} // namespace sim
