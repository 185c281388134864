// What a list page asks of its table and of its navigation controller, call by call.
#import "ListPageTest.h"

#import "listeditor/ZVSettingsCustomViewController.h"
#import "pickers/ZVSettingsEditNumberViewController.h"

#import <objc/runtime.h>
#import <Preferences/PSSpecifier.h>

using support::propertyList;
using support::text;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::string> said; // by the two classes below
UITableViewCell *reusable;     // what the table has to reuse, whatever is asked for

std::string place(NSIndexPath *path) {
    return std::to_string([path section]) + "." + std::to_string([path row]);
}

void say(const std::string &what, NSArray *paths, UITableViewRowAnimation animation) {
    EXPECT_EQ([paths count], 1U);
    said.push_back(what + " " + place([paths objectAtIndex:0]) + " animation " + std::to_string(animation));
}

} // namespace

/// A table that writes down how it is changed.
@interface TalkingTable : UITableView
@end

@implementation TalkingTable
- (void)insertRowsAtIndexPaths:(NSArray *)paths withRowAnimation:(UITableViewRowAnimation)animation {
    say("insert", paths, animation);
    [super insertRowsAtIndexPaths:paths withRowAnimation:animation];
}
- (void)deleteRowsAtIndexPaths:(NSArray *)paths withRowAnimation:(UITableViewRowAnimation)animation {
    say("delete", paths, animation);
    [super deleteRowsAtIndexPaths:paths withRowAnimation:animation];
}
- (void)reloadRowsAtIndexPaths:(NSArray *)paths withRowAnimation:(UITableViewRowAnimation)animation {
    say("reload", paths, animation);
    [super reloadRowsAtIndexPaths:paths withRowAnimation:animation];
}
- (void)deselectRowAtIndexPath:(NSIndexPath *)path animated:(BOOL)animated {
    said.push_back("deselect " + place(path) + (animated ? " animated" : ""));
    [super deselectRowAtIndexPath:path animated:animated];
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
    said.push_back(std::string(editing ? "edit" : "end editing") + (animated ? " animated" : ""));
    [super setEditing:editing animated:animated];
}
- (id)dequeueReusableCellWithIdentifier:(NSString *)identifier {
    said.push_back("reuse " + text(identifier));
    return reusable;
}
- (void)reloadData {
    said.emplace_back("reload all");
    [super reloadData];
}
@end

/// A navigation controller that keeps what is presented from it instead of showing it.
@interface KeepingStack : UINavigationController {
@public
    UIViewController *presented;
}
@end

@implementation KeepingStack
- (void)presentViewController:(UIViewController *)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion {
    said.push_back(std::string("present") + (animated ? " animated" : "") + (completion ? " and then" : ""));
    [presented release];
    presented = [controller retain];
}
- (void)dealloc {
    [presented release];
    [super dealloc];
}
@end

namespace {

class ListPageCalls : public ListPageTest {
protected:
    ListPageCalls() {
        said.clear();
        reusable = nil;
    }

    /// A page of its own, whose table and navigation controller write down what is asked of them.
    ZVSettingsCustomViewController *newPage(NSString *listId, const Entries &content = {}) {
        if (rootPage() == nil)
            open();
        device.write(userFile(text(listId)), propertyList(content));
        PSSpecifier *link = [PSSpecifier emptyGroupSpecifier];
        [link setName:@"Name"];
        [link setProperty:listId forKey:@"_custom"];
        ZVSettingsCustomViewController *page =
            [[[classNamed("ZVSettingsCustomViewController") alloc] init] autorelease];
        [page setSpecifier:link];
        object_setClass([page view], [TalkingTable class]);
        stack = [[[KeepingStack alloc] initWithRootViewController:page] autorelease];
        host::forgetEvents();
        said.clear();
        return page;
    }

    static UITableView *tableOf(ZVSettingsCustomViewController *page) { return (UITableView *)[page view]; }

    void tap(ZVSettingsCustomViewController *page, NSInteger section, NSInteger row) {
        [page tableView:tableOf(page)
            didSelectRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:section]];
    }

    /// What was presented last, without its navigation controller.
    [[nodiscard]] UIViewController *presented() const {
        EXPECT_EQ([stack->presented class], [UINavigationController class]);
        return [(UINavigationController *)stack->presented topViewController];
    }
    [[nodiscard]] std::string presentedClass() const { return text(NSStringFromClass([presented() class])); }

    /// An editor with these texts, told of this entry; it is not on the screen.
    static ZVSettingsEditNumberViewController *editor(NSDictionary *info, NSString *name, NSString *number) {
        ZVSettingsEditNumberViewController *editor =
            [[[classNamed("ZVSettingsEditNumberViewController") alloc] initWithEditInfos:info] autorelease];
        [editor saveButtonPressed:nil];
        if (name)
            [[editor texts] setObject:name forKey:@"name"];
        if (number)
            [[editor texts] setObject:number forKey:@"number"];
        return editor;
    }

    KeepingStack *stack = nil;
};

