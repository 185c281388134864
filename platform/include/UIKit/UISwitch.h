// On or off (UISwitch class reference). Always 51 by 31 points.
#pragma once

#import <UIKit/UIControl.h>

@interface UISwitch : UIControl {
@private
    BOOL _on;
    UIColor *_onTintColor;
}

@property (nonatomic, getter=isOn) BOOL on;
@property (nonatomic, retain) UIColor *onTintColor;

/// Sends no actions; a person's tap does.
- (void)setOn:(BOOL)on animated:(BOOL)animated;

@end
