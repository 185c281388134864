#include "host/EventLog.h"
#include "support/TestDevice.h"

#include <cstdlib>
#include <dlfcn.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/wait.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class System : public testing::Test {
protected:
    support::TestDevice device;

    static int status(const char *command) { return WEXITSTATUS(system(command)); }
    static std::vector<std::string> run() { return host::eventTexts(host::EventKind::command); }
};

TEST_F(System, RemovingAFileOfThePhoneRemovesItInTheDeviceFolder) {
    device.write("/var/mobile/Library/Preferences/a.plist", "x");
    EXPECT_EQ(system("rm -f /var/mobile/Library/Preferences/a.plist"), 0);
    EXPECT_FALSE(device.exists("/var/mobile/Library/Preferences/a.plist"));
    EXPECT_THAT(run(), ElementsAre("rm -f /var/mobile/Library/Preferences/a.plist"));
}

TEST_F(System, PatternsExpandInTheDeviceFolder) {
    device.write("/var/mobile/Library/Preferences/a.one.plist", "x");
    device.write("/var/mobile/Library/Preferences/a.two.plist", "x");
    device.write("/var/mobile/Library/Preferences/a.plist", "x");
    EXPECT_EQ(system("rm -f /var/mobile/Library/Preferences/a.*.plist"), 0);
    EXPECT_THAT(device.list("/var/mobile/Library/Preferences"), ElementsAre("a.plist"));
}

TEST_F(System, AFolderWithOddCharactersWorksToo) {
    host::DeviceOptions options = host::device();
    options.folder += "/tmp/a b'$(x)*\"\\ \xE4\xB8\xAD";
    host::start(options);
    std::filesystem::create_directories(host::devicePath("/var"));
    EXPECT_EQ(system("echo text >/var/one; cp '/var/one' \"/var/two\"; rm -f /var/o*"), 0);
    EXPECT_THAT(device.list("/var"), ElementsAre("two"));
}

TEST_F(System, ProgramsOfThePhoneRunWithTheirArguments) {
    device.write("/Library/Zelvora/zvtool", "#!/bin/sh\necho \"$@\" >\"$DEVICE/tmp/said\"\nexit 3\n");
    std::filesystem::permissions(device.path("/Library/Zelvora/zvtool"), std::filesystem::perms(0755));
    EXPECT_EQ(status("/Library/Zelvora/zvtool -i 500"), 3);
    EXPECT_EQ(device.read("/tmp/said"), "-i 500\n");
    EXPECT_EQ(host::events().back().status, 3);
}

TEST_F(System, AMissingProgramHasStatus127AndIsRecorded) {
    EXPECT_EQ(status("/Library/Zelvora/zvtool -u 2>/dev/null"), 127);
    EXPECT_EQ(host::events().back().kind, host::EventKind::command);
    EXPECT_EQ(host::events().back().status, 127);
}

TEST_F(System, EndingProcessesDoesNothingReal) {
    EXPECT_EQ(status("killall SpringBoard"), 0);
    EXPECT_EQ(status("/usr/bin/killall -9 SpringBoard"), 0);
    EXPECT_EQ(status("kill -9 1"), 0);
    EXPECT_EQ(run().front(), "killall SpringBoard");
}

TEST_F(System, TheWorkingFolderAndTheEnvironmentAreTheDevices) {
    EXPECT_EQ(system("pwd >/tmp/here; env >/tmp/env"), 0);
    EXPECT_EQ(device.read("/tmp/here"), host::device().folder + "\n");
    EXPECT_THAT(device.read("/tmp/env"),
                testing::HasSubstr("PATH=" + host::device().folder + "/usr/bin:/usr/bin:/bin\n"));
}

TEST_F(System, ALineThatCouldReachOutsideIsRecordedAndNotRun) {
    EXPECT_EQ(status("rm -f ../x"), 126);
    EXPECT_THAT(run(), ElementsAre("rm -f ../x"));
    EXPECT_THAT(host::eventTexts(host::EventKind::log), testing::SizeIs(1));
}

TEST_F(System, NothingOutsideTheDeviceFolderIsRemoved) {
    const std::filesystem::path outside = std::filesystem::path(host::device().folder + "-outside");
    std::filesystem::create_directory(outside);
    const std::string name = outside.string();
    for (const std::string &line :
         {"rm -rf " + name, "rm -rf '" + name + "'", "rm -rf ../" + outside.filename().string(),
          "cd " + name + " && rm -rf *", "sh -c 'rm -rf " + name + "'"})
        EXPECT_NE(system(line.c_str()), -1);
    EXPECT_TRUE(std::filesystem::exists(outside));
    std::filesystem::remove(outside);
}

TEST_F(System, NoCommandAsksWhetherThereIsAShell) {
    EXPECT_NE(system(nullptr), 0);
    EXPECT_THAT(run(), IsEmpty());
}

TEST_F(System, TheDefinitionIsThePlatforms) {
    Dl_info place{};
    ASSERT_NE(dladdr(dlsym(RTLD_DEFAULT, "system"), &place), 0);
    EXPECT_THAT(place.dli_fname, testing::HasSubstr("libzvplatform"));
}

} // namespace