TEST_F(ListPageCalls, ANewEntryIsInsertedAtTheTop) {
    ZVSettingsCustomViewController *page = newPage(@"black", {{"1", "One"}});
    [page settingsEditNumberViewControllerSaved:editor(@{@"New" : [NSNull null]}, @"Two", @"2")];
    EXPECT_THAT(said, ElementsAre("insert 1.0 animation 100"));
}

TEST_F(ListPageCalls, AnEditedEntryIsReloadedWhereItWasTapped) {
    ZVSettingsCustomViewController *page = newPage(@"black", {{"1", "One"}, {"2", "Two"}});
    tap(page, entries, 1);
    said.clear();
    [page settingsEditNumberViewControllerSaved:editor(@{@"number" : @"2"}, @"Three", @"3")];
    EXPECT_THAT(said, ElementsAre("reload 1.1 animation 100"));
}

TEST_F(ListPageCalls, ADeletedEntryIsTakenOutOfTheTable) {
    ZVSettingsCustomViewController *page = newPage(@"black", {{"1", "One"}, {"2", "Two"}});
    [page tableView:tableOf(page)
        commitEditingStyle:UITableViewCellEditingStyleDelete
         forRowAtIndexPath:[NSIndexPath indexPathForRow:1 inSection:entries]];
    EXPECT_THAT(said, ElementsAre("delete 1.1 animation 100"));
}

TEST_F(ListPageCalls, ASavedCallTimeIsReloaded) {
    ZVSettingsCustomViewController *page = newPage(@"calltime");
    [page settingsEditNumberViewControllerSaved:editor(@{}, nil, @"5")];
    EXPECT_THAT(said, ElementsAre("reload 0.0 animation 100"));
}

TEST_F(ListPageCalls, TogglesInAPickerDoNotTouchTheTableUntilItIsDone) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    [page settingsSelectContactsViewControllerAdd:@{@"number" : @"1"}];
    [page settingsSelectContactsViewControllerRemove:@{@"number" : @"1"}];
    EXPECT_THAT(said, IsEmpty());
    [page settingsSelectContactsViewControllerDone:nil];
    EXPECT_THAT(said, ElementsAre("reload all"));
}

TEST_F(ListPageCalls, AReusedCellHasItsTextsSetAndKeepsTheRest) {
    ZVSettingsCustomViewController *page = newPage(@"black", {{"1", "One"}, {"2", ""}});
    const auto show = [page](NSInteger section, NSInteger row) {
        UITableViewCell *cell = [page tableView:tableOf(page)
                          cellForRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:section]];
        EXPECT_EQ(cell, reusable);
        EXPECT_EQ([cell accessoryType], UITableViewCellAccessoryNone);
        EXPECT_TRUE([[[cell detailTextLabel] textColor] isEqual:[UIColor redColor]]);
        return text([[cell textLabel] text]) + " / " + text([[cell detailTextLabel] text]);
    };
    reusable = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleSubtitle
                                       reuseIdentifier:@"any"] autorelease];
    [[reusable detailTextLabel] setTextColor:[UIColor redColor]];
    EXPECT_EQ(show(entries, 0), "One / 1");
    EXPECT_EQ(show(entries, 1), "2 / ");
    EXPECT_EQ([[reusable detailTextLabel] text], nil);
    EXPECT_EQ(show(actions, 1), "Select Contacts / ");
    EXPECT_EQ(show(actions, 7), " / ");
    EXPECT_THAT(said, ElementsAre("reuse ListCell", "reuse ListCell", "reuse NameCell", "reuse NameCell"));
}

TEST_F(ListPageCalls, TheEditButtonIsFollowedWithMotion) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    [page editButtonPressed:nil];
    [page editButtonPressed:nil];
    EXPECT_THAT(said, ElementsAre("edit animated", "end editing animated"));
}

TEST_F(ListPageCalls, ATapIsDeselectedAndAnsweredWithAnEditorInAStackOfItsOwn) {
    ZVSettingsCustomViewController *page = newPage(@"black", {{"1", "One"}});
    tap(page, entries, 0);
    EXPECT_THAT(said, ElementsAre("deselect 1.0", "present animated"));
    EXPECT_EQ(presentedClass(), "ZVSettingsEditNumberViewController");
    EXPECT_EQ([(id)presented() delegate], page);
}

TEST_F(ListPageCalls, APickerComesInAStackOfItsOwn) {
    ZVSettingsCustomViewController *page = newPage(@"exclude");
    tap(page, actions, 1);
    EXPECT_THAT(said, ElementsAre("deselect 0.1", "present animated"));
    EXPECT_EQ(presentedClass(), "ZVSettingsSelectContactsViewController");
    EXPECT_EQ([(id)presented() delegate], page);
    EXPECT_EQ(text([presented() title]), "Select Contacts");
    tap(page, actions, 2);
    EXPECT_EQ(presentedClass(), "ZVSettingsSelectCallHistoryViewController");
    EXPECT_EQ(text([presented() title]), "Select Call History");
}

