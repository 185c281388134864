// A view that edits one value, over the whole of a page: a row's `pane`, shown by PSDetailController.
#pragma once

#import <UIKit/UIView.h>

@class PSSpecifier, UIViewController;

@interface PSEditingPane : UIView {
    PSSpecifier *_specifier;
    UIViewController *_viewController; // not retained
    id _value;
}

/// The row whose value is edited.
@property (nonatomic, retain) PSSpecifier *preferenceSpecifier;

/// The value as it stands. The base only keeps what it was given; a subclass shows it, and gives what a
/// person made of it.
- (void)setPreferenceValue:(id)value;
- (id)preferenceValue;

/// The page around the pane. Not retained.
@property (nonatomic, assign) UIViewController *viewController;

@end
