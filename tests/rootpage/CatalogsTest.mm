// The installed area files and code tables, offered as choices.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "Foundation/MethodCorrection.h"
#include "support/OrdinaryUser.h"

#include <sys/stat.h>
#include <unistd.h>

using support::propertyList;
using support::text;
using testing::Contains;
using testing::ElementsAre;
using testing::Pair;
using testing::UnorderedElementsAre;

namespace {

constexpr const char *keypad = "/var/mobile/Library/Preferences/zelvora.keypad.plist";

std::vector<std::string> texts(NSArray *strings) {
    std::vector<std::string> result;
    for (NSString *string in strings)
        result.push_back(text(string));
    return result;
}

class Catalogs : public support::BundleTest {
protected:
    explicit Catalogs(const host::DeviceOptions &options = support::tallPhone()) : BundleTest(options) {
        page = [[[classNamed("ZelvoraSettingsController") alloc] init] autorelease];
    }

    void removeFolders() {
        for (const char *folder : {"/Library/Zelvora/Area", "/Library/Zelvora/Table", "/Library/Zelvora/T9"})
            device.remove(folder);
    }

    /// The keypad file holds the flag, and `others` as they were.
    void expectFlaggedBeside(NSDictionary *others) const {
        NSMutableDictionary *entries =
            [NSMutableDictionary dictionaryWithContentsOfFile:text(device.path(keypad))];
        EXPECT_TRUE([[entries objectForKey:@"AddressBookChanged"] boolValue]);
        [entries removeObjectForKey:@"AddressBookChanged"];
        EXPECT_TRUE([entries isEqual:others]) << text([entries description]);
    }

