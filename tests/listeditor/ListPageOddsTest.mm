// Calls that no person can cause: without a root page, with places that the list does not have, with ids that
// are no text. None of them may harm the list.
#import "ListPageTest.h"

#import "listeditor/ZVSettingsCustomViewController.h"
#import "pickers/ZVSettingsEditNumberViewController.h"

#import <Preferences/PSSpecifier.h>

using support::propertyList;
using support::text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

namespace {

class ListPageOdds : public ListPageTest {
protected:
    ListPageOdds() { device.write(userFile("black"), propertyList({{"1", "One"}})); }

    ZVSettingsCustomViewController *newPage(id listId) {
        PSSpecifier *link = [PSSpecifier emptyGroupSpecifier];
        [link setProperty:listId forKey:@"_custom"];
        ZVSettingsCustomViewController *page =
            [[[classNamed("ZVSettingsCustomViewController") alloc] init] autorelease];
        [page setSpecifier:link];
        return page;
    }

    static UITableView *tableOf(ZVSettingsCustomViewController *page) { return (UITableView *)[page view]; }
    static NSIndexPath *path(NSInteger section, NSInteger row) {
        return [NSIndexPath indexPathForRow:row inSection:section];
    }

    /// An editor on which Save was pressed with this number.
    static ZVSettingsEditNumberViewController *savedEditor(NSDictionary *info, id number) {
        ZVSettingsEditNumberViewController *editor =
            [[[classNamed("ZVSettingsEditNumberViewController") alloc] initWithEditInfos:info] autorelease];
        [editor saveButtonPressed:nil];
        [[editor texts] setObject:number forKey:@"number"];
        return editor;
    }
};

TEST_F(ListPageOdds, WithoutARootPageThereAreNoTextsButTheListWorks) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    EXPECT_EQ([page bundle], nil);
    UITableViewCell *action = [page tableView:tableOf(page) cellForRowAtIndexPath:path(actions, 0)];
    EXPECT_EQ(text([[action textLabel] text]), "");
    for (NSInteger row = 0; row < 3; ++row)
        [page tableView:tableOf(page) didSelectRowAtIndexPath:path(actions, row)];
    [page tableView:tableOf(page) didSelectRowAtIndexPath:path(entries, 0)];
    [page editButtonPressed:nil];
    [page settingsEditNumberViewControllerSaved:savedEditor(@{@"New" : [NSNull null]}, @"2")];
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One"), Pair("2", "")));
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
}

TEST_F(ListPageOdds, WithoutARootPageTheExclusionListAnnouncesNothing) {
    ZVSettingsCustomViewController *page = newPage(@"exclude");
    [page settingsChanged];
    host::advance(10);
    EXPECT_THAT(notifications(), IsEmpty());
}

TEST_F(ListPageOdds, AListIdThatIsNoTextIsAnUnknownOne) {
    for (id listId in @[ @5, [NSNull null], @[ @"black" ], [@"\U0001F600" substringToIndex:1] ]) {
        ZVSettingsCustomViewController *page = newPage(listId);
        EXPECT_EQ([[page valueForKey:@"customId"] intValue], 0);
        EXPECT_EQ([page valueForKey:@"saveplist"], nil);
        EXPECT_EQ([page valueForKey:@"defaultplist"], nil);
        EXPECT_EQ([[page getPlistDictionary] count], 0U);
    }
}

TEST_F(ListPageOdds, APageThatIsToldNoSpecifierHasNoList) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    [page setSpecifier:nil];
    EXPECT_EQ([page tableView:nil numberOfRowsInSection:entries], 1) << "the first specifier chose the list";
    page = [[[classNamed("ZVSettingsCustomViewController") alloc] init] autorelease];
    [page settingsEditNumberViewControllerSaved:savedEditor(@{@"New" : [NSNull null]}, @"2")];
    [page reloadPlistDictionary:@{@"1" : @"One"}];
    EXPECT_EQ([page tableView:nil numberOfRowsInSection:entries], 0);
}

TEST_F(ListPageOdds, ATableThatOutlivesItsPageAsksNobody) {
    UITableView *table = nil;
    @autoreleasepool {
        table = [tableOf(newPage(@"black")) retain];
        [table reloadData];
    }
    EXPECT_EQ([table dataSource], nil);
    EXPECT_EQ([table delegate], nil);
    [table reloadData];
    EXPECT_EQ([table numberOfSections], 0);
    [table release];
}

TEST_F(ListPageOdds, AnEntryThatTheListDoesNotHaveCannotBeDeleted) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    for (NSInteger row : {NSInteger(1), NSInteger(-1), NSIntegerMax})
        [page tableView:tableOf(page)
            commitEditingStyle:UITableViewCellEditingStyleDelete
             forRowAtIndexPath:path(entries, row)];
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One")));
    EXPECT_THAT(notifications(), IsEmpty());
}

TEST_F(ListPageOdds, AnEntryThatTheListDoesNotHaveHasAnEmptyCell) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    UITableViewCell *cell = [page tableView:tableOf(page) cellForRowAtIndexPath:path(entries, 7)];
    ASSERT_NE(cell, nil);
    EXPECT_EQ(text([[cell textLabel] text]) + text([[cell detailTextLabel] text]), "");
    [page tableView:tableOf(page) didSelectRowAtIndexPath:path(entries, 7)];
    EXPECT_EQ([[page valueForKey:@"selectedRow"] unsignedLongLongValue], 7U);
}

TEST_F(ListPageOdds, AnEntryThatIsGoneWhenItsEditorSavesIsStoredAllTheSame) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    [page tableView:tableOf(page) didSelectRowAtIndexPath:path(entries, 0)];
    [page settingsSelectContactsViewControllerRemove:@{@"number" : @"1"}];
    [page settingsEditNumberViewControllerSaved:savedEditor(@{@"number" : @"1"}, @"2")];
    EXPECT_THAT(document(), ElementsAre(Pair("2", "")));
    EXPECT_EQ([page tableView:nil numberOfRowsInSection:entries], 0);
    EXPECT_THAT(notifications(), ElementsAre("ZVBlacklistChanged"));
}

TEST_F(ListPageOdds, ANumberThatIsNoTextIsNoNumber) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    for (id number in @[ @5, [NSNull null], @[], @{} ]) {
        [page settingsSelectContactsViewControllerAdd:@{@"number" : number}];
        [page settingsSelectContactsViewControllerRemove:@{@"number" : number}];
        [page settingsEditNumberViewControllerSaved:savedEditor(@{@"New" : [NSNull null]}, number)];
    }
    EXPECT_THAT(notifications(), IsEmpty());
    [page settingsSelectContactsViewControllerAdd:@{@"number" : @"2", @"name" : [NSNull null]}];
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One"), Pair("2", "")));
}

TEST_F(ListPageOdds, NothingComesOfNothing) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    [page settingsSelectContactsViewControllerAdd:nil];
    [page settingsSelectContactsViewControllerRemove:nil];
    [page settingsEditNumberViewControllerSaved:nil];
    EXPECT_THAT(document(), ElementsAre(Pair("1", "One")));
    EXPECT_THAT(notifications(), IsEmpty());
    [page reloadPlistDictionary:nil];
    EXPECT_EQ([page tableView:nil numberOfRowsInSection:entries], 0);
}

} // namespace