// A modal page holds the list page as its delegate: once it is gone, nobody does.
TEST_F(ListPageCalls, ModalPagesBelongToTheirStackAlone) {
    ZVSettingsCustomViewController *page = newPage(@"black");
    const NSUInteger before = [page retainCount];
    for (NSInteger row = 0; row < 3; ++row) {
        @autoreleasepool {
            tap(page, actions, row);
        }
        EXPECT_EQ([page retainCount], before + 1);
        [stack->presented release];
        stack->presented = nil;
        EXPECT_EQ([page retainCount], before) << row;
    }
}

TEST_F(ListPageCalls, APickerKnowsTheNumbersOfTheList) {
    ZVSettingsCustomViewController *page = newPage(@"white", {{"1", "One"}, {"2", ""}});
    tap(page, actions, 2);
    NSDictionary *const known = @{@"1" : [NSNull null], @"2" : [NSNull null]};
    EXPECT_TRUE([[presented() valueForKey:@"selects"] isEqual:known]);
}

TEST_F(ListPageCalls, ThePriorityListHasPickersThoughItShowsNoRowsForThem) {
    ZVSettingsCustomViewController *page = newPage(@"priority");
    tap(page, actions, 1);
    EXPECT_EQ(presentedClass(), "ZVSettingsSelectContactsViewController");
}

TEST_F(ListPageCalls, OtherListsHaveNoPickers) {
    for (NSString *listId in @[ @"area", @"t9", @"calltime", @"gray" ]) {
        ZVSettingsCustomViewController *page = newPage(listId);
        for (int row = 1; row <= 2; ++row) {
            tap(page, actions, row);
            EXPECT_EQ(presentedClass(), "ZVSettingsEditNumberViewController") << text(listId);
        }
    }
}

/// What an editor is told and called, by the list and the place of the tap.
struct EditorCase {
    const char *listId;
    int section, row;
    NSString *title;
    NSDictionary *info;
};

NSDictionary *formInfo(NSString *name, NSString *number, int keyboard) {
    return @{@"NamePlaceholder" : name, @"NumberPlaceholder" : number, @"NumberKeyboardType" : @(keyboard)};
}

NSDictionary *with(NSDictionary *info, NSDictionary *more) {
    NSMutableDictionary *both = [NSMutableDictionary dictionaryWithDictionary:info];
    [both addEntriesFromDictionary:more];
    return both;
}

TEST_F(ListPageCalls, EveryEditorIsToldWhatItsListNeedsAndNothingElse) {
    NSDictionary *const isNew = @{@"New" : [NSNull null]}, *const entry = @{@"name" : @"A", @"number" : @"1"};
    NSDictionary *const area = formInfo(@"Area", @"Prefix", 5);
    NSDictionary *const code = formInfo(@"Character", @"T9 Keyboard", 4);
    NSDictionary *const phone = formInfo(@"Name", @"Phone Number", 4);
    const EditorCase cases[] = {
        {"area", actions, 0, @"Add Area", with(area, isNew)},
        {"area", entries, 0, @"Edit Area", with(area, entry)},
        {"t9", actions, 0, @"Add Code Table", with(code, isNew)},
        {"t9", entries, 0, @"Edit Code Table", with(code, entry)},
        {"black", actions, 0, @"Add Number", with(phone, isNew)},
        {"black", actions, 3, nil, with(phone, isNew)},
        {"black", entries, 0, @"Edit Number", with(phone, entry)},
        {"white", actions, 0, @"Add Number", with(phone, isNew)},
        {"white", entries, 0, @"Edit Number", with(phone, entry)},
        {"priority", actions, 0, @"Add Number", with(phone, isNew)},
        {"priority", entries, 0, @"Edit Number", with(phone, entry)},
        {"exclude", actions, 0, @"Add Number", with(phone, isNew)},
        {"exclude", entries, 0, @"Edit Number", with(phone, entry)},
        {"calltime", actions, 0, @"Unit: Minutes",
         with(
             isNew, @{
                 @"NamePlaceholder" : @"minutes",
                 @"NumberKeyboardType" : @4,
                 @"number" : @"0",
                 @"NoName" : [NSNull null]
             })},
        {"gray", actions, 0, nil, isNew},
        {"area", 2, 0, nil, with(area, isNew)},
    };
    for (const EditorCase &one : cases) {
        SCOPED_TRACE(std::string(one.listId) + " " + std::to_string(one.section) + "." +
                     std::to_string(one.row));
        tap(newPage(text(one.listId), {{"1", "A"}}), one.section, one.row);
        EXPECT_EQ(text([presented() title]), text(one.title));
        NSDictionary *info = [presented() valueForKey:@"editInfo"];
        EXPECT_TRUE([info isEqual:one.info]) << text([info description]);
    }
}

TEST_F(ListPageCalls, AnEditorIsGivenTheEmptyNameOfAnEntry) {
    ZVSettingsCustomViewController *page = newPage(@"black", {{"1", ""}});
    tap(page, entries, 0);
    EXPECT_TRUE([[[presented() valueForKey:@"editInfo"] objectForKey:@"name"] isEqual:@""]);
}

} // namespace
