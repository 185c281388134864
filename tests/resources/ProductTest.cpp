// What is installed beside the bundle: its description, its entry in Settings and the default lists.
#include "Resources.h"

#include <gtest/gtest.h>
#include <set>

namespace {

using namespace resources;

TEST(BundleDescription, NamesItsExecutableAndItsPage) {
    const auto info = propertyList(ZV_BUNDLE_PATH "/Info.plist");
    EXPECT_EQ(text(info, "CFBundleExecutable"), "Zelvora");
    EXPECT_EQ(text(info, "NSPrincipalClass"), "ZelvoraSettingsController");
    EXPECT_EQ(text(info, "CFBundlePackageType"), "BNDL");
    EXPECT_EQ(text(info, "CFBundleSignature"), "????");
    EXPECT_EQ(text(info, "CFBundleInfoDictionaryVersion"), "6.0");
    EXPECT_EQ(text(info, "CFBundleDevelopmentRegion"), "English");
}

TEST(BundleDescription, IsForPhonesAndTabletsFromVersion8_1) {
    const auto info = propertyList(ZV_BUNDLE_PATH "/Info.plist");
    EXPECT_EQ(text(info, "MinimumOSVersion"), "8.1");
    EXPECT_EQ(text(info, "DTPlatformName"), "iphoneos");
    EXPECT_EQ(info["CFBundleSupportedPlatforms"], Json::array({"iPhoneOS"}));
    EXPECT_EQ(info["UIDeviceFamily"], Json::array({1, 2}));
}

TEST(BundleDescription, HasTheVersionOfTheBuild) {
    const auto info = propertyList(ZV_BUNDLE_PATH "/Info.plist");
    EXPECT_EQ(text(info, "CFBundleVersion"), ZV_VERSION);
    EXPECT_EQ(text(info, "CFBundleShortVersionString"), ZV_VERSION);
}

TEST(SettingsEntry, OpensTheBundlesPage) {
    const auto entry = propertyList(ZV_SOURCE_PATH "/packaging/Zelvora.plist")["entry"];
    EXPECT_EQ(text(entry, "cell"), "PSLinkCell");
    EXPECT_EQ(text(entry, "label"), "Zelvora");
    EXPECT_EQ(text(entry, "icon"), "icon.png");
    EXPECT_EQ(text(entry, "bundle"), "Zelvora");
    EXPECT_EQ(text(entry, "detail"), "ZelvoraSettingsController");
    EXPECT_EQ(entry["isController"], true);
}

TEST(DefaultLists, AreDictionariesOfNumbersAndNames) {
    const auto names = namesIn(ZV_PRODUCT_PATH "/Default", ".plist");
    ASSERT_FALSE(names.empty());
    for (const auto &name : names) {
        const auto list = propertyList(ZV_PRODUCT_PATH "/Default/" + name + ".plist");
        ASSERT_TRUE(list.is_object()) << name;
        EXPECT_FALSE(list.empty()) << name << ": an empty list needs no file";
        for (const auto &[number, entry] : list.items())
            EXPECT_TRUE(entry.is_string() && !number.empty()) << name << ": " << number;
    }
}

TEST(DefaultLists, BelongToListsThatThereAre) {
    static const std::set<std::string> known{"zelvora.area",  "zelvora.t9",       "zelvora.black",
                                             "zelvora.white", "zelvora.priority", "zelvora.exclude"};
    for (const auto &name : namesIn(ZV_PRODUCT_PATH "/Default", ".plist"))
        EXPECT_TRUE(known.contains(name)) << name;
}

TEST(DefaultLists, FitTheEntryEditor) {
    for (const auto &name : namesIn(ZV_PRODUCT_PATH "/Default", ".plist")) {
        const auto list = propertyList(ZV_PRODUCT_PATH "/Default/" + name + ".plist");
        for (const auto &[number, entry] : list.items())
            EXPECT_LE(number.size(), 20u) << name << ": " << number;
    }
}

} // namespace
