// A rectangle on the screen (UIView class reference). Drawing is not part of this platform: a view says what
// it shows, see its class. Constraints are not either; autoresizing masks are.
#pragma once

#import <CoreGraphics/CGGeometry.h>
#import <UIKit/UIGeometry.h>
#import <UIKit/UIResponder.h>

@class UIColor, UIWindow;

typedef NS_ENUM(NSInteger, UIViewContentMode) {
    UIViewContentModeScaleToFill = 0,
    UIViewContentModeScaleAspectFit = 1,
    UIViewContentModeScaleAspectFill = 2,
    UIViewContentModeRedraw = 3,
    UIViewContentModeCenter = 4,
    UIViewContentModeTop = 5,
    UIViewContentModeBottom = 6,
    UIViewContentModeLeft = 7,
    UIViewContentModeRight = 8,
    UIViewContentModeTopLeft = 9,
    UIViewContentModeTopRight = 10,
    UIViewContentModeBottomLeft = 11,
    UIViewContentModeBottomRight = 12
};

typedef NS_OPTIONS(NSUInteger, UIViewAutoresizing) {
    UIViewAutoresizingNone = 0,
    UIViewAutoresizingFlexibleLeftMargin = 1 << 0,
    UIViewAutoresizingFlexibleWidth = 1 << 1,
    UIViewAutoresizingFlexibleRightMargin = 1 << 2,
    UIViewAutoresizingFlexibleTopMargin = 1 << 3,
    UIViewAutoresizingFlexibleHeight = 1 << 4,
    UIViewAutoresizingFlexibleBottomMargin = 1 << 5
};

typedef NS_OPTIONS(NSUInteger, UIViewAnimationOptions) {
    UIViewAnimationOptionLayoutSubviews = 1 << 0,
    UIViewAnimationOptionAllowUserInteraction = 1 << 1,
    UIViewAnimationOptionBeginFromCurrentState = 1 << 2
};

@interface UIView : UIResponder {
@private
    struct UIViewState *_viewState;
}

- (id)initWithFrame:(CGRect)frame;

@property (nonatomic) CGRect frame;
@property (nonatomic) CGRect bounds;
@property (nonatomic) CGPoint center;
@property (nonatomic) UIViewAutoresizing autoresizingMask;
@property (nonatomic) BOOL autoresizesSubviews;
@property (nonatomic) UIViewContentMode contentMode;

@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic) CGFloat alpha;
@property (nonatomic, getter=isOpaque) BOOL opaque;
@property (nonatomic) BOOL clipsToBounds;
@property (nonatomic) NSInteger tag;
@property (nonatomic, copy) UIColor *backgroundColor;
/// The superview's until one is set; blue where nobody set one.
@property (nonatomic, retain) UIColor *tintColor;
@property (nonatomic, getter=isUserInteractionEnabled) BOOL userInteractionEnabled;

- (void)tintColorDidChange;

@end

@interface UIView (UIViewHierarchy)

@property (nonatomic, readonly) UIView *superview;
@property (nonatomic, readonly, copy) NSArray *subviews;
@property (nonatomic, readonly) UIWindow *window;

- (void)addSubview:(UIView *)view;
- (void)insertSubview:(UIView *)view atIndex:(NSInteger)index;
- (void)insertSubview:(UIView *)view belowSubview:(UIView *)sibling;
- (void)insertSubview:(UIView *)view aboveSubview:(UIView *)sibling;
- (void)bringSubviewToFront:(UIView *)view;
- (void)sendSubviewToBack:(UIView *)view;
- (void)removeFromSuperview;
- (BOOL)isDescendantOfView:(UIView *)view;
- (UIView *)viewWithTag:(NSInteger)tag;

- (void)didAddSubview:(UIView *)subview;
- (void)willRemoveSubview:(UIView *)subview;
- (void)willMoveToSuperview:(UIView *)newSuperview;
- (void)didMoveToSuperview;
- (void)willMoveToWindow:(UIWindow *)newWindow;
- (void)didMoveToWindow;

/// Asks the field inside that has the keyboard to give it back, or makes it when `force` is set.
- (BOOL)endEditing:(BOOL)force;

@end

@interface UIView (UIViewLayout)

- (CGSize)sizeThatFits:(CGSize)size;
- (void)sizeToFit;
- (void)setNeedsLayout;
- (void)layoutIfNeeded;
- (void)layoutSubviews;
- (void)setNeedsDisplay;

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView *)view;
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView *)view;
- (CGRect)convertRect:(CGRect)rect toView:(UIView *)view;
- (CGRect)convertRect:(CGRect)rect fromView:(UIView *)view;

@end

/// Animations take no time here: the changes are made at once, the completion follows in a later turn of the
/// loop.
@interface UIView (UIViewAnimation)
+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations;
+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
@end
