#include "Stage.h"

#include "UIKit/UIView+Host.h"

namespace {

using host::Element;
using host::GestureKind;
using host::Outcome;
using testing::ElementsAre;

class Screen : public uikit::Stage {
protected:
    static std::vector<std::string> types(const Element &of) {
        std::vector<std::string> found;
        for (const Element &child : of.children)
            found.push_back(child.type);
        return found;
    }

    UILabel *label(NSString *text) {
        UILabel *made = [[[UILabel alloc] initWithFrame:CGRectMake(10, 5, 100, 20)] autorelease];
        [made setText:text];
        return made;
    }
};

TEST_F(Screen, TellsItsSizeScaleLanguageAndFrontPage) {
    const Element window = host::screen();
    EXPECT_EQ(window.type, "Window");
    EXPECT_EQ(window.rect, (host::Rect{0, 0, 320, 568}));
    EXPECT_EQ(window.amount("scale"), 2);
    EXPECT_EQ(window.text("language"), "en");
    EXPECT_NE(window.amount("page"), 0);
    EXPECT_EQ(window.amount("page"), window.all("NavigationBar").front()->amount("page"));
}

TEST_F(Screen, ShowsTheBarThePageTheKeyboardAndTheQuestionInThisOrder) {
    place(label(@"text"));
    EXPECT_THAT(types(host::screen()), ElementsAre("NavigationBar", "StaticText"));
    UIAlertView *alert = [[[UIAlertView alloc] initWithTitle:@"T"
                                                     message:nil
                                                    delegate:nil
                                           cancelButtonTitle:@"OK"
                                           otherButtonTitles:nil] autorelease];
    [alert setAlertViewStyle:UIAlertViewStylePlainTextInput];
    [alert show];
    host::waitUntilIdle();
    EXPECT_THAT(types(host::screen()), ElementsAre("NavigationBar", "StaticText", "Keyboard", "Alert"));
}

TEST_F(Screen, APlainViewIsLeftOutAndItsContentStandsInItsPlace) {
    UIView *plain = [[[UIView alloc] init] autorelease];
    place(plain);
    UILabel *inside = label(@"inside");
    [plain addSubview:inside];
    EXPECT_EQ(elementOf(inside).rect, (host::Rect{20, 105, 100, 20}));
    EXPECT_THAT(types(host::screen()), ElementsAre("NavigationBar", "StaticText"));
}

TEST_F(Screen, NothingOfAHiddenViewIsShown) {
    UIView *plain = [[[UIView alloc] init] autorelease];
    place(plain);
    [plain addSubview:label(@"inside")];
    [plain setHidden:YES];
    EXPECT_FALSE(person.sees("inside"));
}

TEST_F(Screen, ViewsAreLaidOutBeforeTheyAreShown) {
    UIButton *button = [UIButton buttonWithType:UIButtonTypeSystem];
    [button setTitle:@"Wide title" forState:UIControlStateNormal];
    place(button);
    (void)host::screen();
    EXPECT_GT([[button titleLabel] frame].size.width, 50);
}

TEST_F(Screen, WhatHasGoneIsNotThere) {
    UISwitch *control = [[[UISwitch alloc] init] autorelease];
    place(control);
    const auto number = [control _hostNumber];
    [control removeFromSuperview];
    EXPECT_EQ(host::perform({.number = number}), Outcome::notThere);
    EXPECT_EQ(host::perform({.number = 999'999'999}), Outcome::notThere);
    EXPECT_EQ(host::perform({}), Outcome::notThere);
}

TEST_F(Screen, AGestureThatAViewDoesNotTakeIsDisabled) {
    UISwitch *control = [[[UISwitch alloc] init] autorelease];
    place(control);
    for (const auto kind : {GestureKind::slide, GestureKind::swipe, GestureKind::type, GestureKind::scroll})
        EXPECT_EQ(perform(control, {.kind = kind}), Outcome::disabled);
    EXPECT_FALSE([control isOn]);
}

TEST_F(Screen, WithoutATableThereIsNothingToScroll) {
    EXPECT_EQ(host::perform({.kind = GestureKind::scroll, .amount = 10}), Outcome::notThere);
    EXPECT_EQ(host::perform({.kind = GestureKind::closeSwipe}), Outcome::notThere);
}

TEST_F(Screen, WithoutAPageItIsEmpty) {
    host::setRootController(nil);
    EXPECT_TRUE(host::screen().children.empty());
    EXPECT_EQ(host::screen().amount("page"), 0);
    EXPECT_EQ(host::perform({.kind = GestureKind::back}), Outcome::disabled);
    EXPECT_EQ(host::perform({.kind = GestureKind::returnKey}), Outcome::notThere);
}

TEST_F(Screen, ANewRootPageTakesTheOldOnesPlace) {
    TracedPage *next = [TracedPage named:"Next" in:trace];
    host::setRootController(next);
    EXPECT_THAT(trace, ElementsAre("Page willDisappear", "Page didDisappear", "Next didLoad",
                                   "Next willAppear", "Next didAppear"));
    EXPECT_TRUE(host::screen().all("NavigationBar").empty());
    EXPECT_EQ([[next view] window], host::mainWindow());
}

TEST_F(Screen, ANewRootPageTakesTheQuestionAway) {
    UIAlertView *alert = [[[UIAlertView alloc] initWithTitle:@"T"
                                                     message:nil
                                                    delegate:nil
                                           cancelButtonTitle:@"OK"
                                           otherButtonTitles:nil] autorelease];
    [alert show];
    host::setRootController(nil);
    EXPECT_EQ(person.question().type, "");
}

TEST_F(Screen, AGestureWaitsUntilEverythingItSetOffHasHappened) {
    UIButton *button = [UIButton buttonWithType:UIButtonTypeSystem];
    [button setTitle:@"Go" forState:UIControlStateNormal];
    [button addTarget:page action:@selector(heard:) forControlEvents:UIControlEventTouchUpInside];
    place(button);
    [UIView animateWithDuration:1
        animations:^{
            [button setAlpha:0.5];
        }
        completion:^(BOOL finished) {
            [button setTitle:finished ? @"Gone" : @"Stopped" forState:UIControlStateNormal];
        }];
    EXPECT_EQ([button alpha], 0.5);
    EXPECT_TRUE([[button currentTitle] isEqualToString:@"Go"]);
    EXPECT_EQ(tap(button), Outcome::done);
    EXPECT_TRUE([[button currentTitle] isEqualToString:@"Gone"]);
}

} // namespace
