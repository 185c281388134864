// The rows of a list page and what is done to them by hand.
#import "ListPageTest.h"

#import "listeditor/ZVSettingsCustomViewController.h"

#import <Preferences/PSSpecifier.h>

#include "support/Ownership.h"

using support::propertyList;
using support::text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

using Row = support::Row;

class ListPages : public ListPageTest {
protected:
    /// A page of a list that no row of the root page opens.
    ZVSettingsCustomViewController *newPage(NSString *listId, NSString *name = @"Name") {
        PSSpecifier *link = [PSSpecifier emptyGroupSpecifier];
        [link setName:name];
        [link setProperty:listId forKey:@"_custom"];
        ZVSettingsCustomViewController *page =
            [[[classNamed("ZVSettingsCustomViewController") alloc] init] autorelease];
        [page setSpecifier:link];
        return page;
    }
};

TEST_F(ListPages, TheBlacklistOffersThreeWaysToAddNumbers) {
    openBlacklist({});
    EXPECT_EQ(person.title(), "Blacklist");
    EXPECT_THAT(texts(actions), ElementsAre("Add Number", "Select Contacts", "Select Call History"));
    EXPECT_THAT(texts(entries), IsEmpty());
}

TEST_F(ListPages, TheWhitelistAndTheExclusionListOfferThemToo) {
    openList("Whitelist");
    EXPECT_THAT(texts(actions), ElementsAre("Add Number", "Select Contacts", "Select Call History"));
    person.back();
    person.tap("Exclusion List");
    EXPECT_THAT(texts(actions), ElementsAre("Add Number", "Select Contacts", "Select Call History"));
}

TEST_F(ListPages, ThePriorityListOffersNoPickers) {
    openList("Priority List");
    EXPECT_THAT(texts(actions), ElementsAre("Add Number"));
}

TEST_F(ListPages, TheAreaListOffersToAddAnArea) {
    openList("Area Prefixes");
    EXPECT_THAT(texts(actions), ElementsAre("Add Area"));
}

TEST_F(ListPages, TheCodeTableOffersToAddACode) {
    openList("Keypad Codes");
    EXPECT_THAT(texts(actions), ElementsAre("Add Code Table"));
}

TEST_F(ListPages, EntriesAreSortedByTheirNumbersAsTexts) {
    openBlacklist({{"9", "Nine"}, {"120", "Ambulance"}, {"10086", "Hotline"}});
    EXPECT_THAT(rows(entries),
                ElementsAre(Row{"Hotline", "10086"}, Row{"Ambulance", "120"}, Row{"Nine", "9"}));
}

TEST_F(ListPages, AnEntryWithoutANameShowsItsNumberAlone) {
    openBlacklist({{"1", ""}, {"2", " "}, {"3", "  "}});
    EXPECT_THAT(rows(entries), ElementsAre(Row{"1", ""}, Row{"2", ""}, Row{"  ", "3"}));
}

TEST_F(ListPages, EntriesAreHigherThanActions) {
    openBlacklist({{"1", "One"}});
    EXPECT_EQ(person.row("Add Number").rect.height, 44);
    EXPECT_EQ(person.row("One").rect.height, 50);
    EXPECT_EQ(person.row("One").text("style"), "subtitle");
    EXPECT_EQ(person.row("One").text("accessory"), "disclosure");
    EXPECT_EQ(person.row("Add Number").text("style"), "default");
    EXPECT_EQ(person.row("Add Number").text("accessory"), "disclosure");
}

TEST_F(ListPages, ACorruptDocumentShowsAnEmptyListThoughThereIsADefaultCopy) {
    device.write(defaultFile("black"), propertyList({{"1", "One"}}));
    device.write(userFile("black"), "garbage <<<");
    openList("Blacklist");
    EXPECT_THAT(texts(entries), IsEmpty());
}

TEST_F(ListPages, ADamagedDocumentWithoutNamesShowsItsNumbers) {
    device.write(userFile("black"),
                 "<plist version=\"1.0\"><dict><key>1</key><integer>2</integer></dict></plist>");
    openList("Blacklist");
    EXPECT_THAT(rows(entries), ElementsAre(Row{"1", ""}));
    person.tap("1");
    EXPECT_EQ(person.field("Name").value, "");
}

