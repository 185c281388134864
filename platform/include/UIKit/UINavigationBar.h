// The bar at the top of a navigation controller (UINavigationBar class reference). It shows the navigation
// items of the controller that owns it; a bar without a controller is not part of this platform.
#pragma once

#import <UIKit/UIView.h>

@class UINavigationItem;

typedef NS_ENUM(NSInteger, UIBarStyle) { UIBarStyleDefault = 0, UIBarStyleBlack = 1 };

@interface UINavigationBar : UIView {
@private
    struct UINavigationBarState *_bar;
}

@property (nonatomic) UIBarStyle barStyle;
@property (nonatomic, getter=isTranslucent) BOOL translucent;
@property (nonatomic, retain) UIColor *barTintColor;
@property (nonatomic, copy) NSDictionary *titleTextAttributes;
@property (nonatomic, readonly, copy) NSArray *items;
@property (nonatomic, readonly, retain) UINavigationItem *topItem;
@property (nonatomic, readonly, retain) UINavigationItem *backItem;

@end
