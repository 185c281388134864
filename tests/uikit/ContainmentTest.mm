#include "Stage.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Containment : public uikit::Stage {
protected:
    void add() {
        [page addChildViewController:child];
        [[page view] addSubview:[child view]];
        [child didMoveToParentViewController:page];
    }

    TracedPage *child = [TracedPage named:"Child" in:trace];
};

TEST_F(Containment, AChildAppearsWhenItsViewIsPutIntoAShownPage) {
    add();
    EXPECT_THAT(trace, ElementsAre("Child didLoad", "Child willAppear", "Child didAppear"));
    EXPECT_EQ([child parentViewController], page);
    EXPECT_TRUE(([[page childViewControllers] isEqual:@[ child ]]));
}

TEST_F(Containment, AChildGoesWhenItsViewIsTakenOut) {
    add();
    trace.clear();
    [child willMoveToParentViewController:nil];
    [[child view] removeFromSuperview];
    [child removeFromParentViewController];
    EXPECT_THAT(trace, ElementsAre("Child willDisappear", "Child didDisappear"));
    EXPECT_EQ([child parentViewController], nil);
}

TEST_F(Containment, AChildComesAndGoesWithItsPage) {
    add();
    trace.clear();
    [[page navigationController] pushViewController:[[[UIViewController alloc] init] autorelease]
                                           animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("Page willDisappear", "Child willDisappear", "Page didDisappear",
                                   "Child didDisappear"));
    trace.clear();
    person.back();
    EXPECT_THAT(trace,
                ElementsAre("Page willAppear", "Child willAppear", "Page didAppear", "Child didAppear"));
}

TEST_F(Containment, AChildWithoutAPlaceOnThePageHearsNothing) {
    [page addChildViewController:child];
    [[page navigationController] pushViewController:[[[UIViewController alloc] init] autorelease]
                                           animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("Page willDisappear", "Page didDisappear"));
}

TEST_F(Containment, AChildPresentsFromItsOutermostContainer) {
    add();
    [child presentViewController:[TracedPage named:"Modal" in:trace] animated:YES completion:nullptr];
    EXPECT_NE([[page navigationController] presentedViewController], nil);
    EXPECT_EQ([child navigationController], [page navigationController]);
    host::waitUntilIdle();
}

TEST_F(Containment, ThePageKeepsItsChildren) {
    const NSUInteger before = [child retainCount];
    @autoreleasepool {
        [page addChildViewController:child];
    }
    EXPECT_EQ([child retainCount], before + 1);
    @autoreleasepool {
        [child removeFromParentViewController];
    }
    EXPECT_EQ([child retainCount], before);
}

} // namespace
