#include "listeditor/ListDocument.h"

#include "support/OrdinaryUser.h"
#include "support/PropertyLists.h"
#include "support/TestDevice.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

using support::Entries;
using support::propertyList;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

constexpr const char *userFile = "/var/mobile/Library/Preferences/zelvora.black.plist";
constexpr const char *defaultFile = "/Library/Zelvora/Default/zelvora.black.plist";

class ListDocuments : public testing::Test {
protected:
    [[nodiscard]] static zv::ListDocument blacklist() {
        return {zv::ListDocument::userPath(@"black"), zv::ListDocument::defaultPath(@"black")};
    }

    [[nodiscard]] static Entries read() {
        Entries entries;
        NSDictionary *document = blacklist().read();
        for (NSString *number in document)
            entries[support::text(number)] = support::text([document objectForKey:number]);
        return entries;
    }

    /// Whoever runs the tests made the device's folder for himself alone.
    void letEverybodyIn() const {
        std::filesystem::permissions(device.path("/"), std::filesystem::perms(0755));
    }

    [[nodiscard]] Entries userEntries() const { return support::entriesOf(device, userFile); }

    support::TestDevice device;
};

using Rows = std::vector<std::pair<std::string, std::string>>;

Rows rowsOf(NSDictionary *entries) {
    NSMutableArray *records = [NSMutableArray arrayWithObject:@"a row that must go"];
    zv::rebuildRows(records, entries);
    Rows rows;
    for (NSDictionary *record in records)
        rows.emplace_back(support::text([record objectForKey:@"number"]),
                          support::text([record objectForKey:@"name"]));
    return rows;
}

TEST_F(ListDocuments, LieInThePreferencesUnderTheirId) {
    EXPECT_EQ(support::text(zv::ListDocument::userPath(@"black")), device.path(userFile));
    EXPECT_EQ(support::text(zv::ListDocument::defaultPath(@"black")), device.path(defaultFile));
}

TEST_F(ListDocuments, WithoutAnyFileTheListIsEmpty) {
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(ListDocuments, TheDefaultCopyStandsInForAMissingUserDocument) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    EXPECT_THAT(read(), ElementsAre(Pair("1", "One")));
}

TEST_F(ListDocuments, TheUserDocumentWinsOverTheDefaultCopy) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    device.write(userFile, propertyList({{"2", "Two"}}));
    EXPECT_THAT(read(), ElementsAre(Pair("2", "Two")));
}

TEST_F(ListDocuments, AnEmptyUserDocumentHidesTheDefaultCopy) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    device.write(userFile, propertyList({}));
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(ListDocuments, ACorruptUserDocumentHidesTheDefaultCopy) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    for (const char *content : {"", "garbage <<<", "<plist><dict><key>1</key>", "<plist><array/></plist>"}) {
        device.write(userFile, content);
        EXPECT_THAT(read(), IsEmpty()) << content;
    }
}

// A dictionary whose one key is the number 1.
TEST_F(ListDocuments, ADocumentWithAKeyThatIsNoTextReadsAsEmpty) {
    const std::string objects("\xD1\x01\x02\x10\x01\x51x", 7), offsets("\x08\x0B\x0D", 3);
    const std::string trailer("\0\0\0\0\0\0\1\1\0\0\0\0\0\0\0\3\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x0F", 32);
    device.write(userFile, "bplist00" + objects + offsets + trailer);
    EXPECT_THAT(read(), IsEmpty());
    blacklist().put(@"3", @"Three");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("3", "Three")));
}

