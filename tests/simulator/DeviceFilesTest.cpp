#include "simulator/api/DeviceFiles.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <unistd.h>

namespace sim {

using Json = nlohmann::json;

namespace {

std::string xml(const std::string &body) {
    return R"(<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">)" + body + "</plist>";
}

} // namespace

class TheDevicesFiles : public testing::Test {
protected:
    void SetUp() override {
        folder = std::filesystem::path(testing::TempDir()) / ("zv-plists-" + std::to_string(getpid()));
        std::filesystem::create_directories(folder);
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    /// Writes as the platform does: a new file that takes the old one's place.
    void write(const std::string &name, const std::string &text) const {
        std::ofstream(folder / "new") << text;
        std::filesystem::rename(folder / "new", folder / name);
    }

    std::filesystem::path folder;
};

TEST_F(TheDevicesFiles, AreListedWithWhatTheyHold) {
    write("zelvora.plist", xml("<dict><key>Enabled</key><true/></dict>"));
    DeviceFiles files(folder, "/var/mobile/Library/Preferences");
    const Json state = files.changedSince(0);
    EXPECT_EQ(state["paths"], Json({"/var/mobile/Library/Preferences/zelvora.plist"}));
    EXPECT_EQ(state["files"][0]["entries"],
              Json::parse(R"([{"key":"Enabled","type":"boolean","value":"true"}])"));
}

TEST_F(TheDevicesFiles, AreToldAgainOnlyWhenTheyChange) {
    write("a.plist", xml("<dict/>"));
    write("b.plist", xml("<dict/>"));
    DeviceFiles files(folder, "/p");
    const auto seen = files.changedSince(0)["sequence"].get<std::uint64_t>();
    EXPECT_TRUE(files.changedSince(seen)["files"].empty());
    EXPECT_FALSE(files.refresh());
    write("b.plist", xml("<dict><key>n</key><integer>-1</integer></dict>"));
    EXPECT_TRUE(files.refresh());
    const Json changed = files.changedSince(seen);
    ASSERT_EQ(changed["files"].size(), 1U);
    EXPECT_EQ(changed["files"][0]["path"], "/p/b.plist");
    EXPECT_EQ(changed["files"][0]["entries"][0]["value"], "-1");
    EXPECT_GT(changed["sequence"], seen);
}

TEST_F(TheDevicesFiles, AreForgottenWhenTheyAreRemoved) {
    write("a.plist", xml("<dict/>"));
    DeviceFiles files(folder, "/p");
    std::filesystem::remove(folder / "a.plist");
    EXPECT_TRUE(files.refresh());
    EXPECT_TRUE(files.changedSince(0)["paths"].empty());
}

TEST_F(TheDevicesFiles, MayBeMissingAltogether) {
    DeviceFiles files(folder / "nowhere", "/p");
    EXPECT_TRUE(files.changedSince(0)["paths"].empty());
}

TEST(APropertyListAsText, ShowsEveryTypeOfValue) {
    const Json described = describePropertyList(
        xml("<dict><key>s</key><string>北京</string><key>r</key><real>0.5</real><key>d</key><dict/>"
            "<key>a</key><array><true/></array><key>f</key><false/></dict>"),
        10);
    EXPECT_EQ(described["entries"], Json::parse(R"([
        {"key":"a","type":"array","value":"1 elements"},{"key":"d","type":"dictionary","value":"0 entries"},
        {"key":"f","type":"boolean","value":"false"},{"key":"r","type":"real","value":"0.5"},
        {"key":"s","type":"string","value":"北京"}])"));
}

TEST(APropertyListAsText, IsCutWhenItIsLong) {
    const Json described = describePropertyList(
        xml("<dict><key>1</key><true/><key>2</key><true/><key>3</key><true/></dict>"), 2);
    EXPECT_EQ(described["entries"].size(), 2U);
    EXPECT_EQ(described["count"], 3);
}

TEST(APropertyListAsText, SaysSoWhenItIsNone) {
    for (const std::string &bytes : {std::string(), std::string("nonsense"), std::string("bplist00"),
                                     xml("<array/>"), std::string("<plist><dict><key>a")})
        EXPECT_TRUE(describePropertyList(bytes, 10).contains("problem")) << bytes;
}

} // namespace sim
