// Entries that are typed or picked, and what becomes of them in the list's document.
#import "ListPageTest.h"

#import "listeditor/ZVSettingsCustomViewController.h"

#include "support/AddressBookBuilder.h"

using support::propertyList;
using support::text;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

using Row = support::Row;

class ListChanges : public ListPageTest {
protected:
    ListChanges() {
        support::AddressBookBuilder(device.path("/var/mobile/Library/AddressBook/AddressBook.sqlitedb"))
            .person("Ann", "Lee", "555-0101")
            .person("Bob", "Lee", "555-0102")
            .person("Cid", "Lee", "555-0103")
            .person("Dan", "Lee", "555-0104")
            .person("Eve", "Lee", "555-0105")
            .person("Long", "Number", "1234567890123456789012345");
        host::setNameOrder(0, 0);
    }

    /// How often the blacklist's document has been written since the list was opened.
    static long writes() {
        long count = 0;
        for (const std::string &file : host::eventTexts(host::EventKind::file))
            count += file == userFile("black");
        return count;
    }

    ZVSettingsCustomViewController *page() {
        return (ZVSettingsCustomViewController *)[[rootPage() navigationController] topViewController];
    }
};

TEST_F(ListChanges, ANumberTypedIntoAnEmptyListMakesItsDocument) {
    openList("Blacklist");
    add("123", "Bob");
    EXPECT_THAT(document(), ElementsAre(Pair("123", "Bob")));
    EXPECT_THAT(rows(entries), ElementsAre(Row{"Bob", "123"}));
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
}

TEST_F(ListChanges, ANewEntryComesToTheTop) {
    openBlacklist({{"1", "One"}, {"2", "Two"}});
    add("9", "Nine");
    EXPECT_THAT(texts(entries), ElementsAre("Nine", "One", "Two"));
    person.back();
    person.tap("Blacklist");
    EXPECT_THAT(texts(entries), ElementsAre("One", "Two", "Nine"));
}

TEST_F(ListChanges, AnEditedEntryKeepsItsPlace) {
    openBlacklist({{"111", "A"}, {"333", "B"}, {"555", "C"}});
    person.tap("C");
    EXPECT_EQ(person.title(), "Edit Number");
    EXPECT_EQ(person.field("Name").value, "C");
    EXPECT_EQ(person.field("Phone Number").value, "555");
    person.retype("Phone Number", "222");
    person.tap("Save");
    EXPECT_THAT(rows(entries), ElementsAre(Row{"A", "111"}, Row{"B", "333"}, Row{"C", "222"}));
    EXPECT_THAT(document(), ElementsAre(Pair("111", "A"), Pair("222", "C"), Pair("333", "B")));
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
}

TEST_F(ListChanges, ANumberChangedFrom111To222LosesTheOldOne) {
    openBlacklist({{"111", "Bob"}});
    person.tap("Bob");
    person.retype("Phone Number", "222");
    person.tap("Save");
    EXPECT_THAT(document(), ElementsAre(Pair("222", "Bob")));
}

TEST_F(ListChanges, CancellingTheEditorChangesNothing) {
    openBlacklist({{"111", "Bob"}});
    person.tap("Bob");
    person.retype("Phone Number", "222");
    person.tap("Cancel");
    EXPECT_THAT(rows(entries), ElementsAre(Row{"Bob", "111"}));
    EXPECT_THAT(document(), ElementsAre(Pair("111", "Bob")));
    EXPECT_THAT(notifications(), IsEmpty());
    EXPECT_EQ(writes(), 0);
}

TEST_F(ListChanges, AnEmptyNumberIsIgnored) {
    openBlacklist({});
    add("", "Nobody");
    EXPECT_THAT(texts(entries), IsEmpty());
    EXPECT_THAT(notifications(), IsEmpty());
    EXPECT_EQ(writes(), 0);
    EXPECT_EQ(person.title(), "Blacklist");
}

TEST_F(ListChanges, AnEmptyNameIsStoredAsOne) {
    openBlacklist({});
    add("123", "");
    EXPECT_THAT(document(), ElementsAre(Pair("123", "")));
    EXPECT_THAT(rows(entries), ElementsAre(Row{"123", ""}));
}

TEST_F(ListChanges, NumbersAndNamesThatAreTypedAreCutToTwentyCharacters) {
    openBlacklist({});
    add("1234567890123456789012345", "abcdefghijklmnopqrstuvwxyz");
    EXPECT_THAT(document(), ElementsAre(Pair("12345678901234567890", "abcdefghijklmnopqrst")));
    EXPECT_THAT(rows(entries), ElementsAre(Row{"abcdefghijklmnopqrst", "12345678901234567890"}));
}

