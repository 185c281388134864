#include "Trace.h"

#include "host/Control.h"
#include "host/Screen.h"
#include "host/Work.h"
#include "support/Person.h"
#include "support/TestDevice.h"

#include <gmock/gmock.h>

/// Writes down what a navigation controller tells its delegate.
@interface NavigationListener : NSObject <UINavigationControllerDelegate> {
@public
    uikit::Trace told;
}
@end

@implementation NavigationListener

- (void)navigationController:(UINavigationController *)navigationController
      willShowViewController:(UIViewController *)viewController
                    animated:(BOOL)animated {
    told.push_back("will show " + std::string([[viewController title] UTF8String]));
}

- (void)navigationController:(UINavigationController *)navigationController
       didShowViewController:(UIViewController *)viewController
                    animated:(BOOL)animated {
    told.push_back("did show " + std::string([[viewController title] UTF8String]));
}

@end

/// Reads its view's frame when it is about to appear.
@interface SizedPage : UIViewController {
@public
    CGRect whenAppearing;
}
@end

@implementation SizedPage

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    whenAppearing = [[self view] frame];
}

@end

/// Its view is a scroll view.
@interface ScrollingPage : UIViewController
@end

@implementation ScrollingPage

- (void)loadView {
    [self setView:[[[UIScrollView alloc] initWithFrame:CGRectZero] autorelease]];
}

@end

/// Keeps its view itself, and asks for it before there is one.
@interface OwnViewPage : TracedPage {
@public
    CGRect frameInInit;
    UIView *_own;
}
@end

@implementation OwnViewPage

- (id)initNamed:(const char *)name in:(uikit::Trace &)trace {
    if ((self = [super initNamed:name in:trace])) {
        frameInInit = [[self view] frame];
        _own = [[UIView alloc] initWithFrame:frameInInit];
    }
    return self;
}

- (void)dealloc {
    [_own release];
    [super dealloc];
}

- (UIView *)view {
    return _own;
}

@end

/// Writes down where it moves.
@interface MovingPage : TracedPage {
@public
    uikit::Trace moves;
}
@end

@implementation MovingPage

- (void)willMoveToParentViewController:(UIViewController *)parent {
    moves.emplace_back(parent ? "will move" : "will move out");
}

- (void)didMoveToParentViewController:(UIViewController *)parent {
    moves.emplace_back(parent ? "did move" : "did move out");
}

- (void)viewWillAppear:(BOOL)animated {
    moves.emplace_back([self isMovingToParentViewController] ? "to" : "uncovered");
}

- (void)viewWillDisappear:(BOOL)animated {
    moves.emplace_back([self isMovingFromParentViewController] ? "from" : "covered");
}

@end

namespace {

using testing::ElementsAre;
using uikit::showStack;
using uikit::Trace;

class Navigation : public testing::Test {
protected:
    void TearDown() override { host::setRootController(nil); }

    support::TestDevice device;
    support::Person person;
    Trace trace;
    uikit::Pool pool;
};

TEST_F(Navigation, TheFirstPageIsLoadedAndAppears) {
    showStack(@[ [TracedPage named:"A" in:trace] ]);
    EXPECT_THAT(trace, ElementsAre("A didLoad", "A willAppear", "A didAppear"));
    EXPECT_EQ(person.title(), "A");
}

TEST_F(Navigation, PushingCallsTheTwoPagesInTurn) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    trace.clear();
    [navigation pushViewController:[TracedPage named:"B" in:trace] animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(trace,
                ElementsAre("A willDisappear", "B didLoad", "B willAppear", "A didDisappear", "B didAppear"));
    EXPECT_EQ(person.title(), "B");
}

TEST_F(Navigation, PoppingCallsTheTwoPagesInTurnAndFreesThePoppedOneLast) {
    UINavigationController *navigation = nil;
    @autoreleasepool {
        navigation = showStack(@[ [TracedPage named:"A" in:trace], [TracedPage named:"B" in:trace] ]);
        trace.clear();
        [[navigation retain] popViewControllerAnimated:YES];
    }
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("B willDisappear", "A didLoad", "A willAppear", "B didDisappear",
                                   "A didAppear", "B dealloc"));
    [navigation release];
}

TEST_F(Navigation, TheBackButtonPops) {
    showStack(@[ [TracedPage named:"A" in:trace], [TracedPage named:"B" in:trace] ]);
    EXPECT_THAT(person.buttons(), ElementsAre("A"));
    person.tapButton("A");
    EXPECT_EQ(person.title(), "A");
    EXPECT_TRUE(person.buttons().empty());
}

TEST_F(Navigation, ABackSwipeCarriedThroughPops) {
    showStack(@[ [TracedPage named:"A" in:trace], [TracedPage named:"B" in:trace] ]);
    trace.clear();
    person.backSwipe();
    EXPECT_EQ(person.title(), "A");
    EXPECT_EQ(trace.front(), "B willDisappear");
}

