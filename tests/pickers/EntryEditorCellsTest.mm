// The entry editor as its table and its delegate see it, call by call.
#import "pickers/ZVSettingsEditNumberViewController.h"

#include "Dismissal.h"
#import "support/BundleTest.h"
#include "support/Ownership.h"

using support::text;
using support::variable;
using testing::ElementsAre;

/// A table that has one cell to reuse, and writes down which were asked for.
@interface OneCellTable : UITableView {
@public
    UITableViewCell *reusable;
    std::vector<std::string> asked;
}
@end

@implementation OneCellTable
- (id)dequeueReusableCellWithIdentifier:(NSString *)identifier {
    asked.push_back(text(identifier));
    return reusable;
}
@end

/// Writes down what the form says, and in which state it was then.
@interface WatchingOwner : NSObject <ZVSettingsEditNumberViewControllerDelegate> {
@public
    std::vector<std::string> said;
}
@end

@implementation WatchingOwner
- (void)settingsEditNumberViewControllerSaved:(ZVSettingsEditNumberViewController *)form {
    said.push_back("saved " + text([[form texts] objectForKey:@"number"]) + " before " +
                   std::to_string(dismissal::requests.size()) + " dismissals");
}
- (void)settingsEditNumberViewControllerCancel {
    said.push_back("cancelled before " + std::to_string(dismissal::requests.size()) + " dismissals");
}
@end

namespace {

class EntryEditorCells : public support::BundleTest {
protected:
    EntryEditorCells() {
        table = [[[OneCellTable alloc] initWithFrame:CGRectMake(0, 0, 320, 480)
                                               style:UITableViewStyleGrouped] autorelease];
    }

    static ZVSettingsEditNumberViewController *newForm(NSDictionary *info) {
        return
            [[[classNamed("ZVSettingsEditNumberViewController") alloc] initWithEditInfos:info] autorelease];
    }

    UITableViewCell *cell(ZVSettingsEditNumberViewController *form, NSInteger row) {
        return [form tableView:table cellForRowAtIndexPath:[NSIndexPath indexPathForRow:row inSection:0]];
    }

    static UITextField *fieldOf(UITableViewCell *cell) {
        NSArray *const views = [[cell contentView] subviews];
        for (UIView *view in views) {
            if ([view isKindOfClass:[UITextField class]])
                return (UITextField *)view;
        }
        return nil;
    }

    OneCellTable *table = nil;
    NSDictionary *both = @{@"name" : @"Ann", @"number" : @"12"};
};

TEST_F(EntryEditorCells, IsAGroupedTableWithOneSection) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    EXPECT_EQ([[form tableView] style], UITableViewStyleGrouped);
    EXPECT_EQ([[form tableView] numberOfSections], 1);
    EXPECT_EQ([form title], nil);
}

TEST_F(EntryEditorCells, HasCancelAtTheLeftAndSaveAtTheRight) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    UIBarButtonItem *left = [[form navigationItem] leftBarButtonItem];
    UIBarButtonItem *right = [[form navigationItem] rightBarButtonItem];
    EXPECT_EQ([left target], form);
    EXPECT_TRUE(sel_isEqual([left action], @selector(cancelButtonPressed:)));
    EXPECT_EQ([right target], form);
    EXPECT_TRUE(sel_isEqual([right action], @selector(saveButtonPressed:)));
}

TEST_F(EntryEditorCells, KeepsTheVeryInfoThatItWasGiven) {
    NSMutableDictionary *info = [NSMutableDictionary dictionaryWithDictionary:both];
    const NSUInteger before = [info retainCount];
    @autoreleasepool {
        ZVSettingsEditNumberViewController *form = newForm(info);
        EXPECT_EQ(variable(form, "_editInfo"), info);
        EXPECT_EQ([info retainCount], before + 1);
    }
    EXPECT_EQ([info retainCount], before);
}

TEST_F(EntryEditorCells, GivesBackItsTexts) {
    support::expectGivesBack({"_texts"}, [this] {
        ZVSettingsEditNumberViewController *form = newForm(both);
        [form saveButtonPressed:nil];
        [form saveButtonPressed:nil];
        return form;
    });
}

TEST_F(EntryEditorCells, WithoutAnInfoIsAnEmptyFormOfTwoRows) {
    ZVSettingsEditNumberViewController *form = newForm(nil);
    EXPECT_EQ([form tableView:table numberOfRowsInSection:0], 2);
    EXPECT_EQ(text([fieldOf(cell(form, 0)) text]), "");
    EXPECT_EQ([form getNumberKey], nil);
}

TEST_F(EntryEditorCells, AsksForAReusableCellOfEachKind) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    EXPECT_EQ(text([cell(form, 0) reuseIdentifier]), "NameCell");
    EXPECT_EQ(text([cell(form, 1) reuseIdentifier]), "NumberCell");
    EXPECT_EQ(text([cell(newForm(@{@"NoName" : [NSNull null]}), 0) reuseIdentifier]), "NumberCell");
    EXPECT_THAT(table->asked, ElementsAre("NameCell", "NumberCell", "NumberCell"));
}

TEST_F(EntryEditorCells, GivesAReusedCellBackAsItIs) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    table->reusable = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleDefault
                                              reuseIdentifier:@"NameCell"] autorelease];
    EXPECT_EQ(cell(form, 0), table->reusable);
    EXPECT_EQ(fieldOf(table->reusable), nil);
    EXPECT_EQ(variable(form, "_nameTextField"), nil);
}

