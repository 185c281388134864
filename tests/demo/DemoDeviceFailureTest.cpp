#include "simulator/demo/DemoDevice.h"

#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace {

TEST(DemoDeviceFailure, IsAnExceptionWhereAFolderCannotBeMade) {
    support::TemporaryFolder device;
    std::filesystem::create_directories(device.path() / "var/mobile/Library");
    support::writeFile(device.file("var/mobile/Library/CallHistoryDB"), "a file in place of the folder");
    EXPECT_THROW(sim::makeDemoDevice(device.path().string(), {.now = 1425643200}), std::exception);
    EXPECT_FALSE(std::filesystem::exists(device.path() / "Library/Zelvora"));
}

TEST(DemoDeviceFailure, LeavesNoHalfADatabase) {
    support::TemporaryFolder device;
    std::filesystem::path folder = device.path() / "var/mobile/Library/AddressBook";
    std::filesystem::create_directories(folder /
                                        "AddressBook.sqlitedb-journal"); // in the way of every transaction
    EXPECT_THROW(sim::makeDemoDevice(device.path().string(), {.now = 1425643200}), std::exception);
    EXPECT_FALSE(std::filesystem::exists(folder / "AddressBook.sqlitedb"));
}

} // namespace
