// A choice of actions at the bottom of the screen (UIActionSheet class reference). The delegate is not
// retained; a shown sheet is kept until it has gone.
#pragma once

#import <UIKit/UIView.h>

@class UIActionSheet, UIBarButtonItem;

typedef NS_ENUM(NSInteger, UIActionSheetStyle) {
    UIActionSheetStyleAutomatic = -1,
    UIActionSheetStyleDefault = 0,
    UIActionSheetStyleBlackTranslucent = 1,
    UIActionSheetStyleBlackOpaque = 2
};

@protocol UIActionSheetDelegate <NSObject>
@optional
- (void)actionSheet:(UIActionSheet *)actionSheet clickedButtonAtIndex:(NSInteger)buttonIndex;
- (void)willPresentActionSheet:(UIActionSheet *)actionSheet;
- (void)didPresentActionSheet:(UIActionSheet *)actionSheet;
- (void)actionSheet:(UIActionSheet *)actionSheet willDismissWithButtonIndex:(NSInteger)buttonIndex;
- (void)actionSheet:(UIActionSheet *)actionSheet didDismissWithButtonIndex:(NSInteger)buttonIndex;
/// The system takes the sheet away; without this method it is as if the cancel button was tapped.
- (void)actionSheetCancel:(UIActionSheet *)actionSheet;
@end

@interface UIActionSheet : UIView {
@private
    struct UIActionSheetState *_sheet;
}

- (id)initWithTitle:(NSString *)title
                  delegate:(id<UIActionSheetDelegate>)delegate
         cancelButtonTitle:(NSString *)cancelButtonTitle
    destructiveButtonTitle:(NSString *)destructiveButtonTitle
         otherButtonTitles:(NSString *)otherButtonTitles, ... __attribute__((sentinel(0, 1)));

@property (nonatomic, assign) id<UIActionSheetDelegate> delegate;
@property (nonatomic, copy) NSString *title;
@property (nonatomic) UIActionSheetStyle actionSheetStyle;

/// Returns the index of the new button.
- (NSInteger)addButtonWithTitle:(NSString *)title;
- (NSString *)buttonTitleAtIndex:(NSInteger)buttonIndex;
@property (nonatomic, readonly) NSInteger numberOfButtons;
@property (nonatomic) NSInteger cancelButtonIndex;
@property (nonatomic) NSInteger destructiveButtonIndex;
@property (nonatomic, readonly) NSInteger firstOtherButtonIndex;
@property (nonatomic, readonly, getter=isVisible) BOOL visible;

- (void)showInView:(UIView *)view;
- (void)showFromBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated;
- (void)showFromRect:(CGRect)rect inView:(UIView *)view animated:(BOOL)animated;
- (void)dismissWithClickedButtonIndex:(NSInteger)buttonIndex animated:(BOOL)animated;

@end