TEST_F(ListPages, DeletingADefaultEntryMakesAUserDocumentOfTheOthers) {
    device.write(defaultFile("black"), propertyList({{"3", "Three"}, {"1", "One"}, {"2", "Two"}}));
    const std::string copy = device.read(defaultFile("black"));
    openList("Blacklist");
    EXPECT_THAT(texts(entries), ElementsAre("One", "Two", "Three"));
    person.swipe("Two");
    person.confirmDelete();
    EXPECT_THAT(texts(entries), ElementsAre("One", "Three"));
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One"), Pair("3", "Three")));
    EXPECT_EQ(device.read(defaultFile("black")), copy);
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
}

TEST_F(ListPages, DeletingTheLastEntryLeavesAnEmptyDocument) {
    device.write(defaultFile("black"), propertyList({{"1", "One"}}));
    openList("Blacklist");
    person.swipe("One");
    person.confirmDelete();
    EXPECT_THAT(document(), IsEmpty());
    person.back();
    person.tap("Blacklist");
    EXPECT_THAT(texts(entries), IsEmpty());
}

TEST_F(ListPages, ActionsCannotBeSwipedAway) {
    openBlacklist({{"1", "One"}});
    EXPECT_FALSE(person.row("Add Number").flag("swipeable"));
    EXPECT_TRUE(person.row("One").flag("swipeable"));
}

TEST_F(ListPages, ActionsAreNamedByListAndRow) {
    open();
    const std::pair<NSString *, const char *> firstRows[] = {{@"area", "Add Area"},
                                                             {@"t9", "Add Code Table"},
                                                             {@"black", "Add Number"},
                                                             {@"white", "Add Number"},
                                                             {@"exclude", "Add Number"},
                                                             {@"priority", "Add Number"},
                                                             {@"calltime", "0 hours 0 minutes"},
                                                             {@"gray", ""}};
    for (const auto &[listId, first] : firstRows) {
        ZVSettingsCustomViewController *page = newPage(listId);
        std::vector<std::string> shown;
        for (NSInteger row = 0; row < 4; ++row) {
            NSIndexPath *path = [NSIndexPath indexPathForRow:row inSection:actions];
            UITableViewCell *cell = [page tableView:(UITableView *)[page view] cellForRowAtIndexPath:path];
            EXPECT_EQ(text([cell reuseIdentifier]), "NameCell");
            shown.push_back(text([[cell textLabel] text]));
        }
        EXPECT_THAT(shown, ElementsAre(first, "Select Contacts", "Select Call History", "")) << text(listId);
    }
}

TEST_F(ListPages, EntriesHaveTheirNumbersInGray) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    [page reloadPlistDictionary:@{@"1" : @"One"}];
    UITableViewCell *cell = [page tableView:(UITableView *)[page view]
                      cellForRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:entries]];
    EXPECT_EQ(text([cell reuseIdentifier]), "ListCell");
    EXPECT_TRUE([[[cell detailTextLabel] textColor] isEqual:[UIColor grayColor]]);
}

TEST_F(ListPages, OnlyEntriesCanBeEdited) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    for (NSInteger section : {0, 1, 2}) {
        NSIndexPath *path = [NSIndexPath indexPathForRow:0 inSection:section];
        EXPECT_EQ([page tableView:nil canEditRowAtIndexPath:path], section == entries);
        EXPECT_EQ([page tableView:nil editingStyleForRowAtIndexPath:path],
                  section == entries ? UITableViewCellEditingStyleDelete : UITableViewCellEditingStyleNone);
        EXPECT_EQ([page tableView:nil heightForRowAtIndexPath:path], section == entries ? 50 : 44);
    }
}

