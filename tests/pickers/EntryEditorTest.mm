// The form in which one entry is typed, by itself.
#import "pickers/ZVSettingsEditNumberViewController.h"
#import "support/BundleTest.h"

using support::text;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

/// A page that opens the form and takes what it says.
@interface FormOwner : NSObject <ZVSettingsEditNumberViewControllerDelegate> {
@public
    int saves;
    support::Entries texts;
    ZVSettingsEditNumberViewController *form;
}
@end

@implementation FormOwner
- (void)settingsEditNumberViewControllerSaved:(ZVSettingsEditNumberViewController *)saved {
    ++saves;
    form = saved;
    texts.clear();
    for (NSString *key in [saved texts])
        texts[text(key)] = text([[saved texts] objectForKey:key]);
}
@end

/// One that wants to know of Cancel, too.
@interface CuriousFormOwner : FormOwner {
@public
    int cancels;
}
@end

@implementation CuriousFormOwner
- (void)settingsEditNumberViewControllerCancel {
    ++cancels;
}
@end

namespace {

class EntryEditor : public support::BundleTest {
protected:
    EntryEditor() { owner = [[[CuriousFormOwner alloc] init] autorelease]; }

    ZVSettingsEditNumberViewController *newForm(NSDictionary *info) {
        ZVSettingsEditNumberViewController *form =
            [[[classNamed("ZVSettingsEditNumberViewController") alloc] initWithEditInfos:info] autorelease];
        [form setDelegate:owner];
        return form;
    }

    /// Shows a form over the root page.
    ZVSettingsEditNumberViewController *show(NSDictionary *info) {
        open();
        ZVSettingsEditNumberViewController *form = newForm(info);
        UINavigationController *stack =
            [[[UINavigationController alloc] initWithRootViewController:form] autorelease];
        [[(UIViewController *)rootPage() navigationController] presentViewController:stack
                                                                            animated:YES
                                                                          completion:nil];
        host::waitUntilIdle();
        return form;
    }

    static std::vector<host::Element> fields() {
        std::vector<host::Element> fields;
        const host::Element screen = host::screen();
        for (const host::Element *field : screen.all("TextField"))
            fields.push_back(*field);
        return fields;
    }

    static NSDictionary *info(NSArray *more = @[]) {
        NSMutableDictionary *info = [NSMutableDictionary
            dictionaryWithDictionary:@{@"NamePlaceholder" : @"Who", @"NumberPlaceholder" : @"Which"}];
        for (NSUInteger index = 0; index < [more count]; index += 2)
            [info setObject:[more objectAtIndex:index + 1] forKey:[more objectAtIndex:index]];
        return info;
    }