TEST_F(EntryEditorCells, MakesFieldsThatFollowTheForm) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    for (NSInteger row = 0; row < 2; ++row) {
        UITableViewCell *made = cell(form, row);
        UITextField *field = fieldOf(made);
        EXPECT_EQ([made selectionStyle], UITableViewCellSelectionStyleNone);
        EXPECT_EQ([made detailTextLabel], nil) << "the default style has none";
        EXPECT_TRUE(CGRectEqualToRect([field frame], CGRectMake(15, 0, 300, 44)));
        EXPECT_TRUE([[field font] isEqual:[UIFont systemFontOfSize:17]]);
        EXPECT_TRUE([[field backgroundColor] isEqual:[UIColor clearColor]]);
        EXPECT_TRUE([field adjustsFontSizeToFitWidth]);
        EXPECT_EQ([field clearButtonMode], UITextFieldViewModeWhileEditing);
        EXPECT_EQ([field keyboardType], row == 0 ? UIKeyboardTypeDefault : UIKeyboardTypeNumberPad);
        EXPECT_EQ(variable(form, row == 0 ? "_nameTextField" : "_numberTextField"), field);
    }
}

TEST_F(EntryEditorCells, DoesNotMoveAFieldIntoASecondCell) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    UITableViewCell *first = cell(form, 1);
    UITextField *field = fieldOf(first);
    [field setText:@"99"];
    UITableViewCell *second = cell(form, 1);
    EXPECT_NE(second, first);
    EXPECT_EQ(fieldOf(second), nil);
    EXPECT_EQ(fieldOf(first), field);
    EXPECT_EQ(text([field text]), "12") << "its text comes from the edit info again";
}

TEST_F(EntryEditorCells, LeavesNothingInAFieldOfWhichTheInfoSaysNothing) {
    NSMutableDictionary *info = [NSMutableDictionary dictionaryWithDictionary:both];
    [info setObject:@"Which" forKey:@"NumberPlaceholder"];
    ZVSettingsEditNumberViewController *form = newForm(info);
    UITableViewCell *first = cell(form, 1);
    EXPECT_EQ(text([fieldOf(first) placeholder]), "Which");
    [info removeAllObjects];
    (void)cell(form, 1);
    EXPECT_EQ(text([fieldOf(first) text]), "");
    EXPECT_EQ([fieldOf(first) placeholder], nil);
}

TEST_F(EntryEditorCells, TakesAnyNumberAsKeyboard) {
    for (NSNumber *keyboard in @[ @5, @0, @4 ]) {
        ZVSettingsEditNumberViewController *form = newForm(@{@"NumberKeyboardType" : keyboard});
        EXPECT_EQ([fieldOf(cell(form, 1)) keyboardType], [keyboard integerValue]);
        EXPECT_EQ([fieldOf(cell(form, 0)) keyboardType], UIKeyboardTypeDefault);
    }
}

TEST_F(EntryEditorCells, StoresANumberKeyThatNobodyReads) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    NSString *key = [NSMutableString stringWithString:@"other"];
    const NSUInteger before = [key retainCount];
    [form setNumberKey:key];
    EXPECT_EQ(variable(form, "_numberKey"), key);
    EXPECT_EQ([key retainCount], before + 1);
    [form setNumberKey:nil];
    EXPECT_EQ([key retainCount], before);
}

TEST_F(EntryEditorCells, DoesNotGiveBackANumberKey) {
    NSString *key = [NSMutableString stringWithString:@"other"];
    const NSUInteger before = [key retainCount];
    @autoreleasepool {
        [newForm(both) setNumberKey:key];
    }
    ASSERT_EQ([key retainCount], before + 1) << "deliberate: nothing in the bundle sets it";
    [key release];
}

TEST_F(EntryEditorCells, TellsItsOwnerBeforeItAsksToBeDismissed) {
    ZVSettingsEditNumberViewController *form = newForm(both);
    WatchingOwner *owner = [[[WatchingOwner alloc] init] autorelease];
    [form setDelegate:owner];
    (void)cell(form, 1);
    dismissal::listenTo([form class]);
    [form saveButtonPressed:nil];
    [form cancelButtonPressed:nil];
    EXPECT_THAT(owner->said, ElementsAre("saved 12 before 0 dismissals", "cancelled before 1 dismissals"));
    EXPECT_THAT(dismissal::requests, ElementsAre("animated and then", "animated and then"));
}

TEST_F(EntryEditorCells, WithoutAnOwnerIsDismissedAllTheSame) {
    ZVSettingsEditNumberViewController *form = newForm(nil);
    dismissal::listenTo([form class]);
    [form saveButtonPressed:nil];
    [form cancelButtonPressed:nil];
    EXPECT_EQ(dismissal::requests.size(), 2U);
    EXPECT_EQ([[form texts] count], 0U) << "a form that was never shown has no fields";
}

TEST_F(EntryEditorCells, HandsBackNoNameWhereItHasNoNameField) {
    ZVSettingsEditNumberViewController *form =
        newForm(@{@"NoName" : [NSNull null], @"name" : @"Ann", @"number" : @"12"});
    (void)cell(form, 0);
    [form saveButtonPressed:nil];
    EXPECT_TRUE([[form texts] isEqual:@{@"number" : @"12"}]);
}

} // namespace