TEST_F(Navigation, ABackSwipeGivenUpTellsBothPagesThatNothingHappened) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    [navigation pushViewController:[TracedPage named:"B" in:trace] animated:NO];
    host::waitUntilIdle();
    trace.clear();
    person.giveUpBackSwipe();
    EXPECT_THAT(trace, ElementsAre("B willDisappear", "A willAppear", "A willDisappear", "A didDisappear",
                                   "B willAppear", "B didAppear"));
    EXPECT_EQ(person.title(), "B");
}

TEST_F(Navigation, TheRootPageHasNoWayBack) {
    showStack(@[ [TracedPage named:"A" in:trace] ]);
    EXPECT_EQ(host::perform({.kind = host::GestureKind::back}), host::Outcome::notThere);
    EXPECT_EQ(host::perform({.kind = host::GestureKind::backSwipe}), host::Outcome::disabled);
}

TEST_F(Navigation, SeveralChangesInOneTurnAreOne) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    trace.clear();
    [navigation pushViewController:[TracedPage named:"B" in:trace] animated:YES];
    [navigation pushViewController:[TracedPage named:"C" in:trace] animated:YES];
    EXPECT_TRUE([[[navigation topViewController] title] isEqualToString:@"C"]);
    host::waitUntilIdle();
    EXPECT_THAT(trace,
                ElementsAre("A willDisappear", "C didLoad", "C willAppear", "A didDisappear", "C didAppear"));
    person.back();
    EXPECT_EQ(person.title(), "B");
}

TEST_F(Navigation, APushDuringATransitionFollowsIt) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    [navigation setDelegate:nil];
    [navigation pushViewController:[TracedPage named:"B" in:trace] animated:YES];
    trace.clear();
    host::later([&] { [navigation pushViewController:[TracedPage named:"C" in:trace] animated:YES]; });
    host::waitUntilIdle();
    EXPECT_THAT(trace,
                ElementsAre("A willDisappear", "B didLoad", "B willAppear", "A didDisappear", "B didAppear",
                            "B willDisappear", "C didLoad", "C willAppear", "B didDisappear", "C didAppear"));
}

TEST_F(Navigation, PoppingToTheRootTellsTheFirstAndTheLastPage) {
    UINavigationController *navigation = showStack(@[
        [TracedPage named:"A" in:trace], [TracedPage named:"B" in:trace], [TracedPage named:"C" in:trace]
    ]);
    trace.clear();
    EXPECT_EQ([[navigation popToRootViewControllerAnimated:YES] count], 2u);
    host::waitUntilIdle();
    EXPECT_THAT(trace,
                ElementsAre("C willDisappear", "A didLoad", "A willAppear", "C didDisappear", "A didAppear"));
    EXPECT_EQ([navigation popToRootViewControllerAnimated:YES], nil);
    EXPECT_EQ([navigation popViewControllerAnimated:YES], nil);
}

TEST_F(Navigation, PushingAPageTwiceOrPoppingToAStrangerRaises) {
    TracedPage *a = [TracedPage named:"A" in:trace];
    UINavigationController *navigation = showStack(@[ a ]);
    int raised = 0;
    @try {
        [navigation pushViewController:a animated:YES];
    } @catch (NSException *exception) {
        raised++;
    } @
    try {
        [navigation popToViewController:[TracedPage named:"B" in:trace] animated:YES];
    } @catch (NSException *exception) {
        raised++;
    }
    EXPECT_EQ(raised, 2);
    EXPECT_EQ([[navigation viewControllers] count], 1u);
}

TEST_F(Navigation, TheDelegateIsToldWhatIsShown) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    NavigationListener *listener = [[[NavigationListener alloc] init] autorelease];
    [navigation setDelegate:listener];
    [navigation pushViewController:[TracedPage named:"B" in:trace] animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(listener->told, ElementsAre("will show B", "did show B"));
}

TEST_F(Navigation, APushedPageKnowsItsControllerUntilItHasGone) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    TracedPage *b = [TracedPage named:"B" in:trace];
    EXPECT_EQ([b navigationController], nil);
    [navigation pushViewController:b animated:YES];
    EXPECT_EQ([b navigationController], navigation);
    host::waitUntilIdle();
    [navigation popViewControllerAnimated:YES];
    EXPECT_EQ([b navigationController], navigation);
    host::waitUntilIdle();
    EXPECT_EQ([b navigationController], nil);
}

TEST_F(Navigation, TheWindowTellsPushAndPop) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    const double page = host::screen().amount("page");
    [navigation pushViewController:[TracedPage named:"B" in:trace] animated:YES];
    host::waitUntilIdle();
    EXPECT_EQ(host::screen().text("transition"), "push");
    EXPECT_NE(host::screen().amount("page"), page);
    person.back();
    EXPECT_EQ(host::screen().text("transition"), "pop");
    EXPECT_EQ(host::screen().amount("page"), page);
}

