#include "Stage.h"

namespace {

using host::Element;
using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

class NavigationBar : public uikit::Stage {
protected:
    explicit NavigationBar(host::DeviceOptions options = {}) : Stage(std::move(options)) {}

    UIBarButtonItem *systemItem(UIBarButtonSystemItem kind) {
        return [[[UIBarButtonItem alloc] initWithBarButtonSystemItem:kind
                                                              target:receiver
                                                              action:@selector(sent:)] autorelease];
    }

    UIBarButtonItem *titled(NSString *title, UIBarButtonItemStyle style = UIBarButtonItemStylePlain) {
        return [[[UIBarButtonItem alloc] initWithTitle:title
                                                 style:style
                                                target:receiver
                                                action:@selector(sent:)] autorelease];
    }

    UINavigationItem *item() { return [page navigationItem]; }

    void push(TracedPage *next) {
        [[page navigationController] pushViewController:next animated:NO];
        host::waitUntilIdle();
    }

    static Element bar() { return *host::screen().all("NavigationBar").front(); }
    static Element button(std::size_t index = 0) { return *bar().all("Button").at(index); }
};

struct Words {
    const char *language;
    std::vector<std::string> words;
};

void PrintTo(const Words &words, std::ostream *to) {
    *to << words.language;
}

class SystemItems : public NavigationBar, public testing::WithParamInterface<Words> {
protected:
    SystemItems() : NavigationBar({.language = GetParam().language}) {}
};

TEST_P(SystemItems, HaveTheSystemsOwnWords) {
    std::vector<std::string> shown;
    for (const auto kind : {UIBarButtonSystemItemDone, UIBarButtonSystemItemCancel, UIBarButtonSystemItemEdit,
                            UIBarButtonSystemItemSave}) {
        [item() setRightBarButtonItem:systemItem(kind)];
        shown.push_back(button().label);
    }
    EXPECT_EQ(shown, GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(NavigationBar, SystemItems,
                         testing::Values(Words{"en", {"Done", "Cancel", "Edit", "Save"}},
                                         Words{"zh-Hans", {"完成", "取消", "编辑", "存储"}},
                                         Words{"de", {"Fertig", "Abbrechen", "Bearbeiten", "Sichern"}}),
                         [](const auto &each) { return std::string(each.param.language).substr(0, 2); });

TEST_F(NavigationBar, ShowsTheTitleInTheMiddle) {
    const Element title = *bar().all("StaticText").front();
    EXPECT_EQ(title.label, "Page");
    EXPECT_EQ(title.text("role"), "title");
    EXPECT_EQ(title.text("weight"), "bold");
    EXPECT_DOUBLE_EQ(title.rect.x + title.rect.width / 2, 160);
}

TEST_F(NavigationBar, TheLaterOfTitleAndItemTitleWins) {
    [page setTitle:@"First"];
    EXPECT_EQ(person.title(), "First");
    [item() setTitle:@"Second"];
    EXPECT_EQ(person.title(), "Second");
    EXPECT_TRUE([[page title] isEqualToString:@"First"]);
    [page setTitle:@"Third"];
    EXPECT_EQ(person.title(), "Third");
}

TEST_F(NavigationBar, LiesBelowTheStatusBar) {
    EXPECT_EQ(bar().rect, (host::Rect{0, 20, 320, 44}));
}

TEST_F(NavigationBar, ATapOnAnItemSendsItsActionWithTheItem) {
    UIBarButtonItem *edit = systemItem(UIBarButtonSystemItemEdit);
    [item() setRightBarButtonItem:edit];
    person.tapButton("Edit");
    EXPECT_THAT(receiver->told, ElementsAre("sent"));
    EXPECT_EQ(receiver->sender, edit);
}

TEST_F(NavigationBar, DoneAndSaveAreBoldAndCancelIsPlain) {
    [item() setRightBarButtonItem:systemItem(UIBarButtonSystemItemSave)];
    EXPECT_EQ(button().text("style"), "done");
    EXPECT_EQ(button().text("weight"), "bold");
    [item() setRightBarButtonItem:systemItem(UIBarButtonSystemItemDone)];
    EXPECT_EQ(button().text("style"), "done");
    [item() setRightBarButtonItem:systemItem(UIBarButtonSystemItemCancel)];
    EXPECT_EQ(button().text("style"), "plain");
    EXPECT_EQ(button().text("weight"), "regular");
}

TEST_F(NavigationBar, AChangeOfTitleAndStyleShowsAtOnce) {
    UIBarButtonItem *edit = titled(@"Edit");
    [item() setRightBarButtonItem:edit];
    EXPECT_EQ(button().label, "Edit");
    [edit setTitle:@"Done"];
    [edit setStyle:UIBarButtonItemStyleDone];
    EXPECT_EQ(button().label, "Done");
    EXPECT_EQ(button().text("style"), "done");
}

TEST_F(NavigationBar, KeepsTheNumberOfAnItem) {
    [item() setRightBarButtonItem:titled(@"Edit")];
    const auto number = button().number;
    EXPECT_NE(number, 0u);
    EXPECT_EQ(button().number, number);
}

TEST_F(NavigationBar, AnItemWithoutImageAndTitleIsEmptyButCanBeTapped) {
    [item() setRightBarButtonItem:[[[UIBarButtonItem alloc] initWithImage:nil
                                                                    style:UIBarButtonItemStylePlain
                                                                   target:receiver
                                                                   action:@selector(sent:)] autorelease]];
    EXPECT_EQ(button().label, "");
    EXPECT_GE(button().rect.width, 30);
    EXPECT_GE(button().rect.height, 30);
    EXPECT_EQ(host::perform({.number = button().number}), Outcome::done);
    EXPECT_THAT(receiver->told, ElementsAre("sent"));
}

TEST_F(NavigationBar, ADisabledItemTakesNoTap) {
    [item() setRightBarButtonItem:titled(@"Edit")];
    [[item() rightBarButtonItem] setEnabled:NO];
    EXPECT_FALSE(button().enabled);
    EXPECT_EQ(host::perform({.number = button().number}), Outcome::disabled);
    EXPECT_THAT(receiver->told, IsEmpty());
}

TEST_F(NavigationBar, AnItemDoesNotKeepItsTargetAlive) {
    const NSUInteger before = [receiver retainCount];
    [item() setRightBarButtonItem:titled(@"Edit")];
    EXPECT_EQ([receiver retainCount], before);
}

TEST_F(NavigationBar, TheNavigationItemKeepsItsItems) {
    UIBarButtonItem *edit = titled(@"Edit");
    const NSUInteger before = [edit retainCount];
    @autoreleasepool {
        [item() setRightBarButtonItem:edit];
    }
    EXPECT_EQ([edit retainCount], before + 1);
    @autoreleasepool {
        [item() setRightBarButtonItem:nil];
    }
    EXPECT_EQ([edit retainCount], before);
}

TEST_F(NavigationBar, RightItemsStandFromTheRight) {
    [item() setRightBarButtonItems:@[ titled(@"First"), titled(@"Second") ]];
    EXPECT_GT(button(0).rect.x, button(1).rect.x);
    EXPECT_EQ(button(0).text("role"), "right");
    [item() setLeftBarButtonItem:titled(@"Left")];
    EXPECT_EQ(button(0).label, "Left");
    EXPECT_EQ(button(0).text("role"), "left");
}

TEST_F(NavigationBar, ASystemItemWithoutWordsIsADrawingWithAName) {
    [item() setRightBarButtonItem:systemItem(UIBarButtonSystemItemAdd)];
    EXPECT_EQ(button().text("glyph"), "add");
    EXPECT_EQ(button().label, "Add");
}

TEST_F(NavigationBar, AnItemsOwnViewTakesItsPlace) {
    UISwitch *control = [[[UISwitch alloc] init] autorelease];
    [item() setRightBarButtonItem:[[[UIBarButtonItem alloc] initWithCustomView:control] autorelease]];
    EXPECT_THAT(bar().all("Button"), IsEmpty());
    EXPECT_EQ(tap(control), Outcome::done);
    EXPECT_TRUE([control isOn]);
    [item() setRightBarButtonItem:nil];
    EXPECT_EQ(tap(control), Outcome::notThere);
}

TEST_F(NavigationBar, ATitleViewTakesTheTitlesPlace) {
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectMake(0, 0, 100, 20)] autorelease];
    [label setText:@"Own title"];
    [item() setTitleView:label];
    EXPECT_EQ(bar().all("StaticText").size(), 1u);
    EXPECT_EQ(elementOf(label).rect, (host::Rect{110, 32, 100, 20}));
}

TEST_F(NavigationBar, TheBackButtonIsCalledLikeThePreviousPage) {
    push([TracedPage named:"Next" in:trace]);
    EXPECT_EQ(button().label, "Page");
    EXPECT_EQ(button().text("role"), "back");
}

TEST_F(NavigationBar, TheBackButtonIsCalledBackWhereTheTitleHasNoRoom) {
    [page setTitle:@"A title that is too long for a back button"];
    push([TracedPage named:"Next" in:trace]);
    EXPECT_EQ(button().label, "Back");
}

TEST_F(NavigationBar, APageMayNameTheButtonThatLeadsBackToIt) {
    [item() setBackBarButtonItem:titled(@"Home")];
    push([TracedPage named:"Next" in:trace]);
    EXPECT_EQ(button().label, "Home");
    person.back();
    EXPECT_EQ(person.title(), "Page");
}

TEST_F(NavigationBar, ALeftItemStandsInThePlaceOfTheBackButton) {
    TracedPage *next = [TracedPage named:"Next" in:trace];
    [[next navigationItem] setLeftBarButtonItem:titled(@"Close")];
    push(next);
    EXPECT_THAT(person.buttons(), ElementsAre("Close"));
    EXPECT_EQ(host::perform({.kind = host::GestureKind::backSwipe}), Outcome::disabled);
    [[next navigationItem] setLeftItemsSupplementBackButton:YES];
    EXPECT_THAT(person.buttons(), ElementsAre("Page", "Close"));
}

TEST_F(NavigationBar, TheBackButtonMayBeHidden) {
    TracedPage *next = [TracedPage named:"Next" in:trace];
    [[next navigationItem] setHidesBackButton:YES];
    push(next);
    EXPECT_THAT(person.buttons(), IsEmpty());
}

TEST_F(NavigationBar, AHiddenBarIsNotThere) {
    [[page navigationController] setNavigationBarHidden:YES animated:YES];
    EXPECT_THAT(host::screen().all("NavigationBar"), IsEmpty());
}

TEST_F(NavigationBar, TheEditButtonTurnsEditingOnAndOff) {
    [item() setRightBarButtonItem:[page editButtonItem]];
    person.tapButton("Edit");
    EXPECT_TRUE([page isEditing]);
    EXPECT_EQ(button().text("style"), "done");
    person.tapButton("Done");
    EXPECT_FALSE([page isEditing]);
    EXPECT_EQ(button().label, "Edit");
}

} // namespace
