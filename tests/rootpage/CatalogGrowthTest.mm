// How the listing of code tables grows with their number.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "support/Growth.h"

#include <filesystem>

namespace {

constexpr double mostGrowth = 12;
constexpr int filesInEachFolder = 20;
constexpr const char *tables = "/Library/Zelvora/Table";

class CatalogGrowth : public support::BundleTest {
protected:
    CatalogGrowth() {
        page = [[[classNamed("ZelvoraSettingsController") alloc] init] autorelease];
        device.remove(tables);
    }

    void makeFiles(const std::string &place, int folders) {
        for (int folder = 0; folder < folders; ++folder) {
            for (int file = 0; file < filesInEachFolder; ++file)
                device.write(place + "/Folder " + std::to_string(folder) + "/Table " + std::to_string(file) +
                                 ".txt",
                             "");
        }
    }

    /// The titles while the files of `place` are the phone's code tables.
    NSUInteger titlesOf(const std::string &place) {
        std::filesystem::rename(device.path(place), device.path(tables));
        const NSUInteger count = [[page t9Titles:nil] count];
        std::filesystem::rename(device.path(tables), device.path(place));
        return count;
    }

    ZelvoraSettingsController *page;
};

TEST_F(CatalogGrowth, TenTimesTheFilesAreListedInAtMostTwelveTimesTheTime) {
    makeFiles("/few", 50);
    makeFiles("/many", 500);
    EXPECT_EQ(titlesOf("/few"), 1U + 50 + 50 * filesInEachFolder);
    EXPECT_EQ(titlesOf("/many"), 1U + 500 + 500 * filesInEachFolder);
    EXPECT_TRUE(support::growsAtMost(
        mostGrowth, [this] { (void)titlesOf("/few"); }, [this] { (void)titlesOf("/many"); }));
}

} // namespace
