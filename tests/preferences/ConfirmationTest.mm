// Questions before an action. The music player's page overrides the delegate methods of alerts and sheets
// without calling super, so all of this also proves that its questions do not depend on them.
#include "preferences/PreferencesTest.h"

using preferences::stored;
using preferences::storedText;
using preferences::trace;
using testing::ElementsAre;

namespace {

class Confirmation : public preferences::Test {
protected:
    PSListController *page = preferences::open("Jukebox");
};

TEST_F(Confirmation, ADestructiveButtonAsksInASheet) {
    person.tap("Sign Out");
    const host::Element question = person.question();
    EXPECT_EQ(question.type, "Sheet");
    EXPECT_EQ(trace(), "");
    const auto buttons = question.all("Button");
    ASSERT_EQ(buttons.size(), 2u);
    EXPECT_EQ(buttons[0]->label, "Sign Out");
    EXPECT_EQ(buttons[0]->text("role"), "destructive");
    EXPECT_EQ(buttons[1]->label, "Stay");
    EXPECT_EQ(buttons[1]->text("role"), "cancel");
}

TEST_F(Confirmation, OkPerformsTheAction) {
    person.tap("Sign Out");
    person.answer("Sign Out");
    EXPECT_EQ(trace(), "signed out");
    EXPECT_EQ(person.question().type, "");
}

TEST_F(Confirmation, CancelPerformsTheCancelAction) {
    person.tap("Sign Out");
    person.answer("Stay");
    EXPECT_EQ(trace(), "stayed");
}

TEST_F(Confirmation, TheQuestionCanBeAskedAgain) {
    person.tap("Sign Out");
    person.answer("Stay");
    person.tap("Sign Out");
    person.answer("Sign Out");
    EXPECT_EQ(trace(), "signed out");
}

TEST_F(Confirmation, ASwitchAsksInAnAlertBeforeItStores) {
    person.tap("Share What I Hear");
    const host::Element question = person.question();
    EXPECT_EQ(question.type, "Alert");
    EXPECT_TRUE(person.sees("Share?"));
    EXPECT_TRUE(person.sees("Friends will see every song."));
    EXPECT_EQ(stored(preferences::jukebox, "share"), nil);
}

TEST_F(Confirmation, OkStoresTheSwitch) {
    person.tap("Share What I Hear");
    person.answer("Share");
    EXPECT_EQ(storedText(preferences::jukebox, "share"), "true");
    EXPECT_EQ(person.valueOf("Share What I Hear"), "1");
}

TEST_F(Confirmation, CancelPutsTheSwitchBack) {
    person.tap("Share What I Hear");
    person.answer("Keep Private");
    EXPECT_EQ(stored(preferences::jukebox, "share"), nil);
    EXPECT_EQ(person.valueOf("Share What I Hear"), "0");
    EXPECT_EQ(trace(), "not shared");
}

TEST_F(Confirmation, SwitchingOffAsksToo) {
    person.tap("Share What I Hear");
    person.answer("Share");
    person.tap("Share What I Hear");
    person.answer("Share");
    EXPECT_EQ(storedText(preferences::jukebox, "share"), "false");
}

TEST_F(Confirmation, ButtonsWithoutTitlesAreTheSystems) {
    PSSpecifier *button =
        [PSSpecifier buttonSpecifierWithTitle:@"Erase"
                                       target:page
                                       action:@selector(playSomething)
                             confirmationInfo:[NSDictionary dictionaryWithObject:@"Erase?" forKey:@"prompt"]];
    [page insertSpecifier:button atIndex:0];
    person.tap("Erase");
    EXPECT_THAT(person.buttons(), ElementsAre("Cancel", "OK"));
    person.answer("OK");
    EXPECT_EQ(trace(), "playing");
}

TEST_F(Confirmation, APageThatGoesLeavesItsQuestionWithoutEffect) {
    person.tap("Sign Out");
    @autoreleasepool {
        [[page navigationController] popViewControllerAnimated:NO];
        host::waitUntilIdle();
    }
    person.answer("Sign Out");
    EXPECT_EQ(trace(), "");
}

} // namespace
