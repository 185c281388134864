#include "Stage.h"

/// Writes down what a text view asks and tells.
@interface TextViewDelegate : NSObject <UITextViewDelegate> {
@public
    uikit::Trace told;
    BOOL changes;
}
@end

@implementation TextViewDelegate

- (BOOL)textViewShouldBeginEditing:(UITextView *)view {
    told.emplace_back("should begin");
    return YES;
}

- (void)textViewDidBeginEditing:(UITextView *)view {
    told.emplace_back("did begin");
}

- (BOOL)textViewShouldEndEditing:(UITextView *)view {
    told.emplace_back("should end");
    return YES;
}

- (void)textViewDidEndEditing:(UITextView *)view {
    told.emplace_back("did end");
}

- (BOOL)textView:(UITextView *)view shouldChangeTextInRange:(NSRange)range replacementText:(NSString *)text {
    return changes;
}

- (void)textViewDidChange:(UITextView *)view {
    told.emplace_back("did change");
}

@end

namespace {

using host::GestureKind;
using host::Outcome;
using testing::ElementsAre;

class TextView : public uikit::Stage {
protected:
    TextView() {
        place(view, 100, 300, 120);
        [view setDelegate:delegate];
        delegate->changes = YES;
    }

    [[nodiscard]] std::string text() const { return [[view text] UTF8String]; }

    UITextView *view = [[[UITextView alloc] initWithFrame:CGRectZero] autorelease];
    TextViewDelegate *delegate = [[[TextViewDelegate alloc] init] autorelease];
};

TEST_F(TextView, ItsTextIsNeverNil) {
    EXPECT_EQ(text(), "");
    [view setText:nil];
    EXPECT_EQ(text(), "");
}

TEST_F(TextView, IsTypedIntoAndReturnIsANewLine) {
    EXPECT_EQ(perform(view, {.kind = GestureKind::type, .text = "a"}), Outcome::done);
    EXPECT_EQ(host::perform({.kind = GestureKind::returnKey}), Outcome::done);
    EXPECT_EQ(host::perform({.kind = GestureKind::type, .text = "b"}), Outcome::done);
    EXPECT_EQ(text(), "a\nb");
    [view resignFirstResponder];
    EXPECT_THAT(delegate->told, ElementsAre("should begin", "did begin", "did change", "did change",
                                            "did change", "should end", "did end"));
}

TEST_F(TextView, TheDelegateMayRefuseAChange) {
    delegate->changes = NO;
    EXPECT_EQ(perform(view, {.kind = GestureKind::type, .text = "a"}), Outcome::done);
    EXPECT_EQ(text(), "");
}

TEST_F(TextView, OneThatIsOnlyReadTakesNoKeyboard) {
    [view setEditable:NO];
    [view setText:@"Read me"];
    EXPECT_EQ(tap(view), Outcome::disabled);
    EXPECT_EQ(elementOf(view).type, "TextView");
    EXPECT_EQ(elementOf(view).value, "Read me");
}

TEST_F(TextView, ItsContentGrowsWithTheText) {
    [view setText:@"one"];
    const CGFloat one = [view contentSize].height;
    [view setText:@"one\ntwo\nthree"];
    EXPECT_GT([view contentSize].height, one);
}

} // namespace
