// The root page's own settings and its shared instance.
#import "rootpage/ZelvoraSettingsController.h"
#import "support/BundleTest.h"

#include "Foundation/MethodCorrection.h"
#include "support/BundleState.h"

using support::propertyList;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr const char *folder = "/var/mobile/Library/Preferences";
constexpr const char *preferences = "/var/mobile/Library/Preferences/zelvora.plist";

class RootStore : public support::BundleTest {
protected:
    RootStore() { load(); }

    static ZelvoraSettingsController *newRootPage() {
        return [[classNamed("ZelvoraSettingsController") alloc] init];
    }

    void writeEveryFile() {
        for (const char *name : {"zelvora", "zelvora.black", "zelvora.keypad", "zelvora.recents",
                                 "zelvora.area", "other", "zelvora2"})
            device.write(std::string(folder) + "/" + name + ".plist", propertyList({{"1", "One"}}));
    }
};

TEST_F(RootStore, ThereIsNoSharedInstanceBeforeTheFirstRootPage) {
    EXPECT_EQ(rootPage(), nil);
}

TEST_F(RootStore, TheSharedInstanceIsTheLivingRootPage) {
    ZelvoraSettingsController *page = newRootPage();
    EXPECT_EQ(rootPage(), page);
    [page release];
    EXPECT_EQ(rootPage(), nil);
}

TEST_F(RootStore, EveryNewRootPageReplacesTheSharedInstance) {
    ZelvoraSettingsController *first = newRootPage();
    ZelvoraSettingsController *second = newRootPage();
    EXPECT_EQ(rootPage(), second);
    [second release];
    [first release];
}

TEST_F(RootStore, TheEndOfAnyRootPageClearsTheSharedInstance) {
    ZelvoraSettingsController *first = newRootPage();
    ZelvoraSettingsController *second = newRootPage();
    [first release];
    EXPECT_EQ(rootPage(), nil);
    EXPECT_EQ(support::sharedSettings(), nil);
    [second release];
}

TEST_F(RootStore, StartsEmptyWithEachFirstRootPage) {
    device.write(preferences, propertyList({{"MyInfoName", "Ann Lee"}}));
    ZelvoraSettingsController *page = newRootPage();
    EXPECT_EQ([support::sharedSettings() count], 0U);
    [support::sharedSettings() setObject:@"Ann" forKey:@"MyInfoName"];
    ZelvoraSettingsController *second = newRootPage();
    EXPECT_EQ([support::sharedSettings() count], 1U);
    [second release];
    [page release];
    EXPECT_EQ(support::sharedSettings(), nil);
    page = newRootPage();
    EXPECT_EQ([support::sharedSettings() count], 0U);
    [page release];
}

id refuse(id page, SEL) {
    [page release];
    return nil;
}

TEST_F(RootStore, ARootPageThatThePlatformRefusesLeavesNoTrace) {
    const IMP init = host::replaceMethod([PSListController class], @selector(init), IMP(refuse));
    EXPECT_EQ(newRootPage(), nil);
    EXPECT_EQ(rootPage(), nil);
    EXPECT_EQ(support::sharedSettings(), nil);
    host::replaceMethod([PSListController class], @selector(init), init);
}

TEST_F(RootStore, SavingChangesNothing) {
    writeEveryFile();
    const auto files = device.list(folder);
    const std::string content = device.read(preferences);
    ZelvoraSettingsController *page = newRootPage();
    [support::sharedSettings() setObject:@"Olga" forKey:@"MyInfoName"];
    [page saveSettings:@"Ann" forKey:@"MyInfoName"];
    [page saveSettings:@7 forKey:@"CallHistoryLimit"];
    [page saveSettings:nil forKey:@"MyInfoName"];
    [page saveSettings:[NSNull null] forKey:nil];
    EXPECT_TRUE([support::sharedSettings() isEqual:@{@"MyInfoName" : @"Olga"}]);
    EXPECT_EQ(device.list(folder), files);
    EXPECT_EQ(device.read(preferences), content);
    [page release];
}

TEST_F(RootStore, ResetRemovesThePreferencesAndNothingElse) {
    writeEveryFile();
    open();
    person.tap("Reset All Settings");
    EXPECT_THAT(commands(), ElementsAre("rm -f /var/mobile/Library/Preferences/zelvora.plist"));
    EXPECT_THAT(device.list(folder),
                ElementsAre("other.plist", "zelvora.area.plist", "zelvora.black.plist",
                            "zelvora.keypad.plist", "zelvora.recents.plist", "zelvora2.plist"));
}

TEST_F(RootStore, ClearRemovesEveryDocumentAndKeepsThePreferences) {
    writeEveryFile();
    open();
    person.tap("Clear Data");
    EXPECT_THAT(commands(), ElementsAre("rm -f /var/mobile/Library/Preferences/zelvora.*.plist"));
    EXPECT_THAT(device.list(folder), ElementsAre("other.plist", "zelvora.plist", "zelvora2.plist"));
}

TEST_F(RootStore, ResetRenewsItAndLeavesTheMirrorAlone) {
    device.write(preferences, propertyList({{"Key", "old"}}));
    ZelvoraSettingsController *page = newRootPage();
    [page viewWillDisappear:NO];
    NSMutableDictionary *old = [[support::sharedSettings() retain] autorelease];
    [old setObject:@"Ann" forKey:@"MyInfoName"];
    [page resetAllSettingsAction:nil];
    EXPECT_NE(support::sharedSettings(), nil);
    EXPECT_NE(support::sharedSettings(), old);
    EXPECT_EQ([support::sharedSettings() count], 0U);
    EXPECT_EQ([old count], 1U);
    EXPECT_EQ([support::settingsMirror() count], 1U);
    [page release];
}

TEST_F(RootStore, ClearingLeavesBothDictionariesAlone) {
    device.write(preferences, propertyList({{"Key", "old"}}));
    ZelvoraSettingsController *page = newRootPage();
    [page viewWillDisappear:NO];
    NSMutableDictionary *settings = support::sharedSettings();
    [settings setObject:@"Ann" forKey:@"MyInfoName"];
    [page clearDataAction:nil];
    EXPECT_EQ(support::sharedSettings(), settings);
    EXPECT_EQ([settings count], 1U);
    EXPECT_EQ([support::settingsMirror() count], 1U);
    [page release];
}

TEST_F(RootStore, AfterAResetThePagesShowTheOldValues) {
    open();
    person.tap("Enable Zelvora");
    person.tap("Keypad"); // loads the mirror
    person.back();
    EXPECT_EQ(person.valueOf("Enable Zelvora"), "0");
    person.tap("Reset All Settings");
    EXPECT_EQ(person.valueOf("Enable Zelvora"), "0");
    EXPECT_FALSE(device.exists(preferences));
}

TEST_F(RootStore, ResetAndClearAreAnnouncedToNobody) {
    open();
    person.tap("Reset All Settings");
    person.tap("Clear Data");
    host::advance(10);
    EXPECT_THAT(notifications(), IsEmpty());
    EXPECT_THAT(host::eventTexts(host::EventKind::alert), IsEmpty());
}

TEST_F(RootStore, ResetAndClearAreSilentWhenThereIsNothingToRemove) {
    open();
    person.tap("Reset All Settings");
    person.tap("Clear Data");
    for (const host::Event &event : host::events()) {
        if (event.kind == host::EventKind::command)
            EXPECT_EQ(event.status, 0) << event.text;
    }
}

} // namespace
