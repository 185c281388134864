// One choice of a few, side by side (UISegmentedControl class reference).
#pragma once

#import <UIKit/UIControl.h>

@class UIImage;

enum { UISegmentedControlNoSegment = -1 };

@interface UISegmentedControl : UIControl {
@private
    struct UISegmentedControlState *_segments;
}

/// `items` are strings and images.
- (id)initWithItems:(NSArray *)items;

@property (nonatomic, readonly) NSUInteger numberOfSegments;
@property (nonatomic) NSInteger selectedSegmentIndex;
@property (nonatomic, getter=isMomentary) BOOL momentary;

- (void)insertSegmentWithTitle:(NSString *)title atIndex:(NSUInteger)index animated:(BOOL)animated;
- (void)insertSegmentWithImage:(UIImage *)image atIndex:(NSUInteger)index animated:(BOOL)animated;
- (void)removeSegmentAtIndex:(NSUInteger)index animated:(BOOL)animated;
- (void)removeAllSegments;
- (void)setTitle:(NSString *)title forSegmentAtIndex:(NSUInteger)index;
- (NSString *)titleForSegmentAtIndex:(NSUInteger)index;
- (void)setImage:(UIImage *)image forSegmentAtIndex:(NSUInteger)index;
- (UIImage *)imageForSegmentAtIndex:(NSUInteger)index;
- (void)setEnabled:(BOOL)enabled forSegmentAtIndex:(NSUInteger)index;
- (BOOL)isEnabledForSegmentAtIndex:(NSUInteger)index;

@end
