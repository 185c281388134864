#include "PlainAnswers.h"

/// Writes down when alerts come as well; may answer a click with another alert.
@interface PopupDelegate : PlainAnswers {
@public
    UIAlertView *next; ///< shown at the next click; not retained
}
@end

@implementation PopupDelegate

- (void)willPresentAlertView:(UIAlertView *)alert {
    told.emplace_back("will present");
}

- (void)didPresentAlertView:(UIAlertView *)alert {
    told.emplace_back("did present");
}

- (void)alertView:(UIAlertView *)alert clickedButtonAtIndex:(NSInteger)index {
    [super alertView:alert clickedButtonAtIndex:index];
    [next show];
    [next release];
    next = nil;
}

@end

/// Tells when it is freed.
@interface MortalAlert : UIAlertView {
@public
    bool *freed;
}
@end

@implementation MortalAlert

- (void)dealloc {
    *freed = true;
    [super dealloc];
}

@end

namespace {

using host::Element;
using host::GestureKind;
using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

class Popup : public uikit::Stage {
protected:
    explicit Popup(host::DeviceOptions options = {}) : Stage(std::move(options)) {}

    PopupDelegate *delegate = [[[PopupDelegate alloc] init] autorelease];
};

class Alert : public Popup {
protected:
    UIAlertView *alert(NSString *cancel, NSString *other) {
        return [[[UIAlertView alloc] initWithTitle:@"Title"
                                           message:@"Message"
                                          delegate:delegate
                                 cancelButtonTitle:cancel
                                 otherButtonTitles:other, nil] autorelease];
    }

