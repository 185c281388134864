// Values that are set on the pages: where they are kept, and who is told.
#import "rootpage/ZelvoraSettingsController.h"
#import "settings/ZVSettingsViewController.h"
#import "support/BundleTest.h"

#include "Foundation/MethodCorrection.h"
#include "support/BundleState.h"

#include <climits>

using support::propertyList;
using support::text;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char *preferences = "/var/mobile/Library/Preferences/zelvora.plist";
constexpr double shortly = 0.01; // seconds

PSSpecifier *control(NSString *key, id defaultValue) {
    PSSpecifier *specifier = [PSSpecifier preferenceSpecifierNamed:@"Control"
                                                            target:nil
                                                               set:NULL
                                                               get:NULL
                                                            detail:Nil
                                                              cell:PSSwitchCell
                                                              edit:Nil];
    [specifier setProperty:key forKey:@"key"];
    [specifier setProperty:defaultValue forKey:@"default"];
    [specifier setProperty:@"zelvora" forKey:@"defaults"];
    return specifier;
}

class SettingsStore : public support::BundleTest {
protected:
    ZVSettingsViewController *newPage() {
        return [[[classNamed("ZVSettingsViewController") alloc] init] autorelease];
    }

    // Has a page disappear, which loads the mirror.
    void loadMirror() { [newPage() viewWillDisappear:NO]; }

    std::string valueInFile(const std::string &key) {
        const support::Entries entries = support::entriesOf(device, preferences);
        const auto found = entries.find(key);
        return found == entries.end() ? "" : found->second;
    }
};

TEST_F(SettingsStore, FiveChangesASecondApartYieldOneNotification) {
    open();
    for (int change = 0; change < 5; ++change) {
        if (change > 0)
            host::advance(1);
        person.tap("Enable Zelvora");
    }
    host::advance(3 - shortly);
    EXPECT_THAT(notifications(), IsEmpty());
    host::advance(shortly);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
    host::advance(60);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
}

TEST_F(SettingsStore, ChangesMoreThanThreeSecondsApartAreEachAnnounced) {
    open();
    person.tap("Enable Zelvora");
    host::advance(3.5);
    person.tap("Enable Zelvora");
    host::advance(3.5);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged", "ZVSettingsChanged"));
}

TEST_F(SettingsStore, AChangeOnAChildPageIsAnnouncedByTheRootPage) {
    open();
    person.tap("Keypad");
    person.tap("Match Initials");
    EXPECT_EQ(valueInFile("KeypadSearchInitials"), "0");
    host::advance(3);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
}

TEST_F(SettingsStore, AChangeWithoutARootPageIsStoredButNotAnnounced) {
    ZVSettingsViewController *page = newPage();
    ASSERT_EQ(rootPage(), nil);
    loadMirror();
    [page setPreferenceValue:@1 specifier:control(@"Lonely", nil)];
    host::advance(10);
    EXPECT_THAT(notifications(), IsEmpty());
    EXPECT_EQ(valueInFile("Lonely"), "1");
    EXPECT_EQ(text([[support::settingsMirror() objectForKey:@"Lonely"] description]), "1");
}

TEST_F(SettingsStore, TheControlsOwnNotificationIsPostedAtOnce) {
    PSSpecifier *specifier = control(@"Key", nil);
    [specifier setProperty:@"OwnNotification" forKey:@"PostNotification"];
    [newPage() setPreferenceValue:@1 specifier:specifier];
    EXPECT_THAT(notifications(), ElementsAre("OwnNotification"));
}

TEST_F(SettingsStore, APendingNotificationKeepsTheRootPageUntilItIsPosted) {
    @autoreleasepool {
        open();
        person.tap("Enable Zelvora");
        host::closePages();
        host::waitUntilIdle();
    }
    EXPECT_NE(rootPage(), nil);
    @autoreleasepool {
        host::advance(3);
    }
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
    EXPECT_EQ(rootPage(), nil);
}

TEST_F(SettingsStore, WithoutAFileEveryControlReadsItsDefault) {
    loadMirror();
    EXPECT_EQ(text([newPage() readPreferenceValue:control(@"Key", @"default")]), "default");
}

TEST_F(SettingsStore, AControlWithNeitherEntryNorDefaultReadsNil) {
    loadMirror();
    EXPECT_EQ([newPage() readPreferenceValue:control(@"Key", nil)], nil);
}

TEST_F(SettingsStore, BeforeAPageHasDisappearedTheDefaultIsReadThoughTheFileHoldsAValue) {
    device.write(preferences, propertyList({{"Key", "stored"}}));
    ZVSettingsViewController *page = newPage();
    EXPECT_EQ(text([page readPreferenceValue:control(@"Key", @"default")]), "default");
    [page viewWillDisappear:NO];
    EXPECT_EQ(text([page readPreferenceValue:control(@"Key", @"default")]), "stored");
}

TEST_F(SettingsStore, AChangeBeforeTheFirstDisappearanceIsPickedUpFromTheFile) {
    ZVSettingsViewController *page = newPage();
    [page setPreferenceValue:@"early" specifier:control(@"Key", nil)];
    EXPECT_EQ([page readPreferenceValue:control(@"Key", nil)], nil);
    [page viewWillDisappear:NO];
    EXPECT_EQ(text([page readPreferenceValue:control(@"Key", nil)]), "early");
}

