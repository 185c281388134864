#include "host/EventLog.h"
#include "host/Text.h"
#include "support/TestDevice.h"

#import <Foundation/Foundation.h>

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char *folder = "/var/mobile/Library/Preferences";
constexpr const char *phonePath = "/var/mobile/Library/Preferences/test.plist";

class PropertyListFile : public testing::Test {
protected:
    support::TestDevice device;
    NSString *path = host::string(device.path(phonePath));

    NSDictionary *read() { return [NSDictionary dictionaryWithContentsOfFile:path]; }
    void expectRead(id expected) { EXPECT_TRUE([read() isEqual:expected]) << device.read(phonePath); }
};

TEST_F(PropertyListFile, ADictionaryReadsBackAsItWasWritten) {
    NSDictionary *written = @{@"\u4e2d\U0001F600" : @"<&>", @"n" : @1, @"b" : [NSNumber numberWithBool:YES]};
    EXPECT_TRUE([written writeToFile:path atomically:YES]);
    expectRead(written);
    EXPECT_TRUE([written writeToFile:path atomically:NO]);
    expectRead(written);
}

TEST_F(PropertyListFile, MutableDictionariesAreWrittenAndReadToo) {
    EXPECT_TRUE([[NSMutableDictionary dictionaryWithObject:@"v" forKey:@"k"] writeToFile:path
                                                                              atomically:YES]);
    NSMutableDictionary *dictionary = [NSMutableDictionary dictionaryWithContentsOfFile:path];
    [dictionary setObject:@"new" forKey:@"other"];
    EXPECT_EQ([dictionary count], 2u);
    NSMutableDictionary *made = [[NSMutableDictionary alloc] initWithContentsOfFile:path];
    [made removeAllObjects];
    EXPECT_EQ([made count], 0u);
    [made release];
}

TEST_F(PropertyListFile, AnArrayReadsBackAsItWasWritten) {
    NSArray *written = @[ @"a", @[ @1 ] ];
    EXPECT_TRUE([written writeToFile:path atomically:YES]);
    EXPECT_TRUE([[NSArray arrayWithContentsOfFile:path] isEqual:written]);
    NSMutableArray *made = [NSMutableArray arrayWithContentsOfFile:path];
    [made addObject:@"b"];
    EXPECT_EQ([made count], 3u);
}

TEST_F(PropertyListFile, FileURLsWorkLikePaths) {
    NSURL *url = [NSURL fileURLWithPath:path];
    EXPECT_TRUE([@{@"k" : @"v"} writeToURL:url atomically:YES]);
    EXPECT_TRUE([[NSDictionary dictionaryWithContentsOfURL:url] isEqual:@{@"k" : @"v"}]);
    EXPECT_TRUE([@[ @"v" ] writeToURL:url atomically:YES]);
    EXPECT_TRUE([[NSArray arrayWithContentsOfURL:url] isEqual:@[ @"v" ]]);
    EXPECT_EQ([NSDictionary dictionaryWithContentsOfURL:[NSURL URLWithString:@"mailto:a"]], nil);
    EXPECT_FALSE([@{} writeToURL:nil atomically:YES]);
}

TEST_F(PropertyListFile, AMissingUnreadableOrOtherRootIsNil) {
    EXPECT_EQ(read(), nil);
    EXPECT_EQ([NSDictionary dictionaryWithContentsOfFile:nil], nil);
    EXPECT_EQ([NSArray arrayWithContentsOfFile:nil], nil);
    EXPECT_EQ([NSDictionary dictionaryWithContentsOfFile:host::string(device.path(folder))], nil);
    EXPECT_TRUE([@[ @"a" ] writeToFile:path atomically:YES]);
    EXPECT_EQ(read(), nil);
    EXPECT_TRUE([@{} writeToFile:path atomically:YES]);
    EXPECT_EQ([NSArray arrayWithContentsOfFile:path], nil);
}

TEST_F(PropertyListFile, APipeIsNotWaitedFor) {
    ASSERT_EQ(mkfifo([path fileSystemRepresentation], 0600), 0);
    EXPECT_EQ(read(), nil);
}

TEST_F(PropertyListFile, AnEmptyFileIsAnEmptyDictionary) {
    device.write(phonePath, "");
    expectRead(@{});
    device.write(phonePath, " \n");
    expectRead(@{});
    NSMutableDictionary *dictionary = [NSMutableDictionary dictionaryWithContentsOfFile:path];
    [dictionary setObject:@"v" forKey:@"k"];
    EXPECT_EQ([dictionary count], 1u);
}

TEST_F(PropertyListFile, GarbageIsNil) {
    device.write(phonePath, "garbage");
    EXPECT_EQ(read(), nil);
    device.write(phonePath, std::string("\0\1\2\xff", 4));
    EXPECT_EQ(read(), nil);
}