TEST_F(ListDocuments, ABinaryDocumentOfAnotherProgramIsReadAndItCanReadTheAnswer) {
    const auto python = [this](const std::string &program) {
        const std::string command = "cd '" + device.path("/var/mobile/Library/Preferences") +
                                    "' && python3 -c 'import plistlib\n" + program + "'";
        FILE *pipe = popen(command.c_str(), "r");
        return pipe && pclose(pipe) == 0;
    };
    ASSERT_TRUE(python("plistlib.dump({\"10086\": \"\\u4e2d\\U0001F600\", \"9\": \"\"}, "
                       "open(\"zelvora.black.plist\", \"wb\"), fmt=plistlib.FMT_BINARY)"));
    EXPECT_THAT(read(), ElementsAre(Pair("10086", "\u4e2d\U0001F600"), Pair("9", "")));
    blacklist().put(@"*#;,+", @"<&>\"\u7535");
    EXPECT_TRUE(python("assert plistlib.load(open(\"zelvora.black.plist\", \"rb\")) == "
                       "{\"10086\": \"\\u4e2d\\U0001F600\", \"9\": \"\", \"*#;,+\": \"<&>\\\"\\u7535\"}"));
}

TEST_F(ListDocuments, ACorruptDefaultCopyReadsAsEmpty) {
    device.write(defaultFile, "garbage <<<");
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(ListDocuments, AFolderInPlaceOfTheDocumentReadsAsEmpty) {
    device.makeFolder(userFile);
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(ListDocuments, WithoutPathsTheDocumentIsEmptyAndWrittenNowhere) {
    const zv::ListDocument nowhere(nil, nil);
    EXPECT_EQ([nowhere.read() count], 0U);
    EXPECT_EQ([nowhere.put(@"1", @"One") count], 1U);
    EXPECT_EQ([nowhere.read() count], 0U);
}

TEST_F(ListDocuments, TheFirstChangeTakesTheDefaultEntriesAlong) {
    device.write(defaultFile, propertyList({{"1", "One"}, {"2", "Two"}}));
    const std::string copy = device.read(defaultFile);
    blacklist().put(@"3", @"Three");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("1", "One"), Pair("2", "Two"), Pair("3", "Three")));
    EXPECT_EQ(device.read(defaultFile), copy);
}

TEST_F(ListDocuments, AChangeToACorruptDocumentLeavesOnlyThatChange) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    device.write(userFile, "garbage <<<");
    blacklist().put(@"3", @"Three");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("3", "Three")));
}

TEST_F(ListDocuments, AnEntryIsAddedOrGetsANewName) {
    blacklist().put(@"123", @"Bob");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("123", "Bob")));
    blacklist().put(@"123", @"Rob");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("123", "Rob")));
}

TEST_F(ListDocuments, AnEntryMovesToAnotherNumber) {
    device.write(userFile, propertyList({{"111", "Bob"}, {"9", "Nine"}}));
    blacklist().replace(@"111", @"222", @"Bob");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("222", "Bob"), Pair("9", "Nine")));
}

TEST_F(ListDocuments, AnEntryThatKeepsItsNumberGetsTheNewName) {
    device.write(userFile, propertyList({{"111", "Bob"}}));
    blacklist().replace(@"111", @"111", @"Rob");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("111", "Rob")));
}

TEST_F(ListDocuments, RemovingTheLastEntryLeavesAnEmptyDocument) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    blacklist().remove(@"1");
    EXPECT_TRUE(device.exists(userFile));
    EXPECT_THAT(userEntries(), IsEmpty());
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(ListDocuments, RemovingAnUnknownNumberStillWritesTheDocument) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    blacklist().remove(@"2");
    EXPECT_THAT(userEntries(), ElementsAre(Pair("1", "One")));
}

TEST_F(ListDocuments, ChangesReturnTheDocumentThatWasWritten) {
    EXPECT_EQ([blacklist().put(@"1", @"One") count], 1U);
    EXPECT_EQ([blacklist().replace(@"1", @"2", @"Two") count], 1U);
    EXPECT_EQ([blacklist().remove(@"2") count], 0U);
}

TEST_F(ListDocuments, WhoeverReadsDuringAChangeSeesAllOfTheOldDocument) {
    device.write(userFile, propertyList({{"1", "One"}}));
    std::ifstream reader(device.path(userFile), std::ios::binary);
    blacklist().put(@"2", @"Two");
    EXPECT_EQ(std::string(std::istreambuf_iterator<char>(reader), {}), propertyList({{"1", "One"}}));
    EXPECT_THAT(userEntries(), ElementsAre(Pair("1", "One"), Pair("2", "Two")));
}

