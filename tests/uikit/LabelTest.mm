#include "Stage.h"

namespace {

class Label : public uikit::Stage {
protected:
    Label() { place(label); }

    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
};

TEST_F(Label, WithoutTextIsNotShown) {
    EXPECT_EQ(elementOf(label).type, "");
}

TEST_F(Label, ShowsItsTextAndLook) {
    [label setText:@"黑名单 ☎️"];
    [label setFont:[UIFont boldSystemFontOfSize:16]];
    [label setTextColor:[UIColor grayColor]];
    [label setTextAlignment:NSTextAlignmentRight];
    const host::Element element = elementOf(label);
    EXPECT_EQ(element.type, "StaticText");
    EXPECT_EQ(element.label, "黑名单 ☎️");
    EXPECT_EQ(element.amount("size"), 16);
    EXPECT_EQ(element.text("weight"), "bold");
    EXPECT_EQ(element.text("color"), "#808080");
    EXPECT_EQ(element.text("align"), "right");
}

TEST_F(Label, SizeToFitOfNoTextIsZero) {
    [label setText:nil];
    [label sizeToFit];
    EXPECT_TRUE(CGSizeEqualToSize([label frame].size, CGSizeZero));
}

TEST_F(Label, SizeToFitTakesTheTextsOwnWidth) {
    [label setText:@"One line that is wider than the label, which does not matter"];
    [label sizeToFit];
    EXPECT_GT([label frame].size.width, 200);
    EXPECT_LT([label frame].size.height, 30);
}

TEST_F(Label, ALabelOfSeveralLinesKeepsItsWidth) {
    [label setText:@"Several lines that are wider than the label and so are wrapped into it"];
    [label setNumberOfLines:0];
    [label sizeToFit];
    EXPECT_LE([label frame].size.width, 200);
    EXPECT_GT([label frame].size.height, 40);
}

TEST_F(Label, TextIsMadeSmallerToFitDownToItsLimit) {
    [label setText:@"A title that is far too long for two hundred points"];
    [label setAdjustsFontSizeToFitWidth:YES];
    const double fitted = elementOf(label).amount("size");
    EXPECT_LT(fitted, 17);
    [label setMinimumScaleFactor:0.9];
    EXPECT_DOUBLE_EQ(elementOf(label).amount("size"), 17 * 0.9);
}

TEST_F(Label, TakesNoTouches) {
    [label setText:@"text"];
    EXPECT_FALSE([label isUserInteractionEnabled]);
    EXPECT_EQ(tap(label), host::Outcome::disabled);
}

TEST_F(Label, AnAccessibilityLabelAndIdentifierAreTold) {
    [label setText:@"7"];
    [label setAccessibilityLabel:@"seven entries"];
    [label setAccessibilityIdentifier:@"count"];
    EXPECT_EQ(elementOf(label).label, "seven entries");
    EXPECT_EQ(elementOf(label).identifier, "count");
}

} // namespace
