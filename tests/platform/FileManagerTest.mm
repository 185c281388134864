#include "host/Text.h"
#include "support/OrdinaryUser.h"
#include "support/TestDevice.h"

#import <Foundation/Foundation.h>

#include <filesystem>
#include <gmock/gmock.h>
#include <unistd.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> texts(id names) {
    std::vector<std::string> all;
    for (NSString *name in names)
        all.push_back(host::utf8(name));
    return all;
}

class FileManager : public testing::Test {
protected:
    support::TestDevice device;
    NSFileManager *manager = [NSFileManager defaultManager];

    void SetUp() override {
        for (const char *file : {"/a/b.txt", "/a/B.txt", "/a/.hidden", "/a/\uFF21.txt", "/a/\U0001F600.txt",
                                 "/a/folder/z", "/a/folder/y", "/a/Folder/x"})
            device.write(file, "");
        device.makeFolder("/a/empty");
    }

    NSString *path(const char *phonePath) { return host::string(device.path(phonePath)); }
    std::vector<std::string> contents(const char *folder) {
        return texts([manager contentsOfDirectoryAtPath:path(folder) error:NULL]);
    }
    std::vector<std::string> walked(const char *folder) {
        return texts([manager enumeratorAtPath:path(folder)]);
    }
};

TEST_F(FileManager, AFolderIsListedByUTF16UnitHiddenFilesIncluded) {
    EXPECT_THAT(contents("/a"), ElementsAre(".hidden", "B.txt", "Folder", "b.txt", "empty", "folder",
                                            "\U0001F600.txt", "\uFF21.txt"));
}

TEST_F(FileManager, AMissingFolderHasNoListing) {
    NSError *error = nil;
    EXPECT_EQ([manager contentsOfDirectoryAtPath:path("/none") error:&error], nil);
    EXPECT_NE(error, nil);
    EXPECT_EQ([manager contentsOfDirectoryAtPath:path("/none") error:NULL], nil);
    EXPECT_EQ([manager contentsOfDirectoryAtPath:path("/a/b.txt") error:NULL], nil);
    EXPECT_EQ([manager contentsOfDirectoryAtPath:nil error:NULL], nil);
}

TEST_F(FileManager, WalkingGivesAFolderBeforeItsContents) {
    EXPECT_THAT(walked("/a"), ElementsAre(".hidden", "B.txt", "Folder", "Folder/x", "b.txt", "empty",
                                          "folder", "folder/y", "folder/z", "\U0001F600.txt", "\uFF21.txt"));
}

TEST_F(FileManager, LinksAreNamedAndNotFollowed) {
    ASSERT_EQ(symlink(device.path("/a").c_str(), device.path("/a/folder/link").c_str()), 0);
    EXPECT_THAT(walked("/a/folder"), ElementsAre("link", "y", "z"));
}

TEST_F(FileManager, WalkingAMissingFolderGivesNothing) {
    EXPECT_THAT(walked("/none"), IsEmpty());
    EXPECT_THAT(walked("/a/b.txt"), IsEmpty());
    EXPECT_EQ([manager enumeratorAtPath:nil], nil);
}

TEST_F(FileManager, AFolderThatCannotBeReadHasNoEntries) {
    std::filesystem::permissions(device.path("/"), std::filesystem::perms(0755));
    std::filesystem::permissions(device.path("/a/folder"), std::filesystem::perms::none);
    {
        const support::OrdinaryUser user;
        EXPECT_THAT(contents("/a/folder"), IsEmpty());
        EXPECT_THAT(walked("/a"), testing::Contains("folder"));
        EXPECT_THAT(walked("/a"), testing::Not(testing::Contains("folder/y")));
    }
    std::filesystem::permissions(device.path("/a/folder"), std::filesystem::perms::owner_all);
}

TEST_F(FileManager, AFolderMayBeSkippedWhileWalking) {
    NSDirectoryEnumerator *enumerator = [manager enumeratorAtPath:path("/a")];
    std::vector<std::string> names;
    for (NSString *name in enumerator) {
        names.push_back(host::utf8(name));
        const BOOL isFolder = [[[enumerator fileAttributes] fileType] isEqual:NSFileTypeDirectory];
        EXPECT_EQ(isFolder,
                  [name caseInsensitiveCompare:@"folder"] == NSOrderedSame || [name isEqual:@"empty"]);
        if (isFolder)
            [enumerator skipDescendents];
    }
    EXPECT_EQ(names.size(), 8u);
}

TEST_F(FileManager, OlderMethodsListTheSame) {
    EXPECT_EQ(texts([manager directoryContentsAtPath:path("/a")]), contents("/a"));
    EXPECT_EQ(texts([manager subpathsAtPath:path("/a")]), walked("/a"));
}

} // namespace
