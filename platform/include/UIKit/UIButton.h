// A button with a title, an image or both (UIButton class reference). What is not set for a state is taken
// from UIControlStateNormal.
#pragma once

#import <UIKit/UIControl.h>

@class UIImage, UIImageView, UILabel;

typedef NS_ENUM(NSInteger, UIButtonType) {
    UIButtonTypeCustom = 0,
    UIButtonTypeSystem = 1,
    UIButtonTypeDetailDisclosure = 2,
    UIButtonTypeInfoLight = 3,
    UIButtonTypeInfoDark = 4,
    UIButtonTypeContactAdd = 5,
    UIButtonTypeRoundedRect = UIButtonTypeSystem
};

@interface UIButton : UIControl {
@private
    struct UIButtonState *_button;
}

+ (id)buttonWithType:(UIButtonType)type;

@property (nonatomic, readonly) UIButtonType buttonType;
@property (nonatomic, readonly, retain) UILabel *titleLabel;
@property (nonatomic, readonly, retain) UIImageView *imageView;
@property (nonatomic) UIEdgeInsets contentEdgeInsets;
@property (nonatomic) UIEdgeInsets titleEdgeInsets;
@property (nonatomic) UIEdgeInsets imageEdgeInsets;

- (void)setTitle:(NSString *)title forState:(UIControlState)state;
- (void)setTitleColor:(UIColor *)color forState:(UIControlState)state;
- (void)setImage:(UIImage *)image forState:(UIControlState)state;
- (void)setBackgroundImage:(UIImage *)image forState:(UIControlState)state;

- (NSString *)titleForState:(UIControlState)state;
- (UIColor *)titleColorForState:(UIControlState)state;
- (UIImage *)imageForState:(UIControlState)state;
- (UIImage *)backgroundImageForState:(UIControlState)state;

@property (nonatomic, readonly, retain) NSString *currentTitle;
@property (nonatomic, readonly, retain) UIColor *currentTitleColor;
@property (nonatomic, readonly, retain) UIImage *currentImage;
@property (nonatomic, readonly, retain) UIImage *currentBackgroundImage;

@end