    ZelvoraSettingsController *page;
};

TEST_F(Catalogs, WithoutTheirFoldersBothOfferOnlyNone) {
    removeFolders();
    EXPECT_THAT(texts([page areaTitles:nil]), ElementsAre("None"));
    EXPECT_THAT(texts([page areaValues:nil]), ElementsAre(""));
    EXPECT_THAT(texts([page t9Titles:nil]), ElementsAre("None"));
    EXPECT_THAT(texts([page t9Values:nil]), ElementsAre(""));
}

TEST_F(Catalogs, CodeTablesOfBothFoldersFollowNone) {
    device.write("/Library/Zelvora/Table/Pinyin.txt", "");
    device.write("/Library/Zelvora/T9/Stroke.plist", "");
    EXPECT_THAT(texts([page t9Titles:nil]), ElementsAre("None", "Pinyin", "Stroke"));
    EXPECT_THAT(texts([page t9Values:nil]), ElementsAre("", "Pinyin.txt", "Stroke.plist"));
}

TEST_F(Catalogs, SubfoldersAreListedWithWhatTheyHold) {
    device.write("/Library/Zelvora/Table/x/y.txt", "");
    EXPECT_THAT(texts([page t9Titles:nil]), ElementsAre("None", "x", "x/y"));
    EXPECT_THAT(texts([page t9Values:nil]), ElementsAre("", "x", "x/y.txt"));
}

TEST_F(Catalogs, OnlyTheExtensionOfTheFoldersKindIsDropped) {
    device.write("/Library/Zelvora/Table/odd.plist", "");
    device.write("/Library/Zelvora/T9/odd.txt", "");
    EXPECT_THAT(texts([page t9Titles:nil]), ElementsAre("None", "odd.plist", "odd.txt"));
}

TEST_F(Catalogs, AreaFilesAreNeitherStrippedNorDescendedInto) {
    device.write("/Library/Zelvora/Area/b.txt", "");
    device.write("/Library/Zelvora/Area/a.plist", "");
    device.write("/Library/Zelvora/Area/folder/inner.txt", "");
    const auto titles = texts([page areaTitles:nil]);
    EXPECT_THAT(titles, UnorderedElementsAre("None", "b.txt", "a.plist", "folder"));
    EXPECT_EQ(titles.front(), "None");
    auto values = texts([page areaValues:nil]);
    ASSERT_EQ(values.size(), titles.size());
    EXPECT_EQ(values.front(), "");
    values.front() = "None";
    EXPECT_EQ(values, titles);
}

TEST_F(Catalogs, OnlyAnEndingIsDroppedAndOnlyOnce) {
    for (const char *name : {"twice.txt.txt", "other.xtxt", "loud.TXT", "nodot_txt", ".txt", "x/.txt"})
        device.write(std::string("/Library/Zelvora/Table/") + name, "");
    EXPECT_THAT(
        texts([page getT9ListWithExtension:NO]),
        UnorderedElementsAre("twice.txt", "other.xtxt", "loud.TXT", "nodot_txt", ".txt", "x", "x/.txt"));
}

TEST_F(Catalogs, NamesOfEveryKindAreListed) {
    for (const char *name : {"with space", "归属地", ".hidden", "e\xcc\x81"}) {
        device.write(std::string("/Library/Zelvora/Area/") + name, "");
        device.write(std::string("/Library/Zelvora/T9/") + name + ".plist", "");
    }
    EXPECT_THAT(texts([page getAreaList]),
                UnorderedElementsAre("with space", "归属地", ".hidden", "e\xcc\x81"));
    EXPECT_THAT(texts([page getT9ListWithExtension:NO]),
                UnorderedElementsAre("with space", "归属地", ".hidden", "e\xcc\x81"));
}

TEST_F(Catalogs, AFileInPlaceOfAFolderOffersNothing) {
    removeFolders();
    device.write("/Library/Zelvora/Area", "a file");
    device.write("/Library/Zelvora/Table", "a file");
    device.write("/Library/Zelvora/T9/Stroke.plist", "");
    EXPECT_THAT(texts([page areaTitles:nil]), ElementsAre("None"));
    EXPECT_THAT(texts([page t9Titles:nil]), ElementsAre("None", "Stroke"));
}

TEST_F(Catalogs, AFolderThatMayNotBeReadOffersNothing) {
    device.write("/Library/Zelvora/Area/Utopia", "");
    device.write("/Library/Zelvora/Table/Pinyin.txt", "");
    for (const char *folder : {"/Library/Zelvora/Area", "/Library/Zelvora/Table"})
        chmod(device.path(folder).c_str(), 0);
    const support::OrdinaryUser user;
    EXPECT_THAT(texts([page areaValues:nil]), ElementsAre(""));
    EXPECT_THAT(texts([page t9Values:nil]), ElementsAre(""));
}

TEST_F(Catalogs, FilesInstalledMeanwhileAreOfferedWhenThePageReloads) {
    open();
    device.write("/Library/Zelvora/Table/Pinyin.txt", "");
    person.tap("Keypad");
    person.back();
    person.tap("Code Table");
    EXPECT_TRUE(person.sees("Pinyin"));
}

TEST_F(Catalogs, AreaFilesKeepTheOrderOfTheListing) {
    for (const char *name : {"b", "C", "a", "10", "9"})
        device.write(std::string("/Library/Zelvora/Area/") + name, "");
    NSArray *listing =
        [[NSFileManager defaultManager] contentsOfDirectoryAtPath:text(device.path("/Library/Zelvora/Area"))
                                                            error:NULL];
    EXPECT_EQ(texts([page getAreaList]), texts(listing));
}

TEST_F(Catalogs, EveryListIsANewOne) {
    EXPECT_NE([page getAreaList], [page getAreaList]);
    EXPECT_NE([page getT9ListWithExtension:YES], [page getT9ListWithExtension:YES]);
}

TEST_F(Catalogs, ChoosingACodeTableFlagsTheKeypadFileAndKeepsItsOtherEntries) {
    device.write("/Library/Zelvora/Table/Pinyin.txt", "");
    device.write(keypad, propertyList({{"Other", "kept"}}));
    open();
    person.tap("Code Table");
    person.tap("Pinyin");
    NSDictionary *flags = [NSDictionary dictionaryWithContentsOfFile:text(device.path(keypad))];
    EXPECT_EQ([[flags objectForKey:@"AddressBookChanged"] boolValue], YES);
    EXPECT_EQ(text([flags objectForKey:@"Other"]), "kept");
    EXPECT_EQ([flags count], 2U);
    EXPECT_THAT(device.read(keypad), testing::HasSubstr("<key>AddressBookChanged</key>\n\t<true/>"));
}

TEST_F(Catalogs, TheOtherEntriesOfTheKeypadFileKeepTheirTypes) {
    NSDictionary *others = @{
        @"text" : @"拨号 😀",
        @"number" : @-7,
        @"fraction" : @0.25,
        @"yes" : [NSNumber numberWithBool:YES],
        @"data" : [NSData dataWithBytes:"\0\xFF" length:2],
        @"date" : [NSDate dateWithTimeIntervalSince1970:1425600000],
        @"list" : @[ @"a",
                     @{@"b" : @1} ],
    };
    NSString *path = text(device.path(keypad));
    ASSERT_TRUE([others writeToFile:path atomically:YES]);
    [page setT9Database:@"Pinyin.txt" forSpecifier:nil];
    expectFlaggedBeside(others);
}

// The phone's own preference files are binary.
TEST_F(Catalogs, TheOtherEntriesOfABinaryKeypadFileAreKeptToo) {
    NSDictionary *others = @{@"text" : @"拨号 😀", @"list" : @[ @1, @{@"data" : [NSData data]} ]};
    NSData *document = [NSPropertyListSerialization dataWithPropertyList:others
                                                                  format:NSPropertyListBinaryFormat_v1_0
                                                                 options:0
                                                                   error:NULL];
    ASSERT_TRUE([document writeToFile:text(device.path(keypad)) atomically:YES]);
    [page setT9Database:@"Pinyin.txt" forSpecifier:nil];
    expectFlaggedBeside(others);
}

// Who reads it at this moment sees the old file or the new one, never a half.
TEST_F(Catalogs, TheKeypadFileIsReplacedWhole) {
    device.write(keypad, propertyList({{"Other", "kept"}}));
    const std::string before = device.read(keypad), reader = device.path("/tmp/reader");
    ASSERT_EQ(link(device.path(keypad).c_str(), reader.c_str()), 0);
    [page setT9Database:@"Pinyin.txt" forSpecifier:nil];
    EXPECT_EQ(device.read("/tmp/reader"), before);
    EXPECT_NE(device.read(keypad), before);
}

TEST_F(Catalogs, AKeypadFileThatCannotBeWrittenIsNoConcern) {
    device.makeFolder(keypad);
    [page setT9Database:@"Pinyin.txt" forSpecifier:nil];
    device.remove("/var/mobile/Library/Preferences");
    [page setT9Database:@"Pinyin.txt" forSpecifier:nil];
    EXPECT_FALSE(device.exists("/var/mobile/Library/Preferences"));
}

std::vector<std::pair<std::string, std::string>> saved; // key and value

void recordSaving(id, SEL, id value, NSString *key) {
    saved.emplace_back(text(key), text([value description]));
}

TEST_F(Catalogs, AChosenCodeTableIsHandedToTheStoreUnderTheKeyOfItsRow) {
    host::replaceMethod([page class], @selector(saveSettings:forKey:), IMP(recordSaving));
    device.write("/Library/Zelvora/Table/x/y.txt", "");
    open();
    saved.clear();
    person.tap("Code Table");
    person.tap("x/y");
    EXPECT_THAT(saved, Contains(Pair("T9Database", "x/y.txt")));
}

std::vector<std::string> lookedUp;
IMP lookUp;

id recordLookUp(id bundle, SEL selector, NSString *key, NSString *value, NSString *table) {
    EXPECT_EQ(table, nil);
    EXPECT_EQ(text(key), text(value));
    lookedUp.push_back(text(key));
    return reinterpret_cast<id (*)(id, SEL, id, id, id)>(lookUp)(bundle, selector, key, value, table);
}

// Deliberately the areas' alone.
TEST_F(Catalogs, TheEmptyValueOfTheAreasIsLookedUpAndThatOfTheCodeTablesIsNot) {
    const SEL lookingUp = @selector(localizedStringForKey:value:table:);
    lookUp = host::replaceMethod([NSBundle class], lookingUp, IMP(recordLookUp));
    (void)[page areaValues:nil];
    EXPECT_THAT(lookedUp, ElementsAre(""));
    (void)[page t9Values:nil];
    EXPECT_THAT(lookedUp, ElementsAre(""));
    (void)[page areaTitles:nil];
    (void)[page t9Titles:nil];
    EXPECT_THAT(lookedUp, ElementsAre("", "None", "None"));
    host::replaceMethod([NSBundle class], lookingUp, lookUp);
}

TEST_F(Catalogs, ChoosingNoneFlagsTheKeypadFileToo) {
    open();
    person.tap("Code Table");
    person.tap("None");
    EXPECT_THAT(support::entriesOf(device, keypad), ElementsAre(Pair("AddressBookChanged", "1")));
}

TEST_F(Catalogs, AnUnreadableKeypadFileIsReplaced) {
    for (const char *content : {"", "garbage <<<", "<plist><array/></plist>"}) {
        device.write(keypad, content);
        [page setT9Database:@"" forSpecifier:nil];
        EXPECT_THAT(support::entriesOf(device, keypad), ElementsAre(Pair("AddressBookChanged", "1")))
            << content;
    }
}

TEST_F(Catalogs, ChoosingACodeTableIsNeitherStoredNorAnnounced) {
    device.write("/Library/Zelvora/Table/Pinyin.txt", "");
    open();
    person.tap("Code Table");
    person.tap("Pinyin");
    host::advance(10);
    EXPECT_THAT(notifications(), testing::IsEmpty());
    EXPECT_FALSE(device.exists("/var/mobile/Library/Preferences/zelvora.plist"));
}

TEST_F(Catalogs, ChoosingAnAreaFileIsStoredAndAnnounced) {
    device.write("/Library/Zelvora/Area/Utopia.txt", "");
    open();
    person.tap("Area Database");
    person.tap("Utopia.txt");
    person.back();
    EXPECT_EQ(person.valueOf("Area Database"), "Utopia.txt");
    host::advance(3);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
}

class GermanCatalogs : public Catalogs {
protected:
    GermanCatalogs() : Catalogs(support::tallPhone("de", "DE")) {}
};

TEST_F(GermanCatalogs, OnlyNoneIsTranslated) {
    device.write("/Library/Zelvora/Table/Cancel.txt", "");
    device.write("/Library/Zelvora/Area/Cancel", "");
    EXPECT_THAT(texts([page t9Titles:nil]), ElementsAre("Keine", "Cancel"));
    EXPECT_THAT(texts([page areaTitles:nil]), ElementsAre("Keine", "Cancel"));
    EXPECT_THAT(texts([page areaValues:nil]), ElementsAre("", "Cancel"));
}

TEST_F(GermanCatalogs, FilesWithTheNamesOfTextsAreShownAsTheyAre) {
    device.write("/Library/Zelvora/Table/Cancel.txt", "");
    open();
    person.tap("Codetabelle");
    EXPECT_TRUE(person.sees("Cancel"));
}

} // namespace
