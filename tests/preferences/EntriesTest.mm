// Bundles and the root list of Settings, as PreferenceLoader's entry files make it.
#include "Preferences/Entries.h"
#include "preferences/PreferencesTest.h"

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace {

class Entries : public preferences::Test {
protected:
    explicit Entries(host::DeviceOptions options = {}) : Test(std::move(options)) {
        preferences::install("Entries", "/Library/PreferenceLoader/Preferences");
        for (const char *name : {"Jukebox", "Weathercock", "LateTrain", "Wreck"})
            preferences::install(std::string(name) + ".bundle",
                                 "/Library/PreferenceBundles/" + std::string(name) + ".bundle");
    }

    /// The root list of Settings is in front.
    void settings() { host::closePages(); }
};

TEST_F(Entries, AllEntryFilesBelowTheFolderAreListedByName) {
    settings();
    EXPECT_EQ(person.title(), "Settings");
    EXPECT_THAT(person.rows(),
                ElementsAre("Eight", "Elsewhere", "jukebox", "Train Alerts", "Weathercock", "Wreck"));
}

TEST_F(Entries, AnEntryWithoutLabelIsNamedLikeItsFile) {
    settings();
    EXPECT_THAT(person.rows(), Contains("Weathercock"));
}

TEST_F(Entries, AnEntryOfAMissingBundleIsDroppedWithALogLine) {
    settings();
    EXPECT_THAT(person.rows(), Not(Contains("Ghost")));
    EXPECT_TRUE(preferences::complained("Ghost"));
}

TEST_F(Entries, ADamagedEntryFileIsMentioned) {
    settings();
    EXPECT_TRUE(preferences::complained("Torn.plist"));
}

TEST_F(Entries, ABundlePathThatExistsComesFirst) {
    preferences::install("Weathercock.bundle", "/opt/Weathercock.bundle");
    phone.remove("/Library/PreferenceBundles/Weathercock.bundle");
    settings();
    EXPECT_THAT(person.rows(), Contains("Elsewhere"));
    person.tap("Elsewhere");
    EXPECT_EQ(person.title(), "Weathercock");
}

TEST_F(Entries, WithoutIndividualPathTheSystemsFolderIsTheLast) {
    phone.remove("/Library/PreferenceBundles/Weathercock.bundle");
    preferences::install("Weathercock.bundle", "/System/Library/PreferenceBundles/Weathercock.bundle");
    settings();
    EXPECT_THAT(person.rows(), Contains("Weathercock"));
}

TEST_F(Entries, TheBundleIsLoadedAtTheTap) {
    settings();
    const auto rows =
        [[[[UIApplication sharedApplication] keyWindow] rootViewController] childViewControllers];
    PSListController *list = [rows objectAtIndex:0];
    PSSpecifier *entry = [list specifierForID:@"jukebox"];
    EXPECT_EQ(NSClassFromString(@"JBRootController"), Nil);
    EXPECT_NE([entry propertyForKey:@"lazy-bundle"], nil);
    person.tap("jukebox");
    EXPECT_NE(NSClassFromString(@"JBRootController"), Nil);
    EXPECT_EQ([entry propertyForKey:@"lazy-bundle"], nil);
    EXPECT_EQ(person.title(), "Jukebox");
}

TEST_F(Entries, AnEntryWithoutBundleIsAPageItself) {
    settings();
    person.tap("Train Alerts");
    EXPECT_THAT(person.rows(), ElementsAre("Quiet at Night", "Warn of Delays", "Minutes"));
    person.tap("Quiet at Night");
    EXPECT_EQ(preferences::storedText("org.example.latetrain", "quiet"), "true");
}

TEST_F(Entries, ABundleThatIsNoControllerAddsItsRows) {
    settings();
    person.tap("Train Alerts");
    person.tap("Warn of Delays");
    EXPECT_EQ(preferences::storedText("org.example.latetrain", "warn"), "true");
    EXPECT_THAT(preferences::notifications(), ElementsAre("org.example.latetrain/warn"));
}

TEST_F(Entries, ABundleWithRowsIsToldWhenItsPageComesAndGoes) {
    settings();
    person.tap("Train Alerts");
    EXPECT_EQ(preferences::storedText("org.example.latetrain.trace", "last"), "loaded");
    person.back();
    EXPECT_EQ(preferences::storedText("org.example.latetrain.trace", "last"), "unloaded");
}

TEST_F(Entries, ABundleThatCannotBeLoadedOpensAPageWithOneLine) {
    settings();
    person.tap("Wreck");
    EXPECT_THAT(preferences::texts("footer"),
                ElementsAre(testing::HasSubstr("Wreck.bundle cannot be loaded")));
}

TEST_F(Entries, APageMayLinkToOtherBundles) {
    settings();
    person.tap("jukebox");
    person.tap("Extras");
    EXPECT_THAT(person.rows(), ElementsAre("Warn of Delays", "Minutes", "Weathercock", "Internal", "Wreck",
                                           "Other Page of Late Train", "Late Train as a Page"));
    person.tap("Weathercock");
    EXPECT_EQ(person.title(), "Weathercock");
}

TEST_F(Entries, ADetailClassMayOverrideThePrincipalClass) {
    settings();
    person.tap("jukebox");
    person.tap("Extras");
    person.tap("Other Page of Late Train");
    EXPECT_EQ(person.title(), "Line");
    person.back();
    person.tap("Late Train as a Page");
    EXPECT_THAT(preferences::texts("footer"), ElementsAre(testing::HasSubstr("is no page of Settings")));
}

TEST_F(Entries, IconsComeFromTheBundleOrFromBesideTheEntryFile) {
    settings();
    for (const char *name : {"jukebox", "Weathercock", "Train Alerts"})
        EXPECT_FALSE(person.row(name).all("Image").empty()) << name;
}

TEST_F(Entries, ABundleOpenedByPathIsListedOnTheRootPage) {
    preferences::open("Jukebox");
    host::closePages();
    EXPECT_THAT(person.rows(), Contains("Jukebox"));
}

TEST_F(Entries, ABundleThatHasAnEntryIsOpenedThroughIt) {
    host::openBundle(preferences::text(phone.path("/Library/PreferenceBundles/Jukebox.bundle")));
    EXPECT_EQ(person.title(), "Jukebox");
    host::closePages();
    EXPECT_THAT(person.rows(),
                ElementsAre("Eight", "Elsewhere", "jukebox", "Train Alerts", "Weathercock", "Wreck"));
}

TEST_F(Entries, ABundleCanBeOpenedAgain) {
    preferences::open("Jukebox");
    PSListController *again = preferences::open("Jukebox");
    EXPECT_EQ([[again navigationController] topViewController], again);
    EXPECT_EQ([[[again navigationController] viewControllers] count], 2u);
}

TEST_F(Entries, GoingBackFromABundleShowsTheRootList) {
    settings();
    person.tap("Weathercock");
    person.back();
    EXPECT_EQ(person.title(), "Settings");
}

class OldEntries : public Entries {
protected:
    OldEntries() : Entries({.folder = "", .systemVersion = "7.1.2"}) {}
};

TEST_F(OldEntries, FiltersAdmitASystemFromTheLowestVersionToTheUpperBound) {
    settings();
    EXPECT_THAT(person.rows(),
                ElementsAre("Elsewhere", "jukebox", "Seven", "Train Alerts", "Weathercock", "Wreck"));
}

TEST(CoreFoundationVersion, IsThatOfTheNewestKnownSystemNotAboveIt) {
    EXPECT_DOUBLE_EQ(host::coreFoundationVersion("7.1.2"), 847.20);
    EXPECT_DOUBLE_EQ(host::coreFoundationVersion("8.0"), 1140.10);
    EXPECT_DOUBLE_EQ(host::coreFoundationVersion("8.1.3"), 1141.14);
    EXPECT_DOUBLE_EQ(host::coreFoundationVersion("10.3"), 1240.1);
    EXPECT_DOUBLE_EQ(host::coreFoundationVersion("nonsense"), 793);
}

TEST(EntryFilter, ExcludesItsUpperBoundAndIncludesItsLowerOne) {
    const auto filter = [](NSArray *bounds) {
        return [NSDictionary dictionaryWithObject:bounds forKey:@"CoreFoundationVersion"];
    };
    EXPECT_TRUE(host::filterAdmits(filter(@[ @847.20 ]), "7.0"));
    EXPECT_FALSE(host::filterAdmits(filter(@[ @847.20, @847.20 ]), "7.0"));
    EXPECT_FALSE(host::filterAdmits(filter(@[ @1140.10 ]), "7.1"));
    EXPECT_TRUE(host::filterAdmits(nil, "7.0"));
    EXPECT_TRUE(host::filterAdmits(@"text", "7.0"));
    EXPECT_TRUE(host::filterAdmits(filter(@[ @"text" ]), "7.0"));
}

using preferences::German;

TEST_F(German, TheRootListSpeaksTheLanguageOfThePhone) {
    preferences::install("Entries", "/Library/PreferenceLoader/Preferences");
    host::closePages();
    EXPECT_EQ(person.title(), "Einstellungen");
    EXPECT_THAT(person.rows(), Contains("Bahnmelder"));
    person.tap("Bahnmelder");
    EXPECT_THAT(person.rows(), Contains("Nachts still"));
}

} // namespace
