#include "Stage.h"

#include "UIKit/UIView+Host.h"

/// Writes down what a text field asks and tells, and answers as it is set.
@interface FieldDelegate : NSObject <UITextFieldDelegate> {
@public
    uikit::Trace told;
    BOOL begins, ends, changes, clears, returns;
}
@end

@implementation FieldDelegate

- (id)init {
    if ((self = [super init]))
        begins = ends = changes = clears = returns = YES;
    return self;
}

- (BOOL)textFieldShouldBeginEditing:(UITextField *)field {
    told.emplace_back("should begin");
    return begins;
}

- (void)textFieldDidBeginEditing:(UITextField *)field {
    told.emplace_back("did begin");
}

- (BOOL)textFieldShouldEndEditing:(UITextField *)field {
    told.emplace_back("should end");
    return ends;
}

- (void)textFieldDidEndEditing:(UITextField *)field {
    told.emplace_back("did end");
}

- (BOOL)textField:(UITextField *)field
    shouldChangeCharactersInRange:(NSRange)range
                replacementString:(NSString *)string {
    told.push_back("should change " + std::to_string(range.location) + "+" + std::to_string(range.length) +
                   " \"" + [string UTF8String] + "\"");
    return changes;
}

- (BOOL)textFieldShouldClear:(UITextField *)field {
    told.emplace_back("should clear");
    return clears;
}

- (BOOL)textFieldShouldReturn:(UITextField *)field {
    told.emplace_back("should return");
    return returns;
}

@end

namespace {

using host::Element;
using host::GestureKind;
using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

class TextField : public uikit::Stage {
protected:
    TextField() {
        place(field);
        place(other, 200);
        [other setPlaceholder:@"Other"];
    }

    Outcome type(const char *text) { return perform(field, {.kind = GestureKind::type, .text = text}); }
    Outcome replace(const char *text) { return perform(field, {.kind = GestureKind::replace, .text = text}); }
    static Outcome press(GestureKind kind) { return host::perform({.kind = kind}); }

    static bool keyboardIsUp() { return !host::screen().all("Keyboard").empty(); }
    static std::string text(UITextField *of) { return [[of text] UTF8String]; }

