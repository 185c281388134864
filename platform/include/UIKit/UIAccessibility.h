// Names for people and programs that do not see the screen (UIAccessibility and UIAccessibilityIdentification
// reference).
#pragma once

#import <UIKit/UIView.h>

@interface UIView (UIAccessibility)
@property (nonatomic, copy) NSString *accessibilityLabel;
@property (nonatomic, copy) NSString *accessibilityIdentifier;
@end
