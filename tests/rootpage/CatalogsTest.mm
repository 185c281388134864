// The installed area files and code tables, offered as choices.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

using support::Entries;
using support::propertyList;
using support::text;
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