TEST_F(Navigation, APageLiesUnderTheBarsUnlessItSaysOtherwise) {
    TracedPage *a = [TracedPage named:"A" in:trace], *b = [TracedPage named:"B" in:trace];
    [b setEdgesForExtendedLayout:UIRectEdgeNone];
    UINavigationController *navigation = showStack(@[ a ]);
    EXPECT_TRUE(CGRectEqualToRect([[a view] frame], CGRectMake(0, 0, 320, 568)));
    [navigation pushViewController:b animated:NO];
    host::waitUntilIdle();
    EXPECT_TRUE(CGRectEqualToRect([[b view] frame], CGRectMake(0, 64, 320, 504)));
}

TEST_F(Navigation, TheViewHasItsSizeBeforeThePageAppears) {
    SizedPage *page = [[[SizedPage alloc] init] autorelease];
    showStack(@[ page ]);
    EXPECT_TRUE(CGRectEqualToRect(page->whenAppearing, CGRectMake(0, 0, 320, 568)));
}

TEST_F(Navigation, AScrollingPageIsInsetByTheBars) {
    ScrollingPage *page = [[[ScrollingPage alloc] init] autorelease];
    showStack(@[ page ]);
    UIScrollView *scrolled = (UIScrollView *)[page view];
    EXPECT_TRUE(UIEdgeInsetsEqualToEdgeInsets([scrolled contentInset], UIEdgeInsetsMake(64, 0, 0, 0)));
    EXPECT_EQ([scrolled contentOffset].y, -64);
}

TEST_F(Navigation, AScrollingPageKeepsInsetsOfItsOwn) {
    ScrollingPage *page = [[[ScrollingPage alloc] init] autorelease];
    [(UIScrollView *)[page view] setContentInset:UIEdgeInsetsMake(64, 0, 10, 0)];
    showStack(@[ page ]);
    EXPECT_TRUE(UIEdgeInsetsEqualToEdgeInsets([(UIScrollView *)[page view] contentInset],
                                              UIEdgeInsetsMake(64, 0, 10, 0)));
}

TEST_F(Navigation, AScrollingPageMayDeclineInsets) {
    ScrollingPage *page = [[[ScrollingPage alloc] init] autorelease];
    [page setAutomaticallyAdjustsScrollViewInsets:NO];
    showStack(@[ page ]);
    EXPECT_TRUE(UIEdgeInsetsEqualToEdgeInsets([(UIScrollView *)[page view] contentInset], UIEdgeInsetsZero));
}

TEST_F(Navigation, APageThatOverridesItsViewIsShownAndToldLikeAnyOther) {
    OwnViewPage *page = [[[OwnViewPage alloc] initNamed:"Own" in:trace] autorelease];
    EXPECT_TRUE(CGRectEqualToRect(page->frameInInit, CGRectZero));
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    trace.clear();
    [navigation pushViewController:page animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(trace, ElementsAre("A willDisappear", "Own willAppear", "A didDisappear", "Own didAppear"));
    EXPECT_EQ([page nextResponder], [navigation view]);
    EXPECT_EQ([[page view] nextResponder], page);
    person.back();
    EXPECT_EQ(person.title(), "A");
}

TEST_F(Navigation, ACoveredStackChangesWithoutAWord) {
    TracedPage *a = [TracedPage named:"A" in:trace], *b = [TracedPage named:"B" in:trace];
    UINavigationController *navigation = showStack(@[ a, b ]);
    [b presentViewController:[TracedPage named:"M" in:trace] animated:YES completion:nullptr];
    host::waitUntilIdle();
    trace.clear();
    [navigation popToRootViewControllerAnimated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(trace, testing::Each(testing::AnyOf("A didLoad")));
    [navigation dismissViewControllerAnimated:YES completion:nullptr];
    host::waitUntilIdle();
    EXPECT_EQ(person.title(), "A");
    EXPECT_EQ(trace.back(), "M didDisappear");
}

TEST_F(Navigation, MovingIsSaidDuringThePushAndThePop) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    MovingPage *page = [[[MovingPage alloc] initNamed:"M" in:trace] autorelease];
    [navigation pushViewController:page animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(page->moves, ElementsAre("will move", "to", "did move"));
    page->moves.clear();
    [navigation pushViewController:[TracedPage named:"B" in:trace] animated:YES];
    host::waitUntilIdle();
    EXPECT_THAT(page->moves, ElementsAre("covered"));
    page->moves.clear();
    person.back();
    EXPECT_THAT(page->moves, ElementsAre("uncovered"));
    page->moves.clear();
    person.back();
    EXPECT_THAT(page->moves, ElementsAre("will move out", "from", "did move out"));
}

TEST_F(Navigation, ThePagesAreKeptByTheStackAlone) {
    UINavigationController *navigation = showStack(@[ [TracedPage named:"A" in:trace] ]);
    trace.clear();
    @autoreleasepool {
        TracedPage *b = [[TracedPage alloc] initNamed:"B" in:trace];
        [navigation pushViewController:b animated:YES];
        [b release];
        host::waitUntilIdle();
    }
    EXPECT_EQ(trace.back(), "B didAppear");
    person.back();
    EXPECT_EQ(trace.back(), "B dealloc");
}

} // namespace
