// UIScrollView: a view that shows a part of a larger content. After Apple's UIScrollView Class Reference (iOS
// 8).
#pragma once

#import <UIKit/UIGeometry.h>
#import <UIKit/UIView.h>

@class UIScrollView;

@protocol UIScrollViewDelegate <NSObject>
@optional
- (void)scrollViewDidScroll:(UIScrollView *)scrollView;
- (void)scrollViewWillBeginDragging:(UIScrollView *)scrollView;
- (void)scrollViewDidEndDragging:(UIScrollView *)scrollView willDecelerate:(BOOL)decelerate;
- (void)scrollViewDidEndScrollingAnimation:(UIScrollView *)scrollView;
@end

@interface UIScrollView : UIView {
@private
    struct UIScrollViewState *_scrollState;
}

@property (nonatomic) CGPoint contentOffset;
@property (nonatomic) CGSize contentSize;
@property (nonatomic) UIEdgeInsets contentInset;
@property (nonatomic) UIEdgeInsets scrollIndicatorInsets;
@property (nonatomic, assign) id<UIScrollViewDelegate> delegate;
@property (nonatomic, getter=isScrollEnabled) BOOL scrollEnabled;
@property (nonatomic, readonly, getter=isDragging) BOOL dragging;

/// Animated offsets arrive at once; scrollViewDidEndScrollingAnimation: is sent all the same.
- (void)setContentOffset:(CGPoint)contentOffset animated:(BOOL)animated;
- (void)scrollRectToVisible:(CGRect)rect animated:(BOOL)animated;

@end
