#include "support/TestDevice.h"

#import <Foundation/Foundation.h>

#include <filesystem>
#include <gtest/gtest.h>

extern "C" NSString *GSDefaultsRootForUser(NSString *userName);

namespace {

using support::TestDevice;

TEST(Device, APathOfThePhoneLiesBelowTheDeviceFolder) {
    const TestDevice device;
    EXPECT_EQ(host::devicePath("/var/mobile"), host::device().folder + "/var/mobile");
    EXPECT_EQ(host::phonePath(host::device().folder + "/var/mobile"), "/var/mobile");
}

TEST(Device, NoPathLeavesTheDeviceFolder) {
    const TestDevice device;
    EXPECT_EQ(host::devicePath("/../../etc/passwd"), host::device().folder + "/etc/passwd");
    EXPECT_EQ(host::devicePath("/var/../../../etc"), host::device().folder + "/etc");
    EXPECT_EQ(host::phonePath("/etc/passwd"), "");
    EXPECT_EQ(host::phonePath(host::device().folder + "/../x"), "");
    EXPECT_EQ(host::phonePath(host::device().folder + "-other/x"), "");
}

TEST(Device, TheDeviceFolderIsMadeWhenItIsMissing) {
    const TestDevice device;
    host::DeviceOptions options = host::device();
    options.folder += "/tmp/inner/phone";
    host::start(options);
    EXPECT_TRUE(std::filesystem::is_directory(options.folder));
}

TEST(Device, VersionAndNameOrderChangeWhileThePhoneRuns) {
    const TestDevice device{{.systemVersion = "7.1.2"}};
    EXPECT_EQ(host::device().systemVersion, "7.1.2");
    host::setSystemVersion("8.1.2");
    host::setNameOrder(0, 1);
    EXPECT_EQ(host::device().systemVersion, "8.1.2");
    EXPECT_EQ(host::device().sortOrdering, 0);
    EXPECT_EQ(host::device().compositeNameFormat, 1);
}

TEST(Device, TheLanguageOfThePhoneIsTheFirstOfFoundation) {
    const TestDevice device{{.language = "zh-Hans", .region = "CN"}};
    NSArray *languages = [[NSUserDefaults standardUserDefaults] objectForKey:@"NSLanguages"];
    EXPECT_TRUE([[languages objectAtIndex:0] isEqual:@"zh-Hans"]);
    EXPECT_EQ(host::localeIdentifier(), "zh_Hans_CN");
}

TEST(Device, UserDefaultsLeaveThePersonsOwnFilesAlone) {
    const TestDevice device;
    NSString *folder = GSDefaultsRootForUser(NSUserName());
    EXPECT_TRUE([folder hasPrefix:@(std::filesystem::temp_directory_path().c_str())]);
    [[NSUserDefaults standardUserDefaults] setObject:@"value" forKey:@"key"];
    EXPECT_TRUE([[NSUserDefaults standardUserDefaults] synchronize]);
    EXPECT_TRUE(std::filesystem::exists([folder UTF8String]));
}

TEST(Device, AnotherLanguageInTheSameProcessIsRefused) {
    const TestDevice device{{.language = "de", .region = "DE"}};
    host::DeviceOptions options = host::device();
    options.language = "fr";
    EXPECT_DEATH(host::start(options), "the language is already de");
}

} // namespace