TEST_F(SettingsStore, TheFileIsLoadedOnce) {
    loadMirror();
    device.write(preferences, propertyList({{"Key", "by somebody else"}}));
    loadMirror();
    EXPECT_EQ([newPage() readPreferenceValue:control(@"Key", nil)], nil);
}

TEST_F(SettingsStore, AChangeIsInTheMirrorAndInTheFile) {
    loadMirror();
    ZVSettingsViewController *page = newPage();
    [page setPreferenceValue:@"new" specifier:control(@"Key", @"default")];
    EXPECT_EQ(text([page readPreferenceValue:control(@"Key", @"default")]), "new");
    EXPECT_EQ(valueInFile("Key"), "new");
}

TEST_F(SettingsStore, SettingNilRemovesTheEntry) {
    device.write(preferences, propertyList({{"Key", "old"}}));
    loadMirror();
    ZVSettingsViewController *page = newPage();
    [page setPreferenceValue:nil specifier:control(@"Key", @"default")];
    EXPECT_EQ(text([page readPreferenceValue:control(@"Key", @"default")]), "default");
    EXPECT_EQ([support::settingsMirror() objectForKey:@"Key"], nil);
}

IMP store;
std::string mirroredWhenStored;

void watchStoring(id page, SEL selector, id value, PSSpecifier *specifier) {
    mirroredWhenStored = text([[support::settingsMirror() objectForKey:@"Key"] description]);
    reinterpret_cast<void (*)(id, SEL, id, id)>(store)(page, selector, value, specifier);
}

TEST_F(SettingsStore, AValueIsInTheFileBeforeItIsInTheMirror) {
    device.write(preferences, propertyList({{"Key", "old"}}));
    loadMirror();
    store = host::replaceMethod([PSViewController class], @selector(setPreferenceValue:specifier:),
                                IMP(watchStoring));
    [newPage() setPreferenceValue:@"new" specifier:control(@"Key", nil)];
    EXPECT_EQ(mirroredWhenStored, "old");
    EXPECT_EQ(valueInFile("Key"), "new");
}

TEST_F(SettingsStore, AStoredNoIsReadThoughTheDefaultIsYes) {
    device.write(preferences, "<plist><dict><key>Key</key><false/></dict></plist>");
    loadMirror();
    id value = [newPage() readPreferenceValue:control(@"Key", [NSNumber numberWithBool:YES])];
    ASSERT_NE(value, nil);
    EXPECT_FALSE([value boolValue]);
}

TEST_F(SettingsStore, ValuesKeepTheirTypesInTheMirrorAndInTheFile) {
    loadMirror();
    NSArray *values = @[
        [NSNumber numberWithBool:NO], @-1, [NSNumber numberWithLongLong:LLONG_MAX], @0.25, @"", @"拨号 😀",
        [NSData data], @[ @"a" ]
    ];
    ZVSettingsViewController *page = newPage();
    for (id value in values) {
        [page setPreferenceValue:value specifier:control(@"Key", nil)];
        EXPECT_EQ([page readPreferenceValue:control(@"Key", nil)], value);
        NSDictionary *file = [NSDictionary dictionaryWithContentsOfFile:text(device.path(preferences))];
        EXPECT_TRUE([[file objectForKey:@"Key"] isEqual:value]) << text([value description]);
    }
}

TEST_F(SettingsStore, AValueThatNoFileCanHoldLeavesTheFileAsItWas) {
    device.write(preferences, propertyList({{"Key", "old"}, {"Other", "kept"}}));
    const std::string before = device.read(preferences);
    [newPage() setPreferenceValue:[NSNull null] specifier:control(@"Key", nil)];
    EXPECT_EQ(device.read(preferences), before);
}

TEST_F(SettingsStore, AControlWithoutAKeyChangesNothing) {
    loadMirror();
    [newPage() setPreferenceValue:@1 specifier:control(nil, nil)];
    [newPage() setPreferenceValue:@1 specifier:nil];
    [newPage() setPreferenceValue:nil specifier:nil];
    EXPECT_EQ([support::settingsMirror() count], 0U);
    EXPECT_EQ(text([newPage() readPreferenceValue:control(nil, @"default")]), "default");
    EXPECT_EQ([newPage() readPreferenceValue:nil], nil);
}

TEST_F(SettingsStore, AChangeThatCannotBeStoredIsStillMirroredAndAnnounced) {
    open();
    person.tap("Keypad"); // loads the mirror
    person.back();
    device.remove(preferences);
    device.makeFolder(preferences);
    person.tap("Enable Zelvora");
    EXPECT_FALSE([[support::settingsMirror() objectForKey:@"Enabled"] boolValue]);
    EXPECT_EQ([support::settingsMirror() count], 1U);
    host::advance(3);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
}

TEST_F(SettingsStore, UnusableFilesReadAsEmpty) {
    for (const char *content : {"", "garbage <<<", "<plist><array/></plist>"}) {
        device.write(preferences, content);
        loadMirror();
        EXPECT_EQ(text([newPage() readPreferenceValue:control(@"Key", @"default")]), "default") << content;
        [support::settingsMirror() release];
        support::settingsMirror() = nil;
    }
}

} // namespace