TEST_F(PropertyListFile, WhatIsNoPropertyListIsRefusedAndTheOldFileStays) {
    device.write(phonePath, "old");
    for (const BOOL atomically : {YES, NO}) {
        EXPECT_FALSE([@{@"a" : [NSNull null]} writeToFile:path atomically:atomically]);
        EXPECT_FALSE([@{@1 : @"a"} writeToFile:path atomically:atomically]);
        EXPECT_FALSE([@[ [NSNull null] ] writeToFile:path atomically:atomically]);
    }
    EXPECT_EQ(device.read(phonePath), "old");
    EXPECT_THAT(device.list(folder), ElementsAre("test.plist"));
}

TEST_F(PropertyListFile, RefusedContentMakesNoFile) {
    EXPECT_FALSE([@{@"a" : [NSNull null]} writeToFile:path atomically:YES]);
    EXPECT_FALSE([@{@"a" : [NSNull null]} writeToFile:path atomically:NO]);
    EXPECT_THAT(device.list(folder), IsEmpty());
}

TEST_F(PropertyListFile, AMissingFolderOrPathIsNo) {
    EXPECT_FALSE([@{} writeToFile:nil atomically:YES]);
    EXPECT_FALSE([@{} writeToFile:@"" atomically:YES]);
    EXPECT_FALSE([@{} writeToFile:host::string(device.path("/none/x.plist")) atomically:YES]);
    EXPECT_FALSE([@{} writeToFile:host::string(device.path(folder)) atomically:YES]);
    EXPECT_THAT(device.list(folder), IsEmpty());
}

TEST_F(PropertyListFile, AFailedAtomicWriteKeepsTheOldFile) {
    EXPECT_TRUE([@{@"k" : @"old"} writeToFile:path atomically:YES]);
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit small{100, RLIM_INFINITY};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    EXPECT_FALSE([@{@"k" : @"new"} writeToFile:path atomically:YES]);
    const rlimit all{RLIM_INFINITY, RLIM_INFINITY};
    ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &all), 0);
    expectRead(@{@"k" : @"old"});
    EXPECT_THAT(device.list(folder), ElementsAre("test.plist"));
}

TEST_F(PropertyListFile, AnAtomicWriteReplacesTheFileAndKeepsItsMode) {
    device.write(phonePath, "old");
    std::filesystem::permissions(device.path(phonePath), std::filesystem::perms(0600));
    struct stat before {
    }, after{};
    ASSERT_EQ(stat(device.path(phonePath).c_str(), &before), 0);
    EXPECT_TRUE([@{} writeToFile:path atomically:YES]);
    ASSERT_EQ(stat(device.path(phonePath).c_str(), &after), 0);
    EXPECT_NE(before.st_ino, after.st_ino);
    EXPECT_EQ(after.st_mode & 0777, 0600u);
}

TEST_F(PropertyListFile, ALoneSurrogateDoesNotDestroyTheDocument) {
    NSString *cut = [@"a\U0001F600" substringToIndex:2];
    NSDictionary *written = @{@"name" : cut, @"other" : @"kept"};
    EXPECT_TRUE([written writeToFile:path atomically:YES]);
    expectRead((@{@"name" : @"a\uFFFD", @"other" : @"kept"}));
}

TEST_F(PropertyListFile, AFileOf50MegabytesIsWrittenAndRead) {
    NSString *text = [@"" stringByPaddingToLength:1 << 20 withString:@"0123456789 abc" startingAtIndex:0];
    NSMutableDictionary *written = [NSMutableDictionary dictionary];
    for (int i = 0; i < 50; ++i)
        [written setObject:text forKey:[NSString stringWithFormat:@"%d", i]];
    EXPECT_TRUE([written writeToFile:path atomically:YES]);
    EXPECT_GT(std::filesystem::file_size(device.path(phonePath)), 50u << 20);
    expectRead(written);
}

TEST_F(PropertyListFile, WritesBelowTheDeviceFolderAreRecorded) {
    EXPECT_TRUE([@{} writeToFile:path atomically:YES]);
    EXPECT_TRUE([@[] writeToFile:path atomically:NO]);
    EXPECT_FALSE([@{@1 : @1} writeToFile:path atomically:YES]);
    EXPECT_THAT(host::eventTexts(host::EventKind::file), ElementsAre(phonePath, phonePath));
}

TEST_F(PropertyListFile, WritesElsewhereAreNot) {
    host::DeviceOptions options = host::device();
    options.folder += "/tmp";
    host::start(options);
    EXPECT_TRUE([@{} writeToFile:path atomically:YES]);
    EXPECT_THAT(host::eventTexts(host::EventKind::file), IsEmpty());
}

} // namespace
