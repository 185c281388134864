#include "Stage.h"

namespace {

using host::Outcome;
using testing::ElementsAre;
using testing::IsEmpty;

class Switch : public uikit::Stage {
protected:
    Switch() {
        place(control);
        [control addTarget:receiver action:@selector(changed:) forControlEvents:UIControlEventValueChanged];
    }

    UISwitch *control = [[[UISwitch alloc] init] autorelease];
};

TEST_F(Switch, ATapTurnsItOnAndAnotherOff) {
    EXPECT_EQ(tap(control), Outcome::done);
    EXPECT_TRUE([control isOn]);
    EXPECT_EQ(elementOf(control).value, "1");
    EXPECT_EQ(tap(control), Outcome::done);
    EXPECT_FALSE([control isOn]);
    EXPECT_EQ(elementOf(control).value, "0");
    EXPECT_THAT(receiver->told, ElementsAre("changed", "changed"));
}

TEST_F(Switch, SettingItSendsNothing) {
    [control setOn:YES animated:YES];
    EXPECT_TRUE([control isOn]);
    EXPECT_THAT(receiver->told, IsEmpty());
}

TEST_F(Switch, HasOneSize) {
    EXPECT_TRUE(CGSizeEqualToSize([control frame].size, CGSizeMake(51, 31)));
}

TEST_F(Switch, ADisabledOneStaysAsItIs) {
    [control setEnabled:NO];
    EXPECT_EQ(tap(control), Outcome::disabled);
    EXPECT_FALSE([control isOn]);
}

} // namespace
