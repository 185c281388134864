#import <UIKit/UIScrollView.h>

#include "UIKit/UIView+Host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <vector>

/// Notes what it is told.
@interface ScrollWatcher : NSObject <UIScrollViewDelegate> {
@public
    std::vector<std::string> calls;
}
@end

@implementation ScrollWatcher

- (void)scrollViewDidScroll:(UIScrollView *)scrollView {
    calls.push_back("didScroll " + std::to_string(int(scrollView.contentOffset.y)) +
                    (scrollView.dragging ? " dragging" : ""));
}

- (void)scrollViewWillBeginDragging:(UIScrollView *)scrollView {
    calls.push_back("willBeginDragging");
}

- (void)scrollViewDidEndDragging:(UIScrollView *)scrollView willDecelerate:(BOOL)decelerate {
    calls.push_back(decelerate ? "didEndDragging, rolling on" : "didEndDragging");
}

- (void)scrollViewDidEndScrollingAnimation:(UIScrollView *)scrollView {
    calls.push_back("didEndScrollingAnimation");
}

@end

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ScrollView : public testing::Test {
protected:
    ScrollView() {
        view = [[UIScrollView alloc] initWithFrame:CGRectMake(0, 0, 100, 200)];
        view.contentSize = CGSizeMake(100, 1000);
        watcher = [ScrollWatcher new];
        view.delegate = watcher;
    }
    ~ScrollView() override {
        [view release];
        [watcher release];
    }
    host::Outcome drag(double to) {
        const host::Gesture gesture{.kind = host::GestureKind::scroll, .amount = to};
        return [view _hostPerform:gesture];
    }

    UIScrollView *view = nil;
    ScrollWatcher *watcher = nil;
};

TEST_F(ScrollView, TheOffsetIsTheOriginOfTheBounds) {
    view.contentOffset = CGPointMake(0, 30);
    EXPECT_EQ(view.bounds.origin.y, 30);
    EXPECT_EQ(view.frame.origin.y, 0);
    EXPECT_THAT(watcher->calls, ElementsAre("didScroll 30"));
}

TEST_F(ScrollView, TheSameOffsetAgainIsNoNews) {
    view.contentOffset = CGPointMake(0, 0);
    EXPECT_THAT(watcher->calls, IsEmpty());
}

TEST_F(ScrollView, ADragTellsWhenItBeginsAndEnds) {
    EXPECT_EQ(drag(50), host::Outcome::done);
    EXPECT_THAT(watcher->calls, ElementsAre("willBeginDragging", "didScroll 50 dragging", "didEndDragging"));
    EXPECT_FALSE(view.dragging);
}

TEST_F(ScrollView, ADragEndsWhereTheContentDoes) {
    drag(5000);
    EXPECT_EQ(view.contentOffset.y, 800);
    drag(-5000);
    EXPECT_EQ(view.contentOffset.y, 0);
    EXPECT_EQ(drag(NAN), host::Outcome::disabled);
}

TEST_F(ScrollView, AnAnimatedOffsetArrivesAndSaysSo) {
    [view setContentOffset:CGPointMake(0, 70) animated:YES];
    EXPECT_EQ(view.contentOffset.y, 70);
    EXPECT_THAT(watcher->calls, ElementsAre("didScroll 70", "didEndScrollingAnimation"));
}

TEST_F(ScrollView, ContentAtTheTopFollowsTheInset) {
    view.contentInset = UIEdgeInsetsMake(64, 0, 0, 0);
    EXPECT_EQ(view.contentOffset.y, -64);
    view.contentInset = UIEdgeInsetsZero;
    EXPECT_EQ(view.contentOffset.y, 0);
}

TEST_F(ScrollView, ContentFurtherDownStaysWhenTheInsetChanges) {
    view.contentOffset = CGPointMake(0, 300);
    view.contentInset = UIEdgeInsetsMake(64, 0, 0, 0);
    EXPECT_EQ(view.contentOffset.y, 300);
}

TEST_F(ScrollView, ShorterContentBringsTheOffsetBack) {
    view.contentOffset = CGPointMake(0, 800);
    view.contentSize = CGSizeMake(100, 500);
    EXPECT_EQ(view.contentOffset.y, 300);
    view.contentSize = CGSizeMake(100, 50);
    EXPECT_EQ(view.contentOffset.y, 0);
}

TEST_F(ScrollView, ARectIsBroughtIntoViewByTheShortestWay) {
    [view scrollRectToVisible:CGRectMake(0, 500, 100, 40) animated:NO];
    EXPECT_EQ(view.contentOffset.y, 340);
    [view scrollRectToVisible:CGRectMake(0, 400, 100, 40) animated:NO];
    EXPECT_EQ(view.contentOffset.y, 340);
    [view scrollRectToVisible:CGRectMake(0, 100, 100, 40) animated:NO];
    EXPECT_EQ(view.contentOffset.y, 100);
    [view scrollRectToVisible:CGRectMake(0, 500, 100, 400) animated:NO];
    EXPECT_EQ(view.contentOffset.y, 500);
}

TEST_F(ScrollView, ViewsInsideMoveWithTheContent) {
    UIView *inside = [[[UIView alloc] initWithFrame:CGRectMake(0, 100, 10, 10)] autorelease];
    [view addSubview:inside];
    view.contentOffset = CGPointMake(0, 60);
    EXPECT_EQ([inside convertPoint:CGPointZero toView:nil].y, 40);
}

} // namespace