    CuriousFormOwner *owner;
};

TEST_F(EntryEditor, WithoutANameShowsOneFieldThatHasTheFocus) {
    show(info(@[ @"NoName", [NSNull null], @"number", @"12" ]));
    ASSERT_EQ(fields().size(), 1U);
    EXPECT_EQ(person.focusedField().text("placeholder"), "Which");
    person.type("Which", "34");
    person.tap("Save");
    EXPECT_THAT(owner->texts, ElementsAre(Pair("number", "1234")));
}

TEST_F(EntryEditor, WithANameShowsTwoFieldsAndTheNameHasTheFocus) {
    show(info(@[ @"name", @"Ann", @"number", @"12" ]));
    ASSERT_EQ(fields().size(), 2U);
    EXPECT_EQ(fields()[0].value, "Ann");
    EXPECT_EQ(fields()[1].value, "12");
    EXPECT_EQ(person.focusedField().text("placeholder"), "Who");
    person.retype("Who", "  Bob  ");
    person.tap("Save");
    EXPECT_THAT(owner->texts, ElementsAre(Pair("name", "  Bob  "), Pair("number", "12")));
}

TEST_F(EntryEditor, HandsBackEmptyTextsAsTheyAre) {
    show(info());
    person.tap("Save");
    EXPECT_THAT(owner->texts, ElementsAre(Pair("name", ""), Pair("number", "")));
}

TEST_F(EntryEditor, ForANewEntryHasNoNumberKey) {
    EXPECT_EQ([newForm(info(@[ @"New", [NSNull null], @"number", @"12" ])) getNumberKey], nil);
    EXPECT_EQ([newForm(info(@[ @"New", [NSNull null] ])) getNumberKey], nil);
}

TEST_F(EntryEditor, KeepsTheNumberOfTheEntryAsItsKeyWhateverIsTyped) {
    ZVSettingsEditNumberViewController *form = show(info(@[ @"number", @"12" ]));
    person.retype("Which", "99");
    EXPECT_EQ(text([form getNumberKey]), "12");
    EXPECT_EQ([newForm(info()) getNumberKey], nil);
}

TEST_F(EntryEditor, AnswersItsNumberKeyFromTheEditInfoAlone) {
    ZVSettingsEditNumberViewController *form = newForm(info(@[ @"number", @"12" ]));
    [form setNumberKey:@"other"];
    EXPECT_EQ(text(form.numberKey), "12");
    [form setNumberKey:nil];
}

TEST_F(EntryEditor, TakesItsKeyboardFromTheEditInfo) {
    show(info(@[ @"NumberKeyboardType", @5 ]));
    EXPECT_EQ(person.field("Which").amount("keyboard"), 5);
    EXPECT_EQ(person.field("Who").amount("keyboard"), 0);
}

TEST_F(EntryEditor, HasANumberPadWhereTheEditInfoNamesNoKeyboard) {
    show(info());
    EXPECT_EQ(person.field("Which").amount("keyboard"), 4);
}

TEST_F(EntryEditor, WithoutAnyInfoIsEmpty) {
    show(@{});
    ASSERT_EQ(fields().size(), 2U);
    EXPECT_EQ(fields()[0].value + fields()[1].value, "");
    EXPECT_EQ(fields()[0].text("placeholder") + fields()[1].text("placeholder"), "");
}

TEST_F(EntryEditor, CancelTellsWhoWantsToKnowAndCloses) {
    show(info());
    person.tap("Cancel");
    EXPECT_EQ(owner->cancels, 1);
    EXPECT_EQ(owner->saves, 0);
    EXPECT_EQ(person.title(), "Zelvora");
}

TEST_F(EntryEditor, CancelClosesThoughNobodyWantsToKnow) {
    FormOwner *incurious = [[[FormOwner alloc] init] autorelease];
    [show(info()) setDelegate:incurious];
    person.tap("Cancel");
    EXPECT_EQ(person.title(), "Zelvora");
}

TEST_F(EntryEditor, SaveCloses) {
    show(info());
    person.tap("Save");
    EXPECT_EQ(owner->saves, 1);
    EXPECT_EQ(owner->cancels, 0);
    EXPECT_EQ(person.title(), "Zelvora");
}

TEST_F(EntryEditor, HasNoTextsBeforeTheFirstSave) {
    EXPECT_EQ([newForm(info()) texts], nil);
}

TEST_F(EntryEditor, EmptiesAndUsesItsTextsAgainOnASecondSave) {
    ZVSettingsEditNumberViewController *form = newForm(info());
    [form saveButtonPressed:nil];
    NSMutableDictionary *texts = [form texts];
    ASSERT_NE(texts, nil);
    [texts setObject:@"stale" forKey:@"stale"];
    [form saveButtonPressed:nil];
    EXPECT_EQ([form texts], texts);
    EXPECT_EQ([texts objectForKey:@"stale"], nil);
    EXPECT_EQ(owner->saves, 2);
}

TEST_F(EntryEditor, KeepsWhatWasTypedWhenItsCellsAreReused) {
    ZVSettingsEditNumberViewController *form = show(info(@[ @"name", @"Ann", @"number", @"12" ]));
    person.retype("Who", "Bob");
    [[form tableView] reloadData];
    host::waitUntilIdle();
    person.tap("Save");
    EXPECT_THAT(owner->texts, ElementsAre(Pair("name", "Bob"), Pair("number", "12")));
}

TEST_F(EntryEditor, OwnsItsDelegateUntilItGoes) {
    const NSUInteger before = [owner retainCount];
    @autoreleasepool {
        ZVSettingsEditNumberViewController *form = newForm(info());
        EXPECT_EQ([owner retainCount], before + 1);
        (void)form;
    }
    EXPECT_EQ([owner retainCount], before);
}

TEST_F(EntryEditor, FieldsAreLaidOutInsideTheirRows) {
    ZVSettingsEditNumberViewController *form = show(info());
    const CGFloat width = [[form tableView] frame].size.width;
    for (const host::Element &field : fields()) {
        EXPECT_EQ(field.rect.x, 15);
        EXPECT_EQ(field.rect.width, width - 20);
        EXPECT_EQ(field.rect.height, 44);
    }
}

TEST_F(EntryEditor, RowsAreNotSelectable) {
    ZVSettingsEditNumberViewController *form = newForm(info());
    UITableView *table = [form tableView];
    for (NSInteger row = 0; row < 2; ++row) {
        NSIndexPath *path = [NSIndexPath indexPathForRow:row inSection:0];
        EXPECT_EQ([[form tableView:table cellForRowAtIndexPath:path] selectionStyle],
                  UITableViewCellSelectionStyleNone);
    }
}

} // namespace