    void show(UIAlertView *shown) {
        [shown show];
        host::waitUntilIdle();
    }
};

TEST_F(Alert, TheCancelButtonIsTheFirstAndTheOthersFollow) {
    UIAlertView *shown = [[[UIAlertView alloc] initWithTitle:nil
                                                     message:nil
                                                    delegate:nil
                                           cancelButtonTitle:@"Cancel"
                                           otherButtonTitles:@"One", @"Two", nil] autorelease];
    EXPECT_EQ([shown cancelButtonIndex], 0);
    EXPECT_EQ([shown firstOtherButtonIndex], 1);
    EXPECT_EQ([shown numberOfButtons], 3);
    EXPECT_TRUE([[shown buttonTitleAtIndex:2] isEqualToString:@"Two"]);
}

TEST_F(Alert, WithoutACancelTitleTheOthersBeginAtZero) {
    UIAlertView *shown = alert(nil, @"OK");
    EXPECT_EQ([shown cancelButtonIndex], -1);
    EXPECT_EQ([shown firstOtherButtonIndex], 0);
}

TEST_F(Alert, WithoutOthersThereIsNoFirstOther) {
    EXPECT_EQ([alert(@"OK", nil) firstOtherButtonIndex], -1);
}

TEST_F(Alert, AButtonMayBeAdded) {
    UIAlertView *shown = alert(@"Cancel", nil);
    EXPECT_EQ([shown addButtonWithTitle:@"More"], 1);
    EXPECT_EQ([shown firstOtherButtonIndex], 1);
}

TEST_F(Alert, ShowsItsTextsAndButtons) {
    show(alert(@"Cancel", @"OK"));
    const Element question = person.question();
    EXPECT_EQ(question.type, "Alert");
    EXPECT_EQ(question.label, "Title");
    EXPECT_EQ(question.all("StaticText").at(1)->label, "Message");
    EXPECT_EQ(question.all("StaticText").at(1)->text("role"), "message");
    EXPECT_THAT(person.buttons(), ElementsAre("Cancel", "OK"));
    EXPECT_EQ(question.all("Button").at(0)->text("role"), "cancel");
    EXPECT_EQ(question.all("Button").at(1)->text("role"), "default");
}

TEST_F(Alert, TwoButtonsLieSideBySideTheCancelButtonAtTheLeft) {
    show(alert(@"Cancel", @"OK"));
    const Element question = person.question();
    EXPECT_LT(question.all("Button").at(0)->rect.x, question.all("Button").at(1)->rect.x);
    EXPECT_EQ(question.all("Button").at(0)->rect.y, question.all("Button").at(1)->rect.y);
    EXPECT_EQ(question.rect.width, 270);
    EXPECT_EQ(question.rect.x, 25);
}

TEST_F(Alert, ThreeButtonsAreStackedTheCancelButtonAtTheBottom) {
    UIAlertView *shown = alert(@"Cancel", @"One");
    [shown addButtonWithTitle:@"Two"];
    show(shown);
    const auto question = person.question();
    const auto buttons = question.all("Button");
    EXPECT_LT(buttons[1]->rect.y, buttons[2]->rect.y);
    EXPECT_LT(buttons[2]->rect.y, buttons[0]->rect.y);
}

TEST_F(Alert, ATapClicksThenWillAndDidDismiss) {
    show(alert(@"Cancel", @"OK"));
    EXPECT_THAT(delegate->told, ElementsAre("will present", "did present"));
    delegate->told.clear();
    person.answer("OK");
    EXPECT_THAT(delegate->told, ElementsAre("clicked 1", "will dismiss 1", "did dismiss 1"));
    EXPECT_EQ(person.question().type, "");
}

TEST_F(Alert, ThePageUnderItHearsNothing) {
    show(alert(@"Cancel", @"OK"));
    person.answer("OK");
    EXPECT_THAT(trace, IsEmpty());
}

TEST_F(Alert, BlocksThePageUnderIt) {
    UISwitch *control = [[[UISwitch alloc] init] autorelease];
    place(control);
    show(alert(@"Cancel", @"OK"));
    EXPECT_EQ(tap(control), Outcome::disabled);
    EXPECT_FALSE([control isOn]);
    person.answer("Cancel");
    EXPECT_EQ(tap(control), Outcome::done);
}

TEST_F(Alert, BlocksTheWayBack) {
    [[page navigationController] pushViewController:[TracedPage named:"Next" in:trace] animated:NO];
    show(alert(@"Cancel", @"OK"));
    EXPECT_EQ(host::perform({.kind = GestureKind::back}), Outcome::disabled);
    EXPECT_EQ(host::perform({.kind = GestureKind::backSwipe}), Outcome::disabled);
}

TEST_F(Alert, HidesTheKeyboardOfAFieldUnderIt) {
    UITextField *field = [[[UITextField alloc] init] autorelease];
    place(field);
    [field becomeFirstResponder];
    show(alert(@"OK", nil));
    EXPECT_TRUE(host::screen().all("Keyboard").empty());
    EXPECT_EQ(host::perform({.kind = GestureKind::type, .text = "1"}), Outcome::disabled);
    person.answer("OK");
    EXPECT_EQ(host::screen().all("Keyboard").size(), 1u);
}

TEST_F(Alert, ATapBesideItIsIgnored) {
    show(alert(@"Cancel", @"OK"));
    EXPECT_EQ(host::perform({.kind = GestureKind::tapOutside}), Outcome::disabled);
    EXPECT_EQ(person.question().type, "Alert");
}

TEST_F(Alert, OneShownInsideAClickComesAfterTheFirstHasGone) {
    delegate->next = [[UIAlertView alloc] initWithTitle:@"Second"
                                                message:nil
                                               delegate:delegate
                                      cancelButtonTitle:@"OK"
                                      otherButtonTitles:nil];
    show(alert(@"Cancel", @"Go"));
    delegate->told.clear();
    person.answer("Go");
    EXPECT_THAT(delegate->told,
                ElementsAre("clicked 1", "will dismiss 1", "did dismiss 1", "will present", "did present"));
    EXPECT_EQ(person.question().label, "Second");
    person.answer("OK");
    EXPECT_EQ(person.question().type, "");
}

TEST_F(Alert, OneShownWhileAnotherIsInFrontWaits) {
    show(alert(@"First", nil));
    UIAlertView *second = alert(@"Second", nil);
    show(second);
    EXPECT_FALSE([second isVisible]);
    EXPECT_THAT(person.buttons(), ElementsAre("First"));
    person.answer("First");
    EXPECT_TRUE([second isVisible]);
    person.answer("Second");
    EXPECT_FALSE([second isVisible]);
}

TEST_F(Alert, IsKeptUntilItHasGone) {
    bool freed = false;
    MortalAlert *shown = [[MortalAlert alloc] initWithTitle:@"T"
                                                    message:nil
                                                   delegate:delegate
                                          cancelButtonTitle:@"OK"
                                          otherButtonTitles:nil];
    shown->freed = &freed;
    [shown show];
    [shown release];
    host::waitUntilIdle();
    EXPECT_FALSE(freed);
    person.answer("OK");
    EXPECT_TRUE(freed);
}

TEST_F(Alert, DoesNotKeepItsDelegateAlive) {
    const NSUInteger before = [delegate retainCount];
    UIAlertView *shown = alert(@"OK", nil);
    EXPECT_EQ([delegate retainCount], before);
    [shown setDelegate:nil];
}

TEST_F(Alert, WithoutADelegateGoesSilently) {
    UIAlertView *shown = alert(@"OK", nil);
    show(shown);
    delegate->told.clear();
    [shown setDelegate:nil];
    person.answer("OK");
    EXPECT_THAT(delegate->told, IsEmpty());
}

TEST_F(Alert, DismissedInCodeItIsNotClicked) {
    UIAlertView *shown = alert(@"Cancel", @"OK");
    show(shown);
    delegate->told.clear();
    [shown dismissWithClickedButtonIndex:1 animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(delegate->told, ElementsAre("will dismiss 1", "did dismiss 1"));
}

TEST_F(Alert, KeepsItsTag) {
    UIAlertView *shown = alert(@"OK", nil);
    [shown setTag:1004];
    show(shown);
    EXPECT_EQ([shown tag], 1004);
}

TEST_F(Alert, IsWrittenDown) {
    show(alert(@"OK", nil));
    ASSERT_EQ(host::eventTexts(host::EventKind::alert).size(), 1u);
    EXPECT_EQ(host::events().back().text, "Title");
    EXPECT_EQ(host::events().back().detail, "Message");
}

TEST_F(Alert, MayAskForText) {
    UIAlertView *shown = alert(@"Cancel", @"OK");
    [shown setAlertViewStyle:UIAlertViewStyleLoginAndPasswordInput];
    show(shown);
    EXPECT_TRUE([[shown textFieldAtIndex:0] isFirstResponder]);
    EXPECT_EQ(host::perform({.kind = GestureKind::type, .text = "me"}), Outcome::done);
    EXPECT_TRUE([[[shown textFieldAtIndex:0] text] isEqualToString:@"me"]);
    EXPECT_TRUE([[shown textFieldAtIndex:1] isSecureTextEntry]);
    EXPECT_EQ(person.question().all("TextField").size(), 1u);
    EXPECT_EQ(person.question().all("SecureTextField").size(), 1u);
}

class Sheet : public Popup {
protected:
    explicit Sheet(const std::string &version = "8.1") : Popup({.systemVersion = version}) {}

    UIActionSheet *sheet(NSString *cancel, NSString *destructive, NSString *other) {
        return [[[UIActionSheet alloc] initWithTitle:@"Tools"
                                            delegate:delegate
                                   cancelButtonTitle:cancel
                              destructiveButtonTitle:destructive
                                   otherButtonTitles:other, nil] autorelease];
    }

    void show(UIActionSheet *shown) {
        [shown showInView:[page view]];
        host::waitUntilIdle();
    }
};

class SheetOnSeven : public Sheet {
protected:
    SheetOnSeven() : Sheet("7.1.2") {}
};

TEST_F(Sheet, TheDestructiveButtonIsTheFirstAndTheCancelButtonTheLast) {
    UIActionSheet *shown = sheet(@"Cancel", @"Reset", @"Restart");
    EXPECT_EQ([shown destructiveButtonIndex], 0);
    EXPECT_EQ([shown firstOtherButtonIndex], 1);
    EXPECT_EQ([shown cancelButtonIndex], 2);
    EXPECT_TRUE([[shown buttonTitleAtIndex:1] isEqualToString:@"Restart"]);
}

TEST_F(Sheet, WhatIsLeftOutHasNoIndex) {
    UIActionSheet *shown = sheet(nil, nil, @"Restart");
    EXPECT_EQ([shown destructiveButtonIndex], -1);
    EXPECT_EQ([shown firstOtherButtonIndex], 0);
    EXPECT_EQ([shown cancelButtonIndex], -1);
    EXPECT_EQ([sheet(@"Cancel", @"Reset", nil) firstOtherButtonIndex], -1);
    EXPECT_EQ([sheet(@"Cancel", @"Reset", nil) cancelButtonIndex], 1);
}

TEST_F(Sheet, ShowsItsButtonsTheCancelButtonApart) {
    show(sheet(@"Cancel", @"Reset", @"Restart"));
    const Element question = person.question();
    EXPECT_EQ(question.type, "Sheet");
    EXPECT_THAT(person.buttons(), ElementsAre("Reset", "Restart", "Cancel"));
    const auto buttons = question.all("Button");
    EXPECT_EQ(buttons[0]->text("role"), "destructive");
    EXPECT_EQ(buttons[2]->text("role"), "cancel");
    EXPECT_EQ(buttons[1]->rect.y, buttons[0]->rect.y + 44);
    EXPECT_EQ(buttons[2]->rect.y, buttons[1]->rect.y + 44 + 8);
    EXPECT_EQ(buttons[2]->rect.y + 44 + 8, 568);
}

TEST_F(Sheet, ADestructiveButtonThatStandsAloneIsNotMarked) {
    show(sheet(nil, @"Reset", nil));
    EXPECT_EQ(person.question().all("Button").front()->text("role"), "default");
}

TEST_F(Sheet, ATapClicksThenWillAndDidDismiss) {
    show(sheet(@"Cancel", @"Reset", nil));
    person.answer("Reset");
    EXPECT_THAT(delegate->told, ElementsAre("clicked 0", "will dismiss 0", "did dismiss 0"));
    EXPECT_THAT(trace, IsEmpty());
}

TEST_F(Sheet, ATapBesideItCancels) {
    show(sheet(@"Cancel", @"Reset", nil));
    person.tapOutside();
    EXPECT_THAT(delegate->told, ElementsAre("clicked 1", "will dismiss 1", "did dismiss 1"));
    EXPECT_EQ(person.question().type, "");
}

TEST_F(Sheet, ATapBesideOneWithoutACancelButtonIsIgnored) {
    show(sheet(nil, @"Reset", @"Restart"));
    EXPECT_EQ(host::perform({.kind = GestureKind::tapOutside}), Outcome::disabled);
}

TEST_F(SheetOnSeven, ATapBesideItIsIgnored) {
    show(sheet(@"Cancel", @"Reset", nil));
    EXPECT_EQ(host::perform({.kind = GestureKind::tapOutside}), Outcome::disabled);
    EXPECT_EQ(person.question().type, "Sheet");
}

TEST_F(Sheet, IsWrittenDown) {
    show(sheet(@"Cancel", @"Reset", nil));
    EXPECT_THAT(host::eventTexts(host::EventKind::sheet), ElementsAre("Tools"));
}

TEST_F(Sheet, NothingToTapBesideWithoutAQuestion) {
    EXPECT_EQ(host::perform({.kind = GestureKind::tapOutside}), Outcome::notThere);
}

} // namespace