TEST_F(ListChanges, ANameCutInTheMiddleOfAnEmojiDoesNotLoseTheList) {
    openBlacklist({{"1", "One"}});
    add("2", "1234567890123456789😀");
    Entries content = document();
    EXPECT_EQ(content["1"], "One");
    EXPECT_EQ(content["2"].substr(0, 19), "1234567890123456789");
    person.back();
    person.tap("Blacklist");
    EXPECT_EQ(rows(entries).size(), 2U);
}

TEST_F(ListChanges, ANumberPickedIsStoredWhole) {
    openBlacklist({});
    person.tap("Select Contacts");
    person.tap("Long Number");
    person.tap("Done");
    EXPECT_THAT(document(), ElementsAre(Pair("1234567890123456789012345", "Long Number")));
}

TEST_F(ListChanges, APickedNumberWithoutANameIsStoredWithAnEmptyOne) {
    openBlacklist({{"1", "One"}});
    [page() settingsSelectContactsViewControllerAdd:@{@"number" : @"2"}];
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One"), Pair("2", "")));
}

TEST_F(ListChanges, RecordsWithoutANumberChangeNothing) {
    openBlacklist({{"1", "One"}});
    [page() settingsSelectContactsViewControllerAdd:@{@"name" : @"Nobody"}];
    [page() settingsSelectContactsViewControllerRemove:@{@"name" : @"Nobody"}];
    EXPECT_EQ(writes(), 0);
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One")));
}

TEST_F(ListChanges, AddingANumberThatIsInTheListShowsItTwiceUntilTheListIsBuiltAnew) {
    openBlacklist({{"1", "One"}, {"2", "Two"}});
    add("2", "Second");
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One"), Pair("2", "Second")));
    EXPECT_THAT(rows(entries), ElementsAre(Row{"Second", "2"}, Row{"One", "1"}, Row{"Two", "2"}));
    person.back();
    person.tap("Blacklist");
    EXPECT_THAT(rows(entries), ElementsAre(Row{"One", "1"}, Row{"Second", "2"}));
}

TEST_F(ListChanges, FivePicksWriteFiveTimesAndAreAnnouncedOnce) {
    openBlacklist({});
    person.tap("Select Contacts");
    for (const char *name : {"Ann Lee", "Bob Lee", "Cid Lee", "Dan Lee"})
        person.tap(name);
    person.tap("Ann Lee");
    EXPECT_EQ(writes(), 5);
    EXPECT_THAT(notifications(), IsEmpty());
    EXPECT_EQ(document().size(), 3U);
    person.tap("Done");
    EXPECT_EQ(writes(), 5);
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
    EXPECT_THAT(rows(entries),
                ElementsAre(Row{"Bob Lee", "5550102"}, Row{"Cid Lee", "5550103"}, Row{"Dan Lee", "5550104"}));
}

TEST_F(ListChanges, WhatAnotherProcessWroteIsShownAfterAPicker) {
    openBlacklist({{"1", "One"}});
    person.tap("Select Contacts");
    device.write(userFile("black"), propertyList({{"2", "Two"}}));
    person.tap("Done");
    EXPECT_THAT(rows(entries), ElementsAre(Row{"Two", "2"}));
}

TEST_F(ListChanges, AreMadeToWhatAnotherProcessWroteMeanwhile) {
    openBlacklist({{"1", "One"}});
    device.write(userFile("black"), propertyList({{"2", "Two"}, {"3", "Three"}}));
    add("4", "Four");
    EXPECT_THAT(document(), ElementsAre(Pair("2", "Two"), Pair("3", "Three"), Pair("4", "Four")));
    EXPECT_THAT(texts(entries), ElementsAre("Four", "One")) << "the page does not watch the file";
    person.swipe("One");
    person.confirmDelete();
    EXPECT_EQ(document().size(), 3U);
    EXPECT_THAT(texts(entries), ElementsAre("Four"));
}

TEST_F(ListChanges, AFailedWriteIsShownAndAnnouncedAllTheSame) {
    openBlacklist({{"1", "One"}});
    device.remove("/var/mobile/Library/Preferences");
    add("2", "Two");
    EXPECT_THAT(texts(entries), ElementsAre("Two", "One"));
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
    EXPECT_EQ(person.question().type, "");
}

TEST_F(ListChanges, TheFirstChangeToAnUnreadableDocumentReplacesIt) {
    device.write(defaultFile("black"), propertyList({{"1", "One"}}));
    device.write(userFile("black"), "garbage <<<");
    openList("Blacklist");
    add("2", "Two");
    EXPECT_THAT(document(), ElementsAre(Pair("2", "Two")));
}

