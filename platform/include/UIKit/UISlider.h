// A number between two ends (UISlider class reference).
#pragma once

#import <UIKit/UIControl.h>

@class UIImage;

@interface UISlider : UIControl {
@private
    float _value, _minimumValue, _maximumValue;
    BOOL _continuous;
    UIImage *_minimumValueImage, *_maximumValueImage;
}

@property (nonatomic) float value;
@property (nonatomic) float minimumValue;
@property (nonatomic) float maximumValue;
@property (nonatomic, retain) UIImage *minimumValueImage;
@property (nonatomic, retain) UIImage *maximumValueImage;
/// Whether actions are sent while the finger moves, or once when it lets go.
@property (nonatomic, getter=isContinuous) BOOL continuous;

/// Keeps the value between the ends; sends no actions.
- (void)setValue:(float)value animated:(BOOL)animated;

@end
