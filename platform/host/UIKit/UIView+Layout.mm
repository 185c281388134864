// Follows the UIView class reference, "Laying out Subviews" and autoresizing masks; conversions between
// views.
#include "UIKit/UIView+Layout.h"
#include "UIKit/UIView+State.h"
#import <UIKit/UIViewController.h>

namespace {

/// A stretch of one axis: margin before, length, margin after, and which of them give way.
struct Stretch {
    CGFloat before, length, after;
    bool flexibleBefore, flexibleLength, flexibleAfter;
};

/// Shares `change` among the flexible parts in proportion to their sizes; evenly where all of them are zero.
void distribute(Stretch &stretch, CGFloat change) {
    CGFloat total = 0;
    int parts = 0;
    const auto each = [&](auto &&act) {
        if (stretch.flexibleBefore)
            act(stretch.before);
        if (stretch.flexibleLength)
            act(stretch.length);
        if (stretch.flexibleAfter)
            act(stretch.after);
    };
    each([&](CGFloat part) {
        total += part;
        parts++;
    });
    each([&](CGFloat &part) { part += total != 0 ? change * part / total : change / parts; });
}

CGRect autoresized(CGRect frame, UIViewAutoresizing mask, CGSize before, CGSize after) {
    Stretch across = {frame.origin.x,
                      frame.size.width,
                      before.width - CGRectGetMaxX(frame),
                      bool(mask & UIViewAutoresizingFlexibleLeftMargin),
                      bool(mask & UIViewAutoresizingFlexibleWidth),
                      bool(mask & UIViewAutoresizingFlexibleRightMargin)};
    Stretch down = {frame.origin.y,
                    frame.size.height,
                    before.height - CGRectGetMaxY(frame),
                    bool(mask & UIViewAutoresizingFlexibleTopMargin),
                    bool(mask & UIViewAutoresizingFlexibleHeight),
                    bool(mask & UIViewAutoresizingFlexibleBottomMargin)};
    distribute(across, after.width - before.width);
    distribute(down, after.height - before.height);
    return CGRectMake(across.before, down.before, across.length, down.length);
}

/// Where the origin of `view`'s bounds lies in its root view.
CGPoint inRoot(UIView *view) {
    CGPoint point = CGPointZero;
    for (; view; view = [view superview]) {
        point.x += [view frame].origin.x - [view bounds].origin.x;
        point.y += [view frame].origin.y - [view bounds].origin.y;
    }
    return point;
}

} // namespace

void host::autoresizeSubviews(UIView *view, CGSize before) {
    const CGSize after = [view bounds].size;
    for (UIView *subview in [view subviews]) {
        if ([subview autoresizingMask] != UIViewAutoresizingNone)
            [subview setFrame:autoresized([subview frame], [subview autoresizingMask], before, after)];
    }
}

@implementation UIView (UIViewLayout)

- (CGSize)sizeThatFits:(CGSize)size {
    return [self bounds].size;
}

- (void)sizeToFit {
    CGRect frame = [self frame];
    frame.size = [self sizeThatFits:frame.size];
    [self setFrame:frame];
}

- (void)setNeedsLayout {
    [self _hostState]->needsLayout = true;
}

- (void)layoutIfNeeded {
    UIViewState *state = [self _hostState];
    if (state->needsLayout) {
        state->needsLayout = false;
        [host::controllerOf(self) viewWillLayoutSubviews];
        [self layoutSubviews];
        [host::controllerOf(self) viewDidLayoutSubviews];
    }
    for (UIView *subview in [self subviews])
        [subview layoutIfNeeded];
}

- (void)layoutSubviews {
}

/// What a view shows is read from it whenever the screen is looked at, so nothing needs to be drawn anew.
- (void)setNeedsDisplay {
}

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView *)view {
    const CGPoint from = inRoot(self), to = inRoot(view);
    return CGPointMake(point.x + from.x - to.x, point.y + from.y - to.y);
}

- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView *)view {
    const CGPoint from = inRoot(view), to = inRoot(self);
    return CGPointMake(point.x + from.x - to.x, point.y + from.y - to.y);
}

- (CGRect)convertRect:(CGRect)rect toView:(UIView *)view {
    rect.origin = [self convertPoint:rect.origin toView:view];
    return rect;
}

- (CGRect)convertRect:(CGRect)rect fromView:(UIView *)view {
    rect.origin = [self convertPoint:rect.origin fromView:view];
    return rect;
}

@end
