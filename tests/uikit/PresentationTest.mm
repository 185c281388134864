#include "Trace.h"

#include "host/Control.h"
#include "host/Screen.h"
#include "support/Person.h"
#include "support/TestDevice.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using uikit::showStack;
using uikit::Trace;

class Presentation : public testing::Test {
protected:
    void TearDown() override { host::setRootController(nil); }

    support::TestDevice device;
    support::Person person;
    Trace trace;
    uikit::Pool pool;
};

TEST_F(Presentation, CallsThePagesInTurnAndThenTheCompletion) {
    TracedPage *below = [TracedPage named:"A" in:trace];
    showStack(@[ below ]);
    trace.clear();
    Trace *told = &trace;
    [below presentViewController:[TracedPage named:"B" in:trace]
                        animated:YES
                      completion:^{
                          told->push_back("completed");
                      }];
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("B didLoad", "A willDisappear", "B willAppear", "B didAppear",
                                   "A didDisappear", "completed"));
}

TEST_F(Presentation, DismissingCallsThePagesInTurnAndThenTheCompletion) {
    Trace *told = &trace;
    TracedPage *below = [TracedPage named:"A" in:trace];
    showStack(@[ below ]);
    @autoreleasepool {
        TracedPage *above = [TracedPage named:"B" in:trace];
        [below presentViewController:above animated:YES completion:nullptr];
        host::waitUntilIdle();
        trace.clear();
        [above dismissViewControllerAnimated:YES
                                  completion:^{
                                      told->push_back("completed");
                                  }];
    }
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("B willDisappear", "A willAppear", "A didAppear", "B didDisappear",
                                   "completed", "B dealloc"));
}

/// A page with a navigation controller of its own.
UINavigationController *wrapped(UIViewController *page) {
    return [[[UINavigationController alloc] initWithRootViewController:page] autorelease];
}

std::vector<std::string> logged() {
    return host::eventTexts(host::EventKind::log);
}

