#include "Stage.h"

namespace {

using host::GestureKind;
using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

class Slider : public uikit::Stage {
protected:
    Slider() {
        place(control);
        [control addTarget:receiver action:@selector(changed:) forControlEvents:UIControlEventValueChanged];
    }

    Outcome slide(double amount) { return perform(control, {.kind = GestureKind::slide, .amount = amount}); }

    UISlider *control = [[[UISlider alloc] init] autorelease];
};

TEST_F(Slider, GoesFromZeroToOneAndStandsAtZero) {
    EXPECT_EQ([control minimumValue], 0);
    EXPECT_EQ([control maximumValue], 1);
    EXPECT_EQ([control value], 0);
    EXPECT_TRUE([control isContinuous]);
}

TEST_F(Slider, KeepsItsValueBetweenTheEnds) {
    [control setValue:7];
    EXPECT_EQ([control value], 1);
    [control setValue:-7];
    EXPECT_EQ([control value], 0);
    [control setMinimumValue:0.5F];
    EXPECT_EQ([control value], 0.5F);
}

TEST_F(Slider, ADragIsHeardOnTheWayWhenContinuous) {
    EXPECT_EQ(slide(0.5), Outcome::done);
    EXPECT_EQ([control value], 0.5F);
    EXPECT_THAT(receiver->told, ElementsAre("changed", "changed"));
}

TEST_F(Slider, ADragIsHeardOnceAtItsEndOtherwise) {
    [control setContinuous:NO];
    EXPECT_EQ(slide(0.75), Outcome::done);
    EXPECT_EQ([control value], 0.75F);
    EXPECT_THAT(receiver->told, ElementsAre("changed"));
}

TEST_F(Slider, ADragStopsAtTheEnd) {
    EXPECT_EQ(slide(100), Outcome::done);
    EXPECT_EQ([control value], 1);
}

TEST_F(Slider, SettingItSendsNothing) {
    [control setValue:0.5F animated:YES];
    EXPECT_THAT(receiver->told, IsEmpty());
}

TEST_F(Slider, ATapOrADisabledSliderDoesNothing) {
    EXPECT_EQ(tap(control), Outcome::disabled);
    [control setEnabled:NO];
    EXPECT_EQ(slide(0.5), Outcome::disabled);
    EXPECT_EQ([control value], 0);
}

TEST_F(Slider, TellsItsEnds) {
    [control setMaximumValue:60];
    [control setValue:1.5F];
    const host::Element element = elementOf(control);
    EXPECT_EQ(element.amount("minimum"), 0);
    EXPECT_EQ(element.amount("maximum"), 60);
    EXPECT_EQ(element.value, "1.5");
}

} // namespace