    UITextField *field = [[[UITextField alloc] init] autorelease];
    UITextField *other = [[[UITextField alloc] init] autorelease];
    FieldDelegate *delegate = [[[FieldDelegate alloc] init] autorelease];
};

TEST_F(TextField, ItsTextIsNeverNil) {
    EXPECT_EQ(text(field), "");
    [field setText:@"a"];
    [field setText:nil];
    ASSERT_NE([field text], nil);
    EXPECT_EQ(text(field), "");
}

TEST_F(TextField, BeginsAsAPlainField) {
    EXPECT_EQ([field borderStyle], UITextBorderStyleNone);
    EXPECT_EQ([field clearButtonMode], UITextFieldViewModeNever);
    EXPECT_EQ([field keyboardType], UIKeyboardTypeDefault);
    EXPECT_EQ([field minimumFontSize], 0);
    EXPECT_FALSE([field isSecureTextEntry]);
}

TEST_F(TextField, ATapGivesItTheKeyboard) {
    EXPECT_FALSE(keyboardIsUp());
    EXPECT_EQ(tap(field), Outcome::done);
    EXPECT_TRUE([field isFirstResponder]);
    EXPECT_TRUE([field isEditing]);
    EXPECT_TRUE(keyboardIsUp());
    EXPECT_TRUE(elementOf(field).flag("focused"));
    EXPECT_EQ(host::screen().all("Keyboard").front()->amount("field"), double([field _hostNumber]));
}

TEST_F(TextField, TypingAddsCharacterByCharacterAtTheEnd) {
    [field setText:@"0"];
    [field addTarget:receiver action:@selector(changed:) forControlEvents:UIControlEventEditingChanged];
    EXPECT_EQ(type("86"), Outcome::done);
    EXPECT_EQ(text(field), "086");
    EXPECT_THAT(receiver->told, ElementsAre("changed", "changed"));
}

TEST_F(TextField, TypingAnEmojiIsOneChange) {
    [field setDelegate:delegate];
    EXPECT_EQ(type("a😀b"), Outcome::done);
    EXPECT_EQ(text(field), "a😀b");
    EXPECT_THAT(delegate->told, ElementsAre("should begin", "did begin", "should change 0+0 \"a\"",
                                            "should change 1+0 \"😀\"", "should change 3+0 \"b\""));
}

TEST_F(TextField, ReplacingTakesTheOldTextOutFirst) {
    [field setText:@"old"];
    EXPECT_EQ(replace("新"), Outcome::done);
    EXPECT_EQ(text(field), "新");
    EXPECT_EQ(replace(""), Outcome::done);
    EXPECT_EQ(text(field), "");
}

TEST_F(TextField, WithoutANameTypingGoesToTheFocusedField) {
    EXPECT_EQ(host::perform({.kind = GestureKind::type, .text = "1"}), Outcome::notThere);
    [other becomeFirstResponder];
    EXPECT_EQ(host::perform({.kind = GestureKind::type, .text = "1"}), Outcome::done);
    EXPECT_EQ(text(other), "1");
    EXPECT_EQ(text(field), "");
}

TEST_F(TextField, SettingTheTextSendsNothing) {
    [field setDelegate:delegate];
    [field addTarget:receiver action:@selector(changed:) forControlEvents:UIControlEventEditingChanged];
    [field setText:@"1"];
    EXPECT_THAT(receiver->told, IsEmpty());
    EXPECT_THAT(delegate->told, IsEmpty());
}

TEST_F(TextField, TheDelegateMayRefuseAChange) {
    [field setDelegate:delegate];
    delegate->changes = NO;
    [field setText:@"kept"];
    EXPECT_EQ(type("x"), Outcome::done);
    EXPECT_EQ(text(field), "kept");
    EXPECT_EQ(replace("x"), Outcome::disabled);
    EXPECT_EQ(text(field), "kept");
}

TEST_F(TextField, TheDelegateMayRefuseTheKeyboard) {
    [field setDelegate:delegate];
    delegate->begins = NO;
    EXPECT_EQ(tap(field), Outcome::disabled);
    EXPECT_FALSE([field isFirstResponder]);
}

TEST_F(TextField, TheDelegateMayKeepTheKeyboard) {
    [field setDelegate:delegate];
    delegate->ends = NO;
    [field becomeFirstResponder];
    EXPECT_FALSE([other becomeFirstResponder]);
    EXPECT_TRUE([field isFirstResponder]);
    EXPECT_FALSE([[page view] endEditing:NO]);
    EXPECT_TRUE([[page view] endEditing:YES]);
    EXPECT_FALSE([field isFirstResponder]);
    EXPECT_EQ(delegate->told.back(), "did end");
}

TEST_F(TextField, AnotherFieldTakesTheKeyboardOver) {
    [field setDelegate:delegate];
    [field addTarget:receiver action:@selector(begun:) forControlEvents:UIControlEventEditingDidBegin];
    [field addTarget:receiver action:@selector(ended:) forControlEvents:UIControlEventEditingDidEnd];
    [field becomeFirstResponder];
    [other becomeFirstResponder];
    EXPECT_THAT(delegate->told, ElementsAre("should begin", "did begin", "should end", "did end"));
    EXPECT_THAT(receiver->told, ElementsAre("begun", "ended"));
    EXPECT_TRUE([other isFirstResponder]);
}

TEST_F(TextField, FocusAskedForBeforeThereIsAWindowComesWithTheWindow) {
    UITextField *early = [[[UITextField alloc] init] autorelease];
    [early becomeFirstResponder];
    EXPECT_FALSE([early isFirstResponder]);
    place(early, 300);
    EXPECT_TRUE([early isFirstResponder]);
}

TEST_F(TextField, TheLastEarlyRequestForFocusWins) {
    UITextField *first = [[[UITextField alloc] init] autorelease];
    UITextField *second = [[[UITextField alloc] init] autorelease];
    [first becomeFirstResponder];
    [second becomeFirstResponder];
    place(second, 300);
    place(first, 350);
    EXPECT_TRUE([second isFirstResponder]);
}

TEST_F(TextField, AnEarlyRequestIsForgottenWhenAFieldWithAWindowGetsTheFocus) {
    UITextField *early = [[[UITextField alloc] init] autorelease];
    [early becomeFirstResponder];
    [field becomeFirstResponder];
    place(early, 300);
    EXPECT_TRUE([field isFirstResponder]);
}

TEST_F(TextField, AnEarlyRequestDiesWithItsField) {
    UITextField *early = [[UITextField alloc] init];
    [early becomeFirstResponder];
    [early release];
    place([[[UITextField alloc] init] autorelease], 300);
    EXPECT_FALSE(keyboardIsUp());
}

TEST_F(TextField, AFieldThatLeavesTheScreenEndsEditing) {
    [field setDelegate:delegate];
    delegate->ends = NO;
    [field becomeFirstResponder];
    [field removeFromSuperview];
    EXPECT_FALSE([field isFirstResponder]);
    EXPECT_EQ(delegate->told.back(), "did end");
    EXPECT_FALSE(keyboardIsUp());
}

TEST_F(TextField, LeavingThePageEndsEditing) {
    [field setDelegate:delegate];
    [field becomeFirstResponder];
    [[page navigationController] pushViewController:[TracedPage named:"Next" in:trace] animated:YES];
    host::waitUntilIdle();
    EXPECT_EQ(delegate->told.back(), "did end");
    EXPECT_FALSE(keyboardIsUp());
}

TEST_F(TextField, ReturnAsksTheDelegateAndIsHeardOnExit) {
    [field setDelegate:delegate];
    [field addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventEditingDidEndOnExit];
    [field becomeFirstResponder];
    EXPECT_EQ(press(GestureKind::returnKey), Outcome::done);
    EXPECT_THAT(receiver->told, ElementsAre("plain"));
    EXPECT_FALSE([field isFirstResponder]);
    EXPECT_THAT(delegate->told,
                ElementsAre("should begin", "did begin", "should return", "should end", "did end"));
}

TEST_F(TextField, ReturnWithoutAnybodyListeningKeepsTheKeyboard) {
    [field becomeFirstResponder];
    EXPECT_EQ(press(GestureKind::returnKey), Outcome::done);
    EXPECT_TRUE([field isFirstResponder]);
}

TEST_F(TextField, ADelegateThatRefusesReturnSilencesIt) {
    [field setDelegate:delegate];
    delegate->returns = NO;
    [field addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventEditingDidEndOnExit];
    [field becomeFirstResponder];
    EXPECT_EQ(press(GestureKind::returnKey), Outcome::done);
    EXPECT_THAT(receiver->told, IsEmpty());
}

class KeyboardsWithoutReturn : public TextField, public testing::WithParamInterface<UIKeyboardType> {};

TEST_P(KeyboardsWithoutReturn, CannotPressIt) {
    [field setKeyboardType:GetParam()];
    [field becomeFirstResponder];
    EXPECT_EQ(press(GestureKind::returnKey), Outcome::disabled);
    EXPECT_EQ(host::screen().all("Keyboard").front()->amount("keyboard"), double(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(TextField, KeyboardsWithoutReturn,
                         testing::Values(UIKeyboardTypeNumberPad, UIKeyboardTypePhonePad,
                                         UIKeyboardTypeDecimalPad));

TEST_F(TextField, WhatIsPastedIsNotFilteredByANumberPad) {
    [field setKeyboardType:UIKeyboardTypeNumberPad];
    EXPECT_EQ(type("12-ab"), Outcome::done);
    EXPECT_EQ(text(field), "12-ab");
}

TEST_F(TextField, TheClearButtonShowsInItsModeWhereThereIsText) {
    [field setClearButtonMode:UITextFieldViewModeWhileEditing];
    [field setText:@"text"];
    EXPECT_FALSE(elementOf(field).flag("clear"));
    EXPECT_EQ(perform(field, {.kind = GestureKind::clear}), Outcome::disabled);
    [field becomeFirstResponder];
    EXPECT_TRUE(elementOf(field).flag("clear"));
    EXPECT_EQ(perform(field, {.kind = GestureKind::clear}), Outcome::done);
    EXPECT_EQ(text(field), "");
    EXPECT_FALSE(elementOf(field).flag("clear"));
}

TEST_F(TextField, TheDelegateMayRefuseToClear) {
    [field setDelegate:delegate];
    delegate->clears = NO;
    [field setClearButtonMode:UITextFieldViewModeAlways];
    [field setText:@"text"];
    EXPECT_EQ(perform(field, {.kind = GestureKind::clear}), Outcome::done);
    EXPECT_EQ(text(field), "text");
}

TEST_F(TextField, MayBeEmptiedWhenEditingBegins) {
    [field setClearsOnBeginEditing:YES];
    [field setText:@"old"];
    EXPECT_EQ(type("n"), Outcome::done);
    EXPECT_EQ(text(field), "n");
}

TEST_F(TextField, ASecureFieldShowsDots) {
    [field setSecureTextEntry:YES];
    [field setText:@"geheim"];
    EXPECT_EQ(elementOf(field).type, "SecureTextField");
    EXPECT_EQ(elementOf(field).value, "••••••");
}

TEST_F(TextField, TextIsMadeSmallerToFit) {
    [field setAdjustsFontSizeToFitWidth:YES];
    [field setText:@"a number that is much too long for its field"];
    EXPECT_LT(elementOf(field).amount("size"), 17);
    [field setMinimumFontSize:15];
    EXPECT_EQ(elementOf(field).amount("size"), 15);
}

TEST_F(TextField, ADisabledFieldTakesNothing) {
    [field setEnabled:NO];
    EXPECT_EQ(tap(field), Outcome::disabled);
    EXPECT_EQ(type("1"), Outcome::disabled);
    EXPECT_FALSE([field becomeFirstResponder]);
}

TEST_F(TextField, FocusIsForgottenWithTheField) {
    @autoreleasepool {
        UITextField *mortal = [[[UITextField alloc] init] autorelease];
        place(mortal, 300);
        [mortal becomeFirstResponder];
        [mortal removeFromSuperview];
    }
    EXPECT_FALSE(keyboardIsUp());
}

TEST_F(TextField, DoesNotKeepItsDelegateAlive) {
    const NSUInteger before = [delegate retainCount];
    [field setDelegate:delegate];
    EXPECT_EQ([delegate retainCount], before);
}

TEST_F(TextField, APersonTypesByThePlaceholder) {
    person.type("Other", "42");
    EXPECT_EQ(text(other), "42");
    person.retype("Other", "7");
    EXPECT_EQ(text(other), "7");
}

} // namespace