TEST_F(ListPages, OtherCommitsThanDeletingAnEntryAreIgnored) {
    device.write(userFile("black"), propertyList({{"1", "One"}}));
    ZVSettingsCustomViewController *page = newPage(@"black");
    UITableView *table = (UITableView *)[page view];
    [page tableView:table
        commitEditingStyle:UITableViewCellEditingStyleInsert
         forRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:entries]];
    [page tableView:table
        commitEditingStyle:UITableViewCellEditingStyleDelete
         forRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:actions]];
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One")));
    EXPECT_THAT(notifications(), IsEmpty());
}

TEST_F(ListPages, SectionsOtherThanTheTwoHaveNoRowsAndNoCells) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    UITableView *table = (UITableView *)[page view];
    EXPECT_EQ([page numberOfSectionsInTableView:table], 2);
    EXPECT_EQ([page tableView:table numberOfRowsInSection:2], 0);
    EXPECT_EQ([page tableView:table cellForRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:2]], nil);
}

TEST_F(ListPages, EditTurnsIntoAPlainDoneAndBackIntoAnEmphasisedEdit) {
    openBlacklist({{"1", "One"}});
    EXPECT_THAT(person.buttons(), testing::Contains("Edit"));
    UINavigationItem *item = [[[rootPage() navigationController] topViewController] navigationItem];
    EXPECT_EQ([[item rightBarButtonItem] style], UIBarButtonItemStylePlain);
    person.tap("Edit");
    EXPECT_EQ(text([[item rightBarButtonItem] title]), "Done");
    EXPECT_EQ([[item rightBarButtonItem] style], UIBarButtonItemStylePlain);
    EXPECT_EQ(person.row("One").text("editing"), "delete");
    EXPECT_EQ(person.row("Add Number").text("editing"), "none");
    person.tap("Done");
    EXPECT_EQ(text([[item rightBarButtonItem] title]), "Edit");
    EXPECT_EQ([[item rightBarButtonItem] style], UIBarButtonItemStyleDone);
    EXPECT_EQ(person.row("One").text("editing"), "none");
}

TEST_F(ListPages, RowsCannotBeOpenedWhileEditing) {
    openBlacklist({{"1", "One"}});
    person.tap("Edit");
    EXPECT_FALSE(person.row("One").flag("selectable"));
    EXPECT_EQ(person.tryTap("One"), host::Outcome::disabled);
    EXPECT_EQ(person.tryTap("Add Number"), host::Outcome::disabled);
    EXPECT_EQ(person.title(), "Blacklist");
}

TEST_F(ListPages, EntriesAreDeletedInEditingMode) {
    openBlacklist({{"1", "One"}, {"2", "Two"}});
    person.tap("Edit");
    person.tapMinus("One");
    person.confirmDelete();
    EXPECT_THAT(document(), ElementsAre(Pair("2", "Two")));
    EXPECT_THAT(texts(entries), ElementsAre("Two"));
}

TEST_F(ListPages, TheEditButtonIsMadeOncePerPage) {
    openBlacklist({});
    UINavigationItem *item = [[[rootPage() navigationController] topViewController] navigationItem];
    UIBarButtonItem *edit = [item rightBarButtonItem];
    person.tap("Add Number");
    person.tap("Cancel");
    EXPECT_EQ([item rightBarButtonItem], edit);
}

TEST_F(ListPages, ALaterSpecifierChangesTheTitleButNotTheList) {
    device.write(userFile("black"), propertyList({{"1", "One"}}));
    device.write(userFile("white"), propertyList({{"2", "Two"}, {"3", "Three"}}));
    ZVSettingsCustomViewController *page = newPage(@"black", @"First");
    PSSpecifier *other = [PSSpecifier emptyGroupSpecifier];
    [other setName:@"Second"];
    [other setProperty:@"white" forKey:@"_custom"];
    [page setSpecifier:other];
    EXPECT_EQ(text([page title]), "Second");
    EXPECT_EQ([page tableView:(UITableView *)[page view] numberOfRowsInSection:entries], 1);
    page = newPage(@"area");
    [page setSpecifier:other];
    EXPECT_EQ([page tableView:(UITableView *)[page view] numberOfRowsInSection:entries], 0);
}