TEST_F(Presentation, CoversTheWholeScreen) {
    TracedPage *below = [TracedPage named:"A" in:trace];
    showStack(@[ below ]);
    UISwitch *control = [[[UISwitch alloc] init] autorelease];
    [[below view] addSubview:control];
    const auto number = host::screen().all("Switch").front()->number;
    [below presentViewController:wrapped([TracedPage named:"B" in:trace]) animated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_EQ(person.title(), "B");
    EXPECT_EQ(host::perform({.number = number}), host::Outcome::notThere);
    EXPECT_EQ([[below view] window], nil);
}

TEST_F(Presentation, ThePresenterIsTheOutermostContainer) {
    TracedPage *below = [TracedPage named:"A" in:trace], *above = [TracedPage named:"B" in:trace];
    UINavigationController *outer = showStack(@[ below ]);
    UINavigationController *inner = wrapped(above);
    [below presentViewController:inner animated:YES completion:nullptr];
    EXPECT_EQ([outer presentedViewController], inner);
    EXPECT_EQ([below presentedViewController], inner);
    EXPECT_EQ([inner presentingViewController], outer);
    EXPECT_EQ([above presentingViewController], outer);
    EXPECT_EQ([outer visibleViewController], inner);
    EXPECT_EQ([outer topViewController], below);
}

TEST_F(Presentation, APageInsideTheModalControllerDismissesIt) {
    TracedPage *below = [TracedPage named:"A" in:trace], *above = [TracedPage named:"B" in:trace];
    showStack(@[ below ]);
    [below presentViewController:wrapped(above) animated:YES completion:nullptr];
    host::waitUntilIdle();
    [above dismissViewControllerAnimated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_EQ(person.title(), "A");
    EXPECT_EQ([below presentedViewController], nil);
    EXPECT_EQ([above presentingViewController], nil);
}

TEST_F(Presentation, DismissingAgainIsHarmless) {
    TracedPage *below = [TracedPage named:"A" in:trace], *above = [TracedPage named:"B" in:trace];
    showStack(@[ below ]);
    [below presentViewController:above animated:YES completion:nullptr];
    host::waitUntilIdle();
    trace.clear();
    [above dismissViewControllerAnimated:YES completion:nullptr];
    [above dismissViewControllerAnimated:YES completion:nullptr];
    host::waitUntilIdle();
    [above dismissViewControllerAnimated:YES completion:nullptr];
    [below dismissViewControllerAnimated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("B willDisappear", "A willAppear", "A didAppear", "B didDisappear"));
}

TEST_F(Presentation, DismissedInTheSameTurnItIsPresentedFirst) {
    TracedPage *below = [TracedPage named:"A" in:trace], *above = [TracedPage named:"B" in:trace];
    showStack(@[ below ]);
    trace.clear();
    [below presentViewController:above animated:YES completion:nullptr];
    [above dismissViewControllerAnimated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_THAT(trace,
                ElementsAre("B didLoad", "A willDisappear", "B willAppear", "B didAppear", "A didDisappear",
                            "B willDisappear", "A willAppear", "A didAppear", "B didDisappear"));
}

TEST_F(Presentation, DismissingTheLowestTakesAllAndTellsOnlyTheFront) {
    TracedPage *a = [TracedPage named:"A" in:trace], *b = [TracedPage named:"B" in:trace];
    TracedPage *c = [TracedPage named:"C" in:trace];
    showStack(@[ a ]);
    [a presentViewController:b animated:YES completion:nullptr];
    host::waitUntilIdle();
    [b presentViewController:c animated:YES completion:nullptr];
    host::waitUntilIdle();
    trace.clear();
    [a dismissViewControllerAnimated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("C willDisappear", "A willAppear", "A didAppear", "C didDisappear"));
    EXPECT_EQ([b presentedViewController], nil);
    EXPECT_EQ([b presentingViewController], nil);
}

TEST_F(Presentation, ASecondModalPageOnTheSamePageIsRefused) {
    TracedPage *a = [TracedPage named:"A" in:trace], *b = [TracedPage named:"B" in:trace];
    TracedPage *c = [TracedPage named:"C" in:trace];
    showStack(@[ a ]);
    [a presentViewController:b animated:YES completion:nullptr];
    [a presentViewController:c animated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_EQ([a presentedViewController], b);
    ASSERT_EQ(logged().size(), 1u);
    EXPECT_THAT(logged().front(), testing::HasSubstr("which is already presenting"));
}

TEST_F(Presentation, APageThatIsNotOnTheScreenPresentsNothing) {
    TracedPage *stray = [TracedPage named:"A" in:trace], *b = [TracedPage named:"B" in:trace];
    [stray presentViewController:b animated:YES completion:nullptr];
    EXPECT_EQ([stray presentedViewController], nil);
    ASSERT_EQ(logged().size(), 1u);
    EXPECT_THAT(logged().front(), testing::HasSubstr("not in the window hierarchy"));
}

TEST_F(Presentation, PresentingNilRaises) {
    TracedPage *a = [TracedPage named:"A" in:trace];
    showStack(@[ a ]);
    bool raised = false;
    @try {
        [a presentViewController:nil animated:YES completion:nullptr];
    } @catch (NSException *exception) {
        raised = [[exception name] isEqualToString:NSInvalidArgumentException];
    }
    EXPECT_TRUE(raised);
}

TEST_F(Presentation, SaysThatAPageIsBeingPresentedOrDismissed) {
    TracedPage *below = [TracedPage named:"A" in:trace], *above = [TracedPage named:"B" in:trace];
    showStack(@[ below ]);
    [below presentViewController:above animated:YES completion:nullptr];
    EXPECT_TRUE([above isBeingPresented]);
    host::waitUntilIdle();
    EXPECT_FALSE([above isBeingPresented]);
    [above dismissViewControllerAnimated:YES completion:nullptr];
    EXPECT_TRUE([above isBeingDismissed]);
    host::waitUntilIdle();
    EXPECT_FALSE([above isBeingDismissed]);
}

TEST_F(Presentation, TheWindowTellsTheKindAndNumberOfTheTransition) {
    TracedPage *below = [TracedPage named:"A" in:trace], *above = [TracedPage named:"B" in:trace];
    showStack(@[ below ]);
    EXPECT_EQ(host::screen().text("transition"), "none");
    const double revision = host::screen().amount("revision");
    [below presentViewController:above animated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_EQ(host::screen().text("transition"), "present");
    EXPECT_EQ(host::screen().amount("revision"), revision + 1);
    [above dismissViewControllerAnimated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_EQ(host::screen().text("transition"), "dismiss");
    EXPECT_EQ(host::screen().amount("revision"), revision + 2);
}

TEST_F(Presentation, ThePresenterKeepsThePresentedPage) {
    TracedPage *below = [TracedPage named:"A" in:trace];
    showStack(@[ below ]);
    trace.clear();
    @autoreleasepool {
        TracedPage *above = [[TracedPage alloc] initNamed:"B" in:trace];
        [below presentViewController:above animated:YES completion:nullptr];
        [above release];
    }
    host::waitUntilIdle();
    EXPECT_EQ(trace.back(), "A didDisappear");
    @autoreleasepool {
        [below dismissViewControllerAnimated:NO completion:nullptr];
    }
    host::waitUntilIdle();
    EXPECT_EQ(trace.back(), "B dealloc");
}

TEST_F(Presentation, LeavingTheScreenFreesAllPages) {
    @autoreleasepool {
        TracedPage *below = [TracedPage named:"A" in:trace];
        showStack(@[ below ]);
        [below presentViewController:wrapped([TracedPage named:"B" in:trace])
                            animated:YES
                          completion:nullptr];
        host::waitUntilIdle();
        trace.clear();
        host::setRootController(nil);
    }
    host::waitUntilIdle();
    EXPECT_THAT(trace,
                testing::UnorderedElementsAre("B willDisappear", "B didDisappear", "B dealloc", "A dealloc"));
}

TEST_F(Presentation, TheCompletionBlockIsKeptUntilItHasRunAndNoLonger) {
    TracedPage *below = [TracedPage named:"A" in:trace];
    showStack(@[ below ]);
    NSObject *captured = [[[NSObject alloc] init] autorelease];
    const NSUInteger before = [captured retainCount];
    @autoreleasepool {
        [below presentViewController:[TracedPage named:"B" in:trace]
                            animated:YES
                          completion:^{
                              (void)[captured self];
                          }];
    }
    EXPECT_GT([captured retainCount], before);
    host::waitUntilIdle();
    EXPECT_EQ([captured retainCount], before);
}

} // namespace
