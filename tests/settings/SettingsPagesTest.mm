// What every list-style page adds to the platform's: translated texts, and rows that are up to date when the
// page comes back.
#import "rootpage/ZelvoraSettingsController.h"
#import "settings/ZVSettingsViewController.h"
#import "support/BundleTest.h"

#include "Foundation/MethodCorrection.h"
#include "support/BundleState.h"

using support::text;
using testing::ElementsAre;

namespace {

PSSpecifier *named(NSString *name) {
    PSSpecifier *specifier = [PSSpecifier emptyGroupSpecifier];
    [specifier setName:name];
    return specifier;
}

class GermanPages : public support::BundleTest {
protected:
    GermanPages() : BundleTest(support::tallPhone("de", "DE")) {}

    ZVSettingsViewController *newPage() {
        return [[[classNamed("ZVSettingsViewController") alloc] init] autorelease];
    }

    std::string localizedName(NSString *name) {
        PSSpecifier *specifier = named(name);
        [newPage() localizedSpecifiersForSpecifiers:@[ specifier ]];
        return text([specifier name]);
    }
};

TEST_F(GermanPages, NamesThatTheTableKnowsAreTranslated) {
    EXPECT_EQ(localizedName(@"Cancel"), "Abbrechen");
}

TEST_F(GermanPages, NamesThatTheTableLacksAreKept) {
    EXPECT_EQ(localizedName(@"Gibberish"), "Gibberish");
}

TEST_F(GermanPages, ASpecifierWithoutANameIsLeftUnnamed) {
    PSSpecifier *specifier = named(nil);
    [newPage() localizedSpecifiersForSpecifiers:@[ specifier ]];
    EXPECT_EQ([specifier name], nil);
}

TEST_F(GermanPages, TitlesOfChoicesAreTranslated) {
    PSSpecifier *specifier = named(@"Choice");
    [specifier setValues:@[ @"", @7 ] titles:@[ @"None", @"Gibberish" ]];
    [newPage() localizedSpecifiersForSpecifiers:@[ specifier ]];
    EXPECT_EQ(text([[specifier titleDictionary] objectForKey:@""]), "Keine");
    EXPECT_EQ(text([[specifier titleDictionary] objectForKey:@7]), "Gibberish");
    EXPECT_EQ([[specifier titleDictionary] count], 2U);
}

TEST_F(GermanPages, TitlesThatAreNoTextsAreKept) {
    PSSpecifier *specifier = named(@"Choice");
    [specifier setValues:@[ @1, @2 ] titles:@[ @200, @"None" ]];
    [newPage() localizedSpecifiersForSpecifiers:@[ specifier ]];
    EXPECT_TRUE([[[specifier titleDictionary] objectForKey:@1] isEqual:@200]);
    EXPECT_EQ(text([[specifier titleDictionary] objectForKey:@2]), "Keine");
}

TEST_F(GermanPages, MarkedTitlesOfChoicesAreKeptThoughTheNameIsTranslated) {
    PSSpecifier *specifier = named(@"Cancel");
    [specifier setProperty:@0 forKey:@"valueLocalized"];
    [specifier setValues:@[ @"" ] titles:@[ @"None" ]];
    [newPage() localizedSpecifiersForSpecifiers:@[ specifier ]];
    EXPECT_EQ(text([specifier name]), "Abbrechen");
    EXPECT_EQ(text([[specifier titleDictionary] objectForKey:@""]), "None");
}

TEST_F(GermanPages, OnlyNamesAndTitlesAreTranslated) {
    PSSpecifier *specifier = named(@"Choice");
    [specifier setProperty:@"Cancel" forKey:@"footerText"];
    [specifier setValues:@[ @"Cancel" ] titles:@[ @"Cancel" ] shortTitles:@[ @"Cancel" ]];
    [newPage() localizedSpecifiersForSpecifiers:@[ specifier ]];
    EXPECT_EQ(text([specifier propertyForKey:@"footerText"]), "Cancel");
    EXPECT_EQ(text([[specifier shortTitleDictionary] objectForKey:@"Cancel"]), "Cancel");
    EXPECT_EQ(text([[specifier values] objectAtIndex:0]), "Cancel");
}

TEST_F(GermanPages, TheArrayGivenIsTheArrayReturned) {
    NSArray *empty = [NSArray array];
    EXPECT_EQ([newPage() localizedSpecifiersForSpecifiers:empty], empty);
    NSArray *one = @[ named(@"Cancel") ];
    EXPECT_EQ([newPage() localizedSpecifiersForSpecifiers:one], one);
}

TEST_F(GermanPages, TitlesThatTheTableKnowsAreTranslated) {
    ZVSettingsViewController *page = newPage();
    [page setTitle:@"Edit Number"];
    EXPECT_EQ(text([page title]), "Nummer");
    [page setTitle:@"Gibberish"];
    EXPECT_EQ(text([page title]), "Gibberish");
}

TEST_F(GermanPages, ThePageIsTitledWithTheTranslatedNameOfItsRow) {
    ZVSettingsViewController *page = newPage();
    [page setSpecifier:named(@"Edit Number")];
    EXPECT_EQ(text([[page navigationItem] title]), "Nummer");
}

TEST_F(GermanPages, APageWithoutATitleStaysWithoutOne) {
    ZVSettingsViewController *page = newPage();
    [page setTitle:nil];
    EXPECT_EQ(text([page title]), "");
    [page setTitle:@""];
    EXPECT_EQ(text([page title]), "");
}

TEST_F(GermanPages, ARowWithoutANameTakesTheTitleFromTheBar) {
    for (PSSpecifier *nameless : {named(nil), static_cast<PSSpecifier *>(nil)}) {
        ZVSettingsViewController *page = newPage();
        [page setTitle:@"Gibberish"];
        [page setSpecifier:nameless];
        EXPECT_EQ([page specifier], nameless);
        EXPECT_EQ(text([[page navigationItem] title]), "");
    }
}

TEST_F(GermanPages, NothingToTranslateIsNothing) {
    EXPECT_EQ([newPage() localizedSpecifiersForSpecifiers:nil], nil);
}

TEST_F(GermanPages, SpecifiersAreTranslatedAtEveryCall) {
    open();
    PSSpecifier *row = [[rootPage() specifiers] objectAtIndex:1];
    [row setName:@"Cancel"];
    EXPECT_EQ([[rootPage() specifiers] objectAtIndex:1], row);
    EXPECT_EQ(text([row name]), "Abbrechen");
    (void)[rootPage() specifiers];
    EXPECT_EQ(text([row name]), "Abbrechen");
}

TEST_F(GermanPages, SpecifiersOfAChildPageAreTranslatedAtEveryCall) {
    ZVSettingsViewController *page = newPage();
    PSSpecifier *opener = named(@"Ziffernblatt");
    [opener setProperty:@"Keypad" forKey:@"id"];
    [page setSpecifier:opener];
    PSSpecifier *row = [[page specifiers] objectAtIndex:1];
    EXPECT_EQ(text([row name]), "Beim Wählen suchen");
    [row setName:@"Cancel"];
    EXPECT_EQ([[page specifiers] objectAtIndex:1], row);
    EXPECT_EQ(text([row name]), "Abbrechen");
}

TEST_F(GermanPages, TheRootPageSpeaksGerman) {
    open();
    EXPECT_TRUE(person.sees("Whitelist"));
}

int reloads = 0;
void (*reloadSpecifiers)(id, SEL);

void countReload(id page, SEL selector) {
    ++reloads;
    reloadSpecifiers(page, selector);
}

class PageReloads : public support::BundleTest {
protected:
    PageReloads() {
        if (!reloadSpecifiers)
            reloadSpecifiers = reinterpret_cast<void (*)(id, SEL)>(
                host::replaceMethod([PSListController class], @selector(reloadSpecifiers), IMP(countReload)));
        reloads = 0;
    }
};

TEST_F(PageReloads, ShowingAPageForTheFirstTimeReloadsNothing) {
    open();
    EXPECT_EQ(reloads, 0);
    person.tap("Keypad");
    EXPECT_EQ(reloads, 0);
}

TEST_F(PageReloads, LeavingAChildPageTwiceReloadsItsParentTwice) {
    open();
    person.tap("Keypad");
    person.back();
    EXPECT_EQ(reloads, 1);
    person.tap("Keypad");
    person.back();
    EXPECT_EQ(reloads, 2);
}

TEST_F(PageReloads, APageReloadsOnceItHasAppearedAndNotBefore) {
    ZVSettingsViewController *page = [[[classNamed("ZVSettingsViewController") alloc] init] autorelease];
    [page viewDidAppear:NO];
    EXPECT_EQ(reloads, 0);
    [page viewWillDisappear:NO];
    [page viewWillDisappear:NO];
    [page viewWillAppear:NO];
    EXPECT_EQ(reloads, 0);
    [page viewDidAppear:NO];
    EXPECT_EQ(reloads, 1);
    [page viewDidAppear:NO];
    EXPECT_EQ(reloads, 1);
}

std::vector<std::string> superclassSaw; // what was done already when the superclass had its turn

void watchDisappearance(id, SEL, BOOL) {
    superclassSaw.push_back(support::settingsMirror() ? "disappearing: loaded" : "disappearing: not loaded");
}

void watchAppearance(id, SEL, BOOL) {
    superclassSaw.push_back("appeared: " + std::to_string(reloads) + " reloads");
}

TEST_F(PageReloads, TheSuperclassHasItsTurnFirst) {
    ZVSettingsViewController *page = [[[classNamed("ZVSettingsViewController") alloc] init] autorelease];
    host::replaceMethod([UIViewController class], @selector(viewWillDisappear:), IMP(watchDisappearance));
    host::replaceMethod([UIViewController class], @selector(viewDidAppear:), IMP(watchAppearance));
    [page viewWillDisappear:NO];
    [page viewDidAppear:NO];
    [page viewDidAppear:NO];
    EXPECT_THAT(superclassSaw,
                ElementsAre("disappearing: not loaded", "appeared: 0 reloads", "appeared: 1 reloads"));
}

TEST_F(PageReloads, ASheetReloadsNothing) {
    open();
    tapRightButton();
    person.answer("Cancel");
    EXPECT_EQ(reloads, 0);
}

TEST_F(PageReloads, AGivenUpBackSwipeReloadsThePageItWasGivenUpOn) {
    open();
    person.tap("Keypad");
    person.giveUpBackSwipe();
    EXPECT_EQ(person.title(), "Keypad");
    EXPECT_EQ(reloads, 1);
}

TEST_F(PageReloads, StoredValuesAreShownWhenAPageComesBack) {
    device.write("/var/mobile/Library/Preferences/zelvora.plist",
                 support::propertyList({{"ConnectedVibrateTotalDuration", "unknown"}}));
    open();
    EXPECT_EQ(person.valueOf("Duration"), "0.5 seconds");
    person.tap("Keypad");
    person.back();
    EXPECT_EQ(person.valueOf("Duration"), "");
}

TEST_F(PageReloads, AValueChosenOnAChildPageIsShownByItsParent) {
    open();
    person.tap("Keypad");
    person.tap("Key Tones");
    person.tap("Piano");
    person.back();
    EXPECT_EQ(person.valueOf("Key Tones"), "Piano");
}

} // namespace
