#import <UIKit/UIKit.h>

#include "UIKit/UIView+Host.h"

#include <gtest/gtest.h>

/// Writes down when it is freed.
@interface MortalView : UIView {
    bool *_freed;
}
- (id)initWithFlag:(bool *)freed;
@end

@implementation MortalView

- (id)initWithFlag:(bool *)freed {
    if ((self = [super initWithFrame:CGRectZero]))
        _freed = freed;
    return self;
}

- (void)dealloc {
    *_freed = true;
    [super dealloc];
}

@end

namespace {

UIView *viewAt(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return [[[UIView alloc] initWithFrame:CGRectMake(x, y, width, height)] autorelease];
}

TEST(View, IsMadeWithTheZeroFrame) {
    UIView *view = [[[UIView alloc] init] autorelease];
    EXPECT_TRUE(CGRectEqualToRect([view frame], CGRectZero));
    EXPECT_TRUE([view isUserInteractionEnabled]);
    EXPECT_FALSE([view isHidden]);
    EXPECT_EQ([view alpha], 1);
}

TEST(View, TheFrameOfNilIsTheZeroRectangle) {
    UIView *none = nil;
    EXPECT_TRUE(CGRectEqualToRect([none frame], CGRectZero));
}

TEST(View, BoundsFollowTheFrameInSizeAlone) {
    UIView *view = viewAt(10, 20, 30, 40);
    EXPECT_TRUE(CGRectEqualToRect([view bounds], CGRectMake(0, 0, 30, 40)));
    EXPECT_TRUE(CGPointEqualToPoint([view center], CGPointMake(25, 40)));
}

TEST(View, MovingTheCenterKeepsTheSize) {
    UIView *view = viewAt(0, 0, 30, 40);
    [view setCenter:CGPointMake(100, 100)];
    EXPECT_TRUE(CGRectEqualToRect([view frame], CGRectMake(85, 80, 30, 40)));
}

TEST(View, ASuperviewKeepsItsSubviewsAlive) {
    bool freed = false;
    UIView *parent = [[UIView alloc] init];
    MortalView *child = [[MortalView alloc] initWithFlag:&freed];
    [parent addSubview:child];
    [child release];
    EXPECT_FALSE(freed);
    EXPECT_EQ([child superview], parent);
    @autoreleasepool {
        [parent release];
    }
    EXPECT_TRUE(freed);
}

TEST(View, ASubviewThatIsRemovedIsLetGo) {
    bool freed = false;
    UIView *parent = viewAt(0, 0, 1, 1);
    @autoreleasepool {
        MortalView *child = [[MortalView alloc] initWithFlag:&freed];
        [parent addSubview:child];
        [child release];
        [child removeFromSuperview];
    }
    EXPECT_TRUE(freed);
    EXPECT_EQ([[parent subviews] count], 0u);
}

TEST(View, AddingToAnotherSuperviewMovesTheView) {
    UIView *first = viewAt(0, 0, 1, 1), *second = viewAt(0, 0, 1, 1), *child = viewAt(0, 0, 1, 1);
    [first addSubview:child];
    [second addSubview:child];
    EXPECT_EQ([[first subviews] count], 0u);
    EXPECT_EQ([child superview], second);
}

TEST(View, SubviewsStandInTheOrderOfInsertion) {
    UIView *parent = viewAt(0, 0, 1, 1), *a = viewAt(0, 0, 1, 1), *b = viewAt(0, 0, 1, 1),
           *c = viewAt(0, 0, 1, 1);
    [parent addSubview:a];
    [parent addSubview:c];
    [parent insertSubview:b belowSubview:c];
    EXPECT_TRUE(([[parent subviews] isEqual:@[ a, b, c ]]));
    [parent insertSubview:a aboveSubview:b];
    EXPECT_TRUE(([[parent subviews] isEqual:@[ b, a, c ]]));
    [parent sendSubviewToBack:c];
    EXPECT_TRUE(([[parent subviews] isEqual:@[ c, b, a ]]));
    [parent bringSubviewToFront:c];
    EXPECT_TRUE(([[parent subviews] isEqual:@[ b, a, c ]]));
}

TEST(View, IsFoundByItsTag) {
    UIView *parent = viewAt(0, 0, 1, 1), *child = viewAt(0, 0, 1, 1), *grandchild = viewAt(0, 0, 1, 1);
    [parent addSubview:child];
    [child addSubview:grandchild];
    [grandchild setTag:7];
    EXPECT_EQ([parent viewWithTag:7], grandchild);
    EXPECT_EQ([parent viewWithTag:8], nil);
}

TEST(View, AFlexibleWidthGrowsWithTheSuperview) {
    UIView *parent = viewAt(0, 0, 100, 100), *child = viewAt(10, 10, 80, 20);
    [child setAutoresizingMask:UIViewAutoresizingFlexibleWidth];
    [parent addSubview:child];
    [parent setFrame:CGRectMake(0, 0, 200, 50)];
    EXPECT_TRUE(CGRectEqualToRect([child frame], CGRectMake(10, 10, 180, 20)));
}

TEST(View, AFlexibleLeftMarginKeepsTheViewAtTheRight) {
    UIView *parent = viewAt(0, 0, 100, 100), *child = viewAt(60, 10, 30, 20);
    [child setAutoresizingMask:UIViewAutoresizingFlexibleLeftMargin];
    [parent addSubview:child];
    [parent setBounds:CGRectMake(0, 0, 150, 100)];
    EXPECT_TRUE(CGRectEqualToRect([child frame], CGRectMake(110, 10, 30, 20)));
}

TEST(View, WithoutAMaskNothingMoves) {
    UIView *parent = viewAt(0, 0, 100, 100), *child = viewAt(60, 10, 30, 20);
    [parent addSubview:child];
    [parent setFrame:CGRectMake(0, 0, 300, 300)];
    EXPECT_TRUE(CGRectEqualToRect([child frame], CGRectMake(60, 10, 30, 20)));
}

TEST(View, PointsAreConvertedBetweenScrolledViews) {
    UIView *root = viewAt(0, 0, 320, 480), *list = viewAt(0, 100, 320, 300), *row = viewAt(0, 50, 320, 44);
    [root addSubview:list];
    [list addSubview:row];
    [list setBounds:CGRectMake(0, 20, 320, 300)];
    EXPECT_TRUE(CGPointEqualToPoint([row convertPoint:CGPointMake(1, 2) toView:root], CGPointMake(1, 132)));
    EXPECT_TRUE(CGPointEqualToPoint([row convertPoint:CGPointMake(1, 132) fromView:root], CGPointMake(1, 2)));
}

TEST(View, TheTintIsTheSuperviewsUntilOneIsSet) {
    UIView *parent = viewAt(0, 0, 1, 1), *child = viewAt(0, 0, 1, 1);
    [parent addSubview:child];
    [parent setTintColor:[UIColor redColor]];
    EXPECT_TRUE([[child tintColor] isEqual:[UIColor redColor]]);
    [child setTintColor:[UIColor greenColor]];
    EXPECT_TRUE([[child tintColor] isEqual:[UIColor greenColor]]);
}

TEST(View, EveryViewHasItsOwnNumber) {
    UIView *a = viewAt(0, 0, 1, 1), *b = viewAt(0, 0, 1, 1);
    EXPECT_NE([a _hostNumber], 0u);
    EXPECT_NE([a _hostNumber], [b _hostNumber]);
}

TEST(Color, GrayIsHalfWhite) {
    EXPECT_TRUE([[UIColor grayColor] isEqual:[UIColor colorWithWhite:0.5 alpha:1]]);
}

TEST(Color, HuesAreTurnedIntoRedGreenAndBlue) {
    EXPECT_TRUE([[UIColor colorWithHue:1.0 / 3 saturation:1 brightness:1
                                 alpha:1] isEqual:[UIColor greenColor]]);
    EXPECT_TRUE([[UIColor colorWithHue:0 saturation:0 brightness:1 alpha:1] isEqual:[UIColor whiteColor]]);
}

TEST(Font, TheSystemFontIsHelveticaNeueAndItsBoldTheMedium) {
    EXPECT_TRUE([[[UIFont systemFontOfSize:17] fontName] isEqualToString:@"HelveticaNeue"]);
    EXPECT_TRUE([[[UIFont boldSystemFontOfSize:17] fontName] isEqualToString:@"HelveticaNeue-Medium"]);
    EXPECT_EQ([[UIFont systemFontOfSize:17] pointSize], 17);
}

TEST(Geometry, InsetsMakeARectangleSmaller) {
    const CGRect inset = UIEdgeInsetsInsetRect(CGRectMake(0, 0, 320, 568), UIEdgeInsetsMake(64, 0, 10, 5));
    EXPECT_TRUE(CGRectEqualToRect(inset, CGRectMake(0, 64, 315, 494)));
}

} // namespace
