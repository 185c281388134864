// UIScrollView. After Apple's UIScrollView Class Reference and Scroll View Programming Guide: the origin of
// the bounds is the content offset; at rest the offset stays between the insets.
#import "UIKit/UIView+Host.h"
#import <UIKit/UIScrollView.h>

#include <algorithm>
#include <cmath>

struct UIScrollViewState {
    CGSize contentSize = CGSizeZero;
    UIEdgeInsets inset = UIEdgeInsetsZero;
    UIEdgeInsets indicatorInsets = UIEdgeInsetsZero;
    id<UIScrollViewDelegate> delegate = nil; // not retained
    bool tellsScroll = false, tellsBegin = false, tellsEnd = false, tellsAnimationEnd = false;
    bool enabled = true;
    bool dragging = false;
};

@interface UIScrollView ()
- (CGPoint)restingOffsetFor:(CGPoint)offset;
- (void)comeToRest;
@end

@implementation UIScrollView

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _scrollState = new UIScrollViewState;
    return self;
}

- (void)dealloc {
    delete _scrollState;
    [super dealloc];
}

- (id<UIScrollViewDelegate>)delegate {
    return _scrollState->delegate;
}

- (void)setDelegate:(id<UIScrollViewDelegate>)delegate {
    _scrollState->delegate = delegate;
    _scrollState->tellsScroll = [delegate respondsToSelector:@selector(scrollViewDidScroll:)];
    _scrollState->tellsBegin = [delegate respondsToSelector:@selector(scrollViewWillBeginDragging:)];
    _scrollState->tellsEnd = [delegate respondsToSelector:@selector(scrollViewDidEndDragging:
                                                                              willDecelerate:)];
    _scrollState->tellsAnimationEnd =
        [delegate respondsToSelector:@selector(scrollViewDidEndScrollingAnimation:)];
}

- (BOOL)isScrollEnabled {
    return _scrollState->enabled;
}

- (void)setScrollEnabled:(BOOL)enabled {
    _scrollState->enabled = enabled;
}

- (BOOL)isDragging {
    return _scrollState->dragging;
}

- (CGSize)contentSize {
    return _scrollState->contentSize;
}

- (void)setContentSize:(CGSize)size {
    _scrollState->contentSize = size;
    [self comeToRest];
}

- (UIEdgeInsets)contentInset {
    return _scrollState->inset;
}

/// A content that lies at its top edge stays there: the offset follows the inset.
- (void)setContentInset:(UIEdgeInsets)inset {
    const bool atTop = self.contentOffset.y <= -_scrollState->inset.top;
    _scrollState->inset = inset;
    if (atTop)
        self.contentOffset = CGPointMake(self.contentOffset.x, -inset.top);
    [self comeToRest];
}

- (UIEdgeInsets)scrollIndicatorInsets {
    return _scrollState->indicatorInsets;
}

- (void)setScrollIndicatorInsets:(UIEdgeInsets)insets {
    _scrollState->indicatorInsets = insets;
}

- (void)setFrame:(CGRect)frame {
    [super setFrame:frame];
    [self comeToRest];
}

- (CGPoint)contentOffset {
    return self.bounds.origin;
}

- (void)setContentOffset:(CGPoint)offset {
    CGRect bounds = self.bounds;
    if (bounds.origin.x == offset.x && bounds.origin.y == offset.y)
        return;
    bounds.origin = offset;
    self.bounds = bounds;
    [self setNeedsLayout];
    if (_scrollState->tellsScroll)
        [_scrollState->delegate scrollViewDidScroll:self];
}

- (void)setContentOffset:(CGPoint)offset animated:(BOOL)animated {
    self.contentOffset = offset;
    if (animated && _scrollState->tellsAnimationEnd)
        [_scrollState->delegate scrollViewDidEndScrollingAnimation:self];
}

- (void)scrollRectToVisible:(CGRect)rect animated:(BOOL)animated {
    const CGRect bounds = self.bounds;
    const CGFloat top = bounds.origin.y + _scrollState->inset.top;
    const CGFloat bottom = CGRectGetMaxY(bounds) - _scrollState->inset.bottom;
    CGPoint offset = bounds.origin;
    if (rect.origin.y < top)
        offset.y -= top - rect.origin.y;
    else if (CGRectGetMaxY(rect) > bottom)
        offset.y += std::min(CGRectGetMaxY(rect) - bottom, rect.origin.y - top);
    [self setContentOffset:[self restingOffsetFor:offset] animated:animated];
}

- (CGPoint)restingOffsetFor:(CGPoint)offset {
    const CGSize size = self.bounds.size;
    const UIEdgeInsets inset = _scrollState->inset;
    const CGFloat lowest =
        std::max(-inset.top, _scrollState->contentSize.height + inset.bottom - size.height);
    const CGFloat rightmost =
        std::max(-inset.left, _scrollState->contentSize.width + inset.right - size.width);
    return CGPointMake(std::clamp(offset.x, -inset.left, rightmost),
                       std::clamp(offset.y, -inset.top, lowest));
}

/// Brings the offset back to where a finger could have left it.
- (void)comeToRest {
    if (_scrollState && !_scrollState->dragging) // the frame is set before the state is made
        self.contentOffset = [self restingOffsetFor:self.contentOffset];
}

/// A drag by a finger: as far as asked, but not beyond the ends.
- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    if (gesture.kind != host::GestureKind::scroll)
        return [super _hostPerform:gesture];
    if (!_scrollState->enabled || !std::isfinite(gesture.amount))
        return host::Outcome::disabled;
    _scrollState->dragging = true;
    if (_scrollState->tellsBegin)
        [_scrollState->delegate scrollViewWillBeginDragging:self];
    self.contentOffset = [self restingOffsetFor:CGPointMake(self.contentOffset.x, gesture.amount)];
    _scrollState->dragging = false;
    if (_scrollState->tellsEnd)
        [_scrollState->delegate scrollViewDidEndDragging:self willDecelerate:NO];
    return host::Outcome::done;
}

@end
