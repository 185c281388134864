#include "Stage.h"

namespace {

using host::Element;
using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

class SegmentedControl : public uikit::Stage {
protected:
    SegmentedControl() {
        place(control);
        [control addTarget:receiver action:@selector(changed:) forControlEvents:UIControlEventValueChanged];
    }

    Outcome tapSegment(const char *part) { return perform(control, {.part = part}); }

    UISegmentedControl *control =
        [[[UISegmentedControl alloc] initWithItems:@[ @"Off", @"Weak", @"Strong" ]] autorelease];
};

TEST_F(SegmentedControl, NothingIsChosenAtFirst) {
    EXPECT_EQ([control selectedSegmentIndex], (NSInteger)UISegmentedControlNoSegment);
    EXPECT_EQ([control numberOfSegments], 3u);
    EXPECT_TRUE([[control titleForSegmentAtIndex:1] isEqualToString:@"Weak"]);
}

TEST_F(SegmentedControl, ATapChoosesASegmentAndIsHeard) {
    EXPECT_EQ(tapSegment("2"), Outcome::done);
    EXPECT_EQ([control selectedSegmentIndex], 2);
    EXPECT_THAT(receiver->told, ElementsAre("changed"));
}

TEST_F(SegmentedControl, ATapOnTheChosenSegmentIsNotHeard) {
    [control setSelectedSegmentIndex:2];
    EXPECT_EQ(tapSegment("2"), Outcome::done);
    EXPECT_THAT(receiver->told, IsEmpty());
}

TEST_F(SegmentedControl, AMomentaryChoiceDoesNotStay) {
    [control setMomentary:YES];
    EXPECT_EQ(tapSegment("1"), Outcome::done);
    EXPECT_THAT(receiver->told, ElementsAre("changed"));
    EXPECT_EQ([control selectedSegmentIndex], (NSInteger)UISegmentedControlNoSegment);
}

TEST_F(SegmentedControl, ADisabledSegmentTakesNoTap) {
    [control setEnabled:NO forSegmentAtIndex:1];
    EXPECT_EQ(tapSegment("1"), Outcome::disabled);
    EXPECT_EQ([control selectedSegmentIndex], (NSInteger)UISegmentedControlNoSegment);
}

TEST_F(SegmentedControl, ASegmentThatIsNotThereTakesNoTap) {
    EXPECT_EQ(tapSegment("3"), Outcome::notThere);
    EXPECT_EQ(tapSegment(""), Outcome::disabled);
}

TEST_F(SegmentedControl, ShowsItsSegmentsSideBySideTheChosenOneSelected) {
    [control setSelectedSegmentIndex:1];
    const Element element = elementOf(control);
    ASSERT_EQ(element.children.size(), 3u);
    EXPECT_EQ(element.children[1].label, "Weak");
    EXPECT_TRUE(element.children[1].selected);
    EXPECT_FALSE(element.children[0].selected);
    EXPECT_EQ(element.children[1].rect.x, element.rect.x + element.rect.width / 3);
}

TEST_F(SegmentedControl, RemovingASegmentBeforeTheChosenOneKeepsTheChoice) {
    [control setSelectedSegmentIndex:2];
    [control removeSegmentAtIndex:0 animated:NO];
    EXPECT_EQ([control selectedSegmentIndex], 1);
    [control removeSegmentAtIndex:1 animated:NO];
    EXPECT_EQ([control selectedSegmentIndex], (NSInteger)UISegmentedControlNoSegment);
}

TEST_F(SegmentedControl, ChoosingASegmentThatIsNotThereRaises) {
    bool raised = false;
    @try {
        [control setSelectedSegmentIndex:3];
    } @catch (NSException *exception) {
        raised = [[exception name] isEqualToString:NSRangeException];
    }
    EXPECT_TRUE(raised);
}

} // namespace