TEST_F(ListDocuments, AMissingFolderLosesTheWriteInSilence) {
    device.remove("/var/mobile/Library/Preferences");
    EXPECT_EQ([blacklist().put(@"1", @"One") count], 1U);
    EXPECT_FALSE(device.exists(userFile));
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(ListDocuments, AFolderThatCannotBeWrittenKeepsTheOldDocument) {
    device.write(userFile, propertyList({{"1", "One"}}));
    letEverybodyIn();
    const std::filesystem::path folder = std::filesystem::path(device.path(userFile)).parent_path();
    std::filesystem::permissions(folder, std::filesystem::perms(0555));
    {
        support::OrdinaryUser user;
        blacklist().put(@"2", @"Two");
    }
    std::filesystem::permissions(folder, std::filesystem::perms(0755));
    EXPECT_THAT(userEntries(), ElementsAre(Pair("1", "One")));
}

TEST_F(ListDocuments, ADocumentThatCannotBeReadHidesTheDefaultCopy) {
    device.write(defaultFile, propertyList({{"1", "One"}}));
    device.write(userFile, propertyList({{"2", "Two"}}));
    letEverybodyIn();
    std::filesystem::permissions(device.path(userFile), std::filesystem::perms(0));
    support::OrdinaryUser user;
    EXPECT_THAT(read(), IsEmpty());
}

TEST_F(ListDocuments, TextsOfEveryScriptSurvive) {
    const Entries entries = {{"+1 (555)", "Зоя & <Zoë>"}, {"10086", "中国移动"}, {"*#06#", "😀 \"quoted\""}};
    device.write(userFile, propertyList(entries));
    blacklist().put(@"1", @"ü");
    Entries expected = entries;
    expected["1"] = "ü";
    EXPECT_EQ(userEntries(), expected);
}

TEST(ListRowRecords, AreSortedByTheirNumbersAsTexts) {
    EXPECT_THAT(rowsOf(@{@"9" : @"c", @"120" : @"b", @"10086" : @"a"}),
                ElementsAre(Pair("10086", "a"), Pair("120", "b"), Pair("9", "c")));
}

TEST(ListRowRecords, OfAnEmptyDocumentAreNone) {
    EXPECT_THAT(rowsOf(@{}), IsEmpty());
    EXPECT_THAT(rowsOf(nil), IsEmpty());
}

TEST(ListRowRecords, HaveNoNameWhereADamagedDocumentHoldsNoText) {
    EXPECT_THAT(rowsOf(
                    @{@"1" : @2,
                      @"2" : @[],
                      @"3" : @"Three"}),
                ElementsAre(Pair("1", ""), Pair("2", ""), Pair("3", "Three")));
}

TEST(EntryTexts, OfTwentyUnitsAreKeptWhole) {
    EXPECT_EQ(support::text(zv::cutEntryText(@"12345678901234567890")), "12345678901234567890");
    EXPECT_EQ(support::text(zv::cutEntryText(@"")), "");
}

TEST(EntryTexts, OfMoreAreCutToTwenty) {
    EXPECT_EQ(support::text(zv::cutEntryText(@"123456789012345678901")), "12345678901234567890");
    EXPECT_EQ(support::text(zv::cutEntryText(@"1234567890123456789012345")), "12345678901234567890");
}

TEST(EntryTexts, MayBeCutInsideASurrogatePair) {
    NSString *cut = zv::cutEntryText(@"1234567890123456789😀");
    ASSERT_EQ([cut length], 20U);
    EXPECT_EQ([cut characterAtIndex:19], 0xd83d);
}

TEST_F(ListDocuments, ANameCutInsideASurrogatePairDoesNotLoseTheDocument) {
    device.write(userFile, propertyList({{"1", "One"}}));
    blacklist().put(@"2", zv::cutEntryText(@"1234567890123456789😀"));
    Entries entries = userEntries();
    EXPECT_EQ(entries["1"], "One");
    EXPECT_EQ(entries["2"].substr(0, 19), "1234567890123456789");
}

} // namespace
