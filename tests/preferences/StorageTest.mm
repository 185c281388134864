// Reading and storing values, and the notification that follows.
#include "preferences/PreferencesTest.h"

using preferences::stored;
using preferences::storedText;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Storage : public preferences::Test {
protected:
    const std::string file = "/var/mobile/Library/Preferences/org.example.jukebox.plist";

    void write(NSDictionary *values) {
        ASSERT_TRUE([values writeToFile:preferences::text(phone.path(file)) atomically:YES]);
    }
};

TEST_F(Storage, ARowWithoutAStoredValueShowsItsDefault) {
    preferences::open("Jukebox");
    EXPECT_EQ(person.valueOf("Shuffle"), "1");
    EXPECT_EQ(person.valueOf("Quality"), "Medium");
    EXPECT_FALSE(phone.exists(file));
}

TEST_F(Storage, ARowShowsTheStoredValue) {
    write([NSDictionary
        dictionaryWithObjectsAndKeys:[NSNumber numberWithBool:NO], @"shuffle", @3, @"quality", nil]);
    preferences::open("Jukebox");
    EXPECT_EQ(person.valueOf("Shuffle"), "0");
    EXPECT_EQ(person.valueOf("Quality"), "High");
}

TEST_F(Storage, ASwitchStoresABooleanAtTheTap) {
    preferences::open("Jukebox");
    person.tap("Shuffle");
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "false");
    person.tap("Shuffle");
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "true");
}

TEST_F(Storage, ANegatedSwitchShowsAndStoresTheInverse) {
    preferences::open("Jukebox");
    EXPECT_EQ(person.valueOf("Allow Explicit Songs"), "1");
    person.tap("Allow Explicit Songs");
    EXPECT_EQ(storedText(preferences::jukebox, "hideExplicit"), "true");
    EXPECT_EQ(person.valueOf("Allow Explicit Songs"), "0");
}

TEST_F(Storage, ASegmentStoresItsValidValue) {
    preferences::open("Jukebox");
    person.choose("Quality", "High");
    EXPECT_TRUE([stored(preferences::jukebox, "quality") isEqual:@3]);
}

TEST_F(Storage, ASliderStoresANumberWhenItIsLetGo) {
    preferences::open("Jukebox");
    person.slide("Volume", 7.5);
    EXPECT_DOUBLE_EQ([stored(preferences::jukebox, "volume") doubleValue], 7.5);
}

TEST_F(Storage, UnknownKeysOfTheDomainAreKept) {
    write([NSDictionary dictionaryWithObjectsAndKeys:@"kept", @"of another program", nil]);
    preferences::open("Jukebox");
    person.tap("Shuffle");
    EXPECT_EQ(storedText(preferences::jukebox, "of another program"), "kept");
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "false");
}

TEST_F(Storage, ADamagedDomainFileBeginsAnewAndIsMentioned) {
    phone.write(file, "{{{ not a property list");
    preferences::open("Jukebox");
    EXPECT_EQ(person.valueOf("Shuffle"), "1");
    person.tap("Shuffle");
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "false");
    EXPECT_TRUE(preferences::complained("org.example.jukebox"));
}

TEST_F(Storage, ADomainFileThatIsNoDictionaryBeginsAnew) {
    phone.write(file, "<plist version=\"1.0\"><array><string>x</string></array></plist>");
    preferences::open("Jukebox");
    person.tap("Shuffle");
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "false");
}

TEST_F(Storage, AfterTheFileIsRemovedTheNextValueStartsFromAnEmptyOne) {
    preferences::open("Jukebox");
    person.tap("Shuffle");
    phone.remove(file);
    person.tap("Allow Explicit Songs");
    EXPECT_EQ(stored(preferences::jukebox, "shuffle"), nil);
    EXPECT_NE(stored(preferences::jukebox, "hideExplicit"), nil);
}

TEST_F(Storage, AMissingPreferencesFolderIsMade) {
    phone.remove("/var/mobile/Library/Preferences");
    preferences::open("Jukebox");
    person.tap("Shuffle");
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "false");
}

TEST_F(Storage, AFileThatCannotBeWrittenIsMentionedAndNobodyIsNotified) {
    phone.remove("/var/mobile/Library/Preferences");
    phone.write("/var/mobile/Library/Preferences", "a file where the folder should be");
    preferences::open("Jukebox");
    person.tap("Shuffle");
    EXPECT_TRUE(preferences::complained("cannot be stored"));
    EXPECT_THAT(preferences::notifications(), IsEmpty());
}

TEST_F(Storage, TheNotificationFollowsTheStoredValue) {
    preferences::open("Jukebox");
    static std::string storedAtNotification; // observers stay for the life of the process
    host::observeEvents([](const host::Event &event) {
        if (event.kind == host::EventKind::notification)
            storedAtNotification = storedText(preferences::jukebox, "shuffle");
    });
    person.tap("Shuffle");
    EXPECT_EQ(storedAtNotification, "false");
    EXPECT_THAT(preferences::notifications(), ElementsAre("org.example.jukebox/changed"));
}

TEST_F(Storage, ARowWithoutPostNotificationPostsNothing) {
    preferences::open("Jukebox");
    person.tap("Allow Explicit Songs");
    EXPECT_THAT(preferences::notifications(), IsEmpty());
}

TEST_F(Storage, NilRemovesTheKey) {
    PSListController *page = preferences::open("Jukebox");
    person.tap("Shuffle");
    [page setPreferenceValue:nil specifier:[page specifierForID:@"shuffle"]];
    EXPECT_EQ(stored(preferences::jukebox, "shuffle"), nil);
    EXPECT_TRUE([[page readPreferenceValue:[page specifierForID:@"shuffle"]] boolValue]);
}

TEST_F(Storage, AValueThatIsNoPropertyListLeavesTheFileAsItWas) {
    PSListController *page = preferences::open("Jukebox");
    person.tap("Shuffle");
    [page setPreferenceValue:[[[NSObject alloc] init] autorelease]
                   specifier:[page specifierForID:@"quality"]];
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "false");
    EXPECT_EQ(stored(preferences::jukebox, "quality"), nil);
}

TEST_F(Storage, WithoutADomainValuesGoToTheOneOfSettings) {
    preferences::open("Weathercock");
    person.tap("Units");
    person.tap("Own Domain");
    EXPECT_EQ(storedText("com.apple.Preferences", "weathercockOwn"), "true");
}

TEST_F(Storage, WithoutAKeyNothingIsStoredAndTheDefaultIsShown) {
    preferences::open("Weathercock");
    person.tap("Units");
    EXPECT_EQ(person.valueOf("No Key"), "1");
    person.tap("No Key");
    EXPECT_THAT(phone.list("/var/mobile/Library/Preferences"), IsEmpty());
}

TEST_F(Storage, TheStackOfPagesReadsAndStoresLikeAPage) {
    PSListController *page = preferences::open("Jukebox");
    PSSpecifier *row = [page specifierForID:@"shuffle"];
    [[page rootController] setPreferenceValue:[NSNumber numberWithBool:NO] specifier:row];
    EXPECT_EQ([[[page rootController] readPreferenceValue:row] boolValue], NO);
    EXPECT_EQ(storedText(preferences::jukebox, "shuffle"), "false");
}

} // namespace
