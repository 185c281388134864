// Alerts and sheets that the system takes away.
#include "PlainAnswers.h"

/// Wants to know when the system cancels.
@interface CancelAnswers : PlainAnswers
@end

@implementation CancelAnswers

- (void)alertViewCancel:(UIAlertView *)alert {
    told.emplace_back("cancelled");
}

- (void)actionSheetCancel:(UIActionSheet *)sheet {
    told.emplace_back("cancelled");
}

@end

namespace {

using testing::ElementsAre;

class SystemCancel : public uikit::Stage {
protected:
    void ask(PlainAnswers *delegate, NSString *cancel) {
        [[[[UIAlertView alloc] initWithTitle:@"Sure?"
                                     message:nil
                                    delegate:delegate
                           cancelButtonTitle:cancel
                           otherButtonTitles:@"Yes", nil] autorelease] show];
    }

    void choose(PlainAnswers *delegate, NSString *cancel) {
        [[[[UIActionSheet alloc] initWithTitle:@"Which?"
                                      delegate:delegate
                             cancelButtonTitle:cancel
                        destructiveButtonTitle:nil
                             otherButtonTitles:@"One", nil] autorelease] showInView:nil];
    }

    PlainAnswers *plain = [[[PlainAnswers alloc] init] autorelease];
    CancelAnswers *attentive = [[[CancelAnswers alloc] init] autorelease];
};

TEST_F(SystemCancel, OfAnAlertIsToldInPlaceOfAClick) {
    ask(attentive, @"No");
    EXPECT_TRUE(host::cancelQuestion());
    EXPECT_THAT(attentive->told, ElementsAre("cancelled", "will dismiss 0", "did dismiss 0"));
    EXPECT_EQ(person.question().type, "");
}

TEST_F(SystemCancel, OfAnAlertIsAClickOnItsCancelButtonOtherwise) {
    ask(plain, @"No");
    EXPECT_TRUE(host::cancelQuestion());
    EXPECT_THAT(plain->told, ElementsAre("clicked 0", "will dismiss 0", "did dismiss 0"));
}

TEST_F(SystemCancel, OfAnAlertWithoutACancelButtonClicksNothing) {
    ask(plain, nil);
    EXPECT_TRUE(host::cancelQuestion());
    EXPECT_THAT(plain->told, ElementsAre("will dismiss -1", "did dismiss -1"));
}

TEST_F(SystemCancel, OfASheetIsToldInPlaceOfAClick) {
    choose(attentive, @"None");
    EXPECT_TRUE(host::cancelQuestion());
    EXPECT_THAT(attentive->told, ElementsAre("cancelled", "will dismiss 1", "did dismiss 1"));
}

TEST_F(SystemCancel, OfASheetIsAClickOnItsCancelButtonOtherwise) {
    choose(plain, @"None");
    EXPECT_TRUE(host::cancelQuestion());
    EXPECT_THAT(plain->told, ElementsAre("clicked 1", "will dismiss 1", "did dismiss 1"));
}

TEST_F(SystemCancel, BringsTheQuestionThatWaited) {
    ask(plain, @"No");
    choose(plain, @"None");
    EXPECT_TRUE(host::cancelQuestion());
    EXPECT_EQ(person.question().type, "Sheet");
}

TEST_F(SystemCancel, WithoutAQuestionIsNone) {
    EXPECT_FALSE(host::cancelQuestion());
}

} // namespace