// Whoever is told of a change reads the document at once.
TEST_F(ListChanges, AreWrittenBeforeTheyAreAnnounced) {
    openBlacklist({{"1", "One"}});
    static std::vector<Entries> seen; // the observer outlives the test
    host::observeEvents([this](const host::Event &event) {
        if (event.kind == host::EventKind::notification)
            seen.push_back(document());
    });
    add("2", "Two");
    person.tap("One");
    person.retype("Phone Number", "3");
    person.tap("Save");
    person.swipe("Two");
    person.confirmDelete();
    person.tap("Select Contacts");
    person.tap("Ann Lee");
    person.tap("Done");
    EXPECT_THAT(seen, ElementsAre(Entries{{"1", "One"}, {"2", "Two"}}, Entries{{"2", "Two"}, {"3", "One"}},
                                  Entries{{"3", "One"}}, Entries{{"3", "One"}, {"5550101", "Ann Lee"}}));
}

TEST_F(ListChanges, KeepWhatADamagedDocumentHoldsBesides) {
    device.write(userFile("black"), "<plist version=\"1.0\"><dict><key>1</key><integer>7</integer>"
                                    "<key>2</key><array/></dict></plist>");
    openList("Blacklist");
    add("3", "Three");
    NSDictionary *const kept = @{@"1" : @7, @"2" : @[], @"3" : @"Three"};
    EXPECT_TRUE(
        [[NSDictionary dictionaryWithContentsOfFile:text(device.path(userFile("black")))] isEqual:kept]);
}

TEST_F(ListChanges, ToThePriorityListAreAnnouncedLikeTheCodeTable) {
    openList("Priority List");
    add("1", "One");
    EXPECT_THAT(notifications(), ElementsAre("ZVT9Changed"));
    EXPECT_THAT(document("priority"), ElementsAre(Pair("1", "One")));
}

TEST_F(ListChanges, ToTheWhitelistAreAnnouncedLikeTheBlacklist) {
    openList("Whitelist");
    add("1", "One");
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
    EXPECT_THAT(document("white"), ElementsAre(Pair("1", "One")));
}

TEST_F(ListChanges, ToTheExclusionListAreAnnouncedThreeSecondsAfterTheLast) {
    openList("Exclusion List");
    add("1", "One");
    host::advance(2);
    add("2", "Two");
    host::advance(2.9);
    EXPECT_THAT(notifications(), IsEmpty());
    host::advance(0.1);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
    EXPECT_THAT(document("exclude"), ElementsAre(Pair("1", "One"), Pair("2", "Two")));
}

TEST_F(ListChanges, ToAreasAreAnnouncedAsSuch) {
    openList("Area Prefixes");
    person.tap("Add Area");
    EXPECT_EQ(person.title(), "Add Area");
    EXPECT_EQ(person.field("Prefix").amount("keyboard"), 5);
    person.type("Area", "Utopia");
    person.type("Prefix", "021");
    person.tap("Save");
    EXPECT_THAT(document("area"), Contains(Pair("021", "Utopia")));
    EXPECT_THAT(notifications(), ElementsAre("ZVAreaChanged"));
    person.tap("Utopia");
    EXPECT_EQ(person.title(), "Edit Area");
}

TEST_F(ListChanges, ToCodesAreAnnouncedAsSuch) {
    openList("Keypad Codes");
    person.tap("Add Code Table");
    EXPECT_EQ(person.title(), "Add Code Table");
    EXPECT_EQ(person.field("T9 Keyboard").amount("keyboard"), 4);
    person.type("Character", "猫");
    person.type("T9 Keyboard", "623");
    person.tap("Save");
    EXPECT_THAT(document("t9"), Contains(Pair("623", "猫")));
    EXPECT_THAT(notifications(), ElementsAre("ZVT9Changed"));
    person.tap("猫");
    EXPECT_EQ(person.title(), "Edit Code Table");
}

TEST_F(ListChanges, TheFormForNumbersHasANumberPad) {
    openBlacklist({});
    person.tap("Add Number");
    EXPECT_EQ(person.title(), "Add Number");
    EXPECT_EQ(person.field("Phone Number").amount("keyboard"), 4);
}

TEST_F(ListChanges, ATapOnAnActionIsRememberedAsTheLastRow) {
    openBlacklist({{"1", "One"}, {"2", "Two"}});
    const auto selectedRow = [this] { return [[page() valueForKey:@"selectedRow"] unsignedLongLongValue]; };
    person.tap("Two");
    person.tap("Cancel");
    EXPECT_EQ(selectedRow(), 1U);
    person.tap("Select Call History");
    person.tap("Done");
    EXPECT_EQ(selectedRow(), 2U);
    person.tap("Add Number");
    person.tap("Cancel");
    EXPECT_EQ(selectedRow(), 0U);
}

TEST_F(ListChanges, ThePickersAreTitledAndSpeakOfTheLists) {
    openBlacklist({});
    person.tap("Select Contacts");
    EXPECT_EQ(person.title(), "Select Contacts");
    person.tap("Done");
    person.tap("Select Call History");
    EXPECT_EQ(person.title(), "Select Call History");
}

} // namespace