TEST_F(ListPages, TellTheirBaseOfSpecifiersAndAppearances) {
    static int appearances = 0;
    const SEL appear = @selector(viewWillAppear:);
    Class base = class_getSuperclass(classNamed("ZVSettingsCustomViewController"));
    class_replaceMethod(base, appear, reinterpret_cast<IMP>(+[](id, SEL, BOOL) { ++appearances; }),
                        method_getTypeEncoding(class_getInstanceMethod(base, appear)));
    ZVSettingsCustomViewController *page = newPage(@"black");
    EXPECT_EQ([[[page specifier] propertyForKey:@"_custom"] isEqual:@"black"], YES);
    [page viewWillAppear:NO];
    EXPECT_EQ(appearances, 1);
}

TEST_F(ListPages, GiveBackWhatTheyOwn) {
    support::expectGivesBack({"_tableView", "_list", "_saveplist", "_defaultplist"},
                             [this] { return newPage(@"black"); });
}

TEST_F(ListPages, TheTableIsThePagesViewBelowTheBars) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    ASSERT_TRUE([[page view] isKindOfClass:[UITableView class]]);
    UITableView *table = (UITableView *)[page view];
    EXPECT_EQ([table contentInset].top, 64);
    EXPECT_EQ([table contentInset].left + [table contentInset].bottom + [table contentInset].right, 0);
    EXPECT_EQ([table dataSource], page);
    EXPECT_EQ([table delegate], page);
    EXPECT_EQ([table style], UITableViewStyleGrouped);
}

TEST_F(ListPages, WithAnUnknownListShowOneActionWithoutText) {
    open();
    for (NSString *listId in @[ @"gray", @"Black" ]) {
        ZVSettingsCustomViewController *page = newPage(listId);
        [[rootPage() navigationController] pushViewController:page animated:NO];
        host::waitUntilIdle();
        EXPECT_THAT(rows(actions), ElementsAre(Row{"", ""}));
        EXPECT_THAT(texts(entries), IsEmpty());
        person.back();
    }
}

TEST_F(ListPages, WithoutAListIdBehaveAsWithAnUnknownOne) {
    ZVSettingsCustomViewController *page = newPage(nil);
    EXPECT_EQ([page numberOfSectionsInTableView:nil], 2);
    EXPECT_EQ([page tableView:nil numberOfRowsInSection:actions], 1);
    EXPECT_EQ([[page getPlistDictionary] count], 0U);
}

TEST_F(ListPages, SavingOnAPageOfAnUnknownListOnlyAddsARow) {
    open();
    const auto files = device.list("/var/mobile/Library/Preferences");
    [[rootPage() navigationController] pushViewController:newPage(@"gray") animated:NO];
    host::waitUntilIdle();
    tapRow(actions, 0);
    EXPECT_EQ(person.title(), "");
    const host::Element screen = host::screen();
    const auto fields = screen.all("TextField");
    ASSERT_EQ(fields.size(), 2U);
    EXPECT_EQ(fields[0]->text("placeholder"), "");
    EXPECT_EQ(fields[1]->text("placeholder"), "");
    EXPECT_EQ(fields[1]->amount("keyboard"), 4);
    (void)host::perform({.kind = host::GestureKind::type, .number = fields[1]->number, .text = "123"});
    person.tap("Save");
    EXPECT_THAT(rows(entries), ElementsAre(Row{"123", ""}));
    EXPECT_EQ(device.list("/var/mobile/Library/Preferences"), files);
    host::advance(3);
    EXPECT_THAT(notifications(), ElementsAre("ZVSettingsChanged"));
}

TEST_F(ListPages, TenThousandEntriesNeedFewCells) {
    Entries many;
    for (int number = 10000; number < 20000; ++number)
        many[std::to_string(number)] = "Name " + std::to_string(number);
    openBlacklist(many);
    EXPECT_EQ(rows(entries).front(), (Row{"Name 10000", "10000"}));
    EXPECT_LT(rows(entries).size(), 100U);
    person.scrollTo(10000 * 50.0);
    EXPECT_EQ(rows(entries).back(), (Row{"Name 19999", "19999"}));
}

} // namespace
