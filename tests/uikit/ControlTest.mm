#include "Stage.h"

namespace {

using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

class Control : public uikit::Stage {
protected:
    Control() { place(control); }

    UIControl *control = [[[UIControl alloc] initWithFrame:CGRectZero] autorelease];
};

TEST_F(Control, ATapSendsTouchDownAndThenTouchUpInside) {
    [control addTarget:receiver action:@selector(begun:) forControlEvents:UIControlEventTouchDown];
    [control addTarget:receiver action:@selector(ended:) forControlEvents:UIControlEventTouchUpInside];
    EXPECT_EQ(tap(control), Outcome::done);
    EXPECT_THAT(receiver->told, ElementsAre("begun", "ended"));
}

TEST_F(Control, AnActionTakesNothingOrTheSenderOrTheSenderAndAnEvent) {
    [control addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventTouchUpInside];
    [control addTarget:receiver action:@selector(sent:) forControlEvents:UIControlEventTouchUpInside];
    [control addTarget:receiver action:@selector(sent:event:) forControlEvents:UIControlEventTouchUpInside];
    [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    EXPECT_THAT(receiver->told, ElementsAre("plain", "sent", "sent with event"));
    EXPECT_EQ(receiver->sender, control);
}

TEST_F(Control, OneActionForSeveralEventsIsSentOnce) {
    [control addTarget:receiver
                  action:@selector(plain)
        forControlEvents:UIControlEventTouchUpInside | UIControlEventValueChanged];
    [control sendActionsForControlEvents:UIControlEventTouchUpInside | UIControlEventValueChanged];
    EXPECT_THAT(receiver->told, ElementsAre("plain"));
}

TEST_F(Control, ARemovedActionIsNotSent) {
    [control addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventAllEvents];
    [control removeTarget:receiver action:@selector(plain) forControlEvents:UIControlEventTouchUpInside];
    [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    EXPECT_THAT(receiver->told, IsEmpty());
    [control sendActionsForControlEvents:UIControlEventTouchDown];
    EXPECT_THAT(receiver->told, ElementsAre("plain"));
}

TEST_F(Control, NilRemovesAllTargets) {
    [control addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventTouchUpInside];
    [control removeTarget:nil action:nullptr forControlEvents:UIControlEventAllEvents];
    EXPECT_EQ([[control allTargets] count], 0u);
}

TEST_F(Control, TellsTheActionsOfATarget) {
    [control addTarget:receiver action:@selector(sent:) forControlEvents:UIControlEventTouchUpInside];
    EXPECT_TRUE(([[control actionsForTarget:receiver
                            forControlEvent:UIControlEventTouchUpInside] isEqual:@[ @"sent:" ]]));
    EXPECT_EQ([control actionsForTarget:receiver forControlEvent:UIControlEventTouchDown], nil);
}

TEST_F(Control, DoesNotKeepItsTargetAlive) {
    const NSUInteger before = [receiver retainCount];
    [control addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventTouchUpInside];
    EXPECT_EQ([receiver retainCount], before);
}

TEST_F(Control, WithoutATargetTheActionGoesUpToWhoeverAnswers) {
    [control addTarget:nil action:@selector(heard:) forControlEvents:UIControlEventTouchUpInside];
    [control sendActionsForControlEvents:UIControlEventTouchUpInside];
    EXPECT_THAT(trace, ElementsAre("Page heard"));
}

TEST_F(Control, ADisabledControlTakesNoTap) {
    [control addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventTouchUpInside];
    [control setEnabled:NO];
    EXPECT_EQ(tap(control), Outcome::disabled);
    EXPECT_FALSE(elementOf(control).enabled);
    EXPECT_THAT(receiver->told, IsEmpty());
}

TEST_F(Control, AControlInAViewThatTakesNoTouchesTakesNoTap) {
    UIView *shield = [[[UIView alloc] init] autorelease];
    place(shield);
    [shield addSubview:control];
    [shield setUserInteractionEnabled:NO];
    EXPECT_EQ(tap(control), Outcome::disabled);
}

TEST_F(Control, AHiddenControlIsNotThere) {
    [control setHidden:YES];
    EXPECT_EQ(tap(control), Outcome::notThere);
    [control setHidden:NO];
    [control setAlpha:0];
    EXPECT_EQ(tap(control), Outcome::notThere);
}

TEST_F(Control, AControlThatIsNotOnTheScreenIsNotThere) {
    [control removeFromSuperview];
    EXPECT_EQ(tap(control), Outcome::notThere);
}

TEST_F(Control, MayBeFreedByItsOwnAction) {
    UIControl *mortal = [[UIControl alloc] initWithFrame:CGRectZero];
    place(mortal);
    [mortal addTarget:mortal
                  action:@selector(removeFromSuperview)
        forControlEvents:UIControlEventTouchUpInside];
    [mortal addTarget:receiver action:@selector(plain) forControlEvents:UIControlEventTouchUpInside];
    [mortal release];
    EXPECT_EQ(tap(mortal), Outcome::done);
    EXPECT_THAT(receiver->told, ElementsAre("plain"));
}

TEST_F(Control, StateNamesWhatIsSet) {
    EXPECT_EQ([control state], UIControlStateNormal);
    [control setSelected:YES];
    [control setEnabled:NO];
    EXPECT_EQ([control state], (UIControlState)(UIControlStateSelected | UIControlStateDisabled));
}

} // namespace
