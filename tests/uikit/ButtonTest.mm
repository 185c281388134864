#include "Stage.h"

namespace {

using testing::ElementsAre;

class Button : public uikit::Stage {
protected:
    Button() { place(button); }

    UIButton *button = [UIButton buttonWithType:UIButtonTypeSystem];
};

TEST_F(Button, ATapSendsTouchUpInside) {
    [button setTitle:@"Test" forState:UIControlStateNormal];
    [button addTarget:receiver action:@selector(sent:) forControlEvents:UIControlEventTouchUpInside];
    person.tapButton("Test");
    EXPECT_THAT(receiver->told, ElementsAre("sent"));
    EXPECT_EQ(receiver->sender, button);
}

TEST_F(Button, WhatAStateDoesNotSetIsTakenFromNormal) {
    [button setTitle:@"On" forState:UIControlStateNormal];
    [button setTitle:@"Off" forState:UIControlStateDisabled];
    EXPECT_TRUE([[button titleForState:UIControlStateSelected] isEqualToString:@"On"]);
    [button setEnabled:NO];
    EXPECT_TRUE([[button currentTitle] isEqualToString:@"Off"]);
    EXPECT_TRUE([[[button titleLabel] text] isEqualToString:@"Off"]);
}

TEST_F(Button, ASystemButtonHasTheTintAndACustomOneIsWhite) {
    EXPECT_TRUE([[button currentTitleColor] isEqual:[button tintColor]]);
    UIButton *custom = [UIButton buttonWithType:UIButtonTypeCustom];
    EXPECT_TRUE([[custom currentTitleColor] isEqual:[UIColor whiteColor]]);
}

TEST_F(Button, TellsItsTitleAsItsOwnAndNotAsAText) {
    [button setTitle:@"Test" forState:UIControlStateNormal];
    const host::Element element = elementOf(button);
    EXPECT_EQ(element.label, "Test");
    EXPECT_TRUE(element.children.empty());
}

TEST_F(Button, FitsItsTitle) {
    [button sizeToFit];
    const CGFloat empty = [button frame].size.width;
    [button setTitle:@"A wider button" forState:UIControlStateNormal];
    [button sizeToFit];
    EXPECT_GT([button frame].size.width, empty + 50);
}

} // namespace
