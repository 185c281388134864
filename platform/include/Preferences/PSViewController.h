// A page of Settings.
#pragma once

#import <UIKit/UIKit.h>

@class PSListController, PSRootController, PSSpecifier;

/// The base of all pages. Whoever opens a page sends `setRootController:`, `setParentController:` and
/// `setSpecifier:`, in this order, before the view is loaded.
@interface PSViewController : UIViewController {
    UIViewController *_parentController; // not retained
    PSRootController *_rootController;   // not retained
    PSSpecifier *_specifier;
}

/// The page that opened this one.
@property (nonatomic, assign) UIViewController *parentController;
/// The stack of pages.
@property (nonatomic, assign) PSRootController *rootController;
/// The row that opened this page.
@property (nonatomic, retain) PSSpecifier *specifier;

/// The stored value of the specifier's `key` in its domain `defaults`; without one, its property `default`.
- (id)readPreferenceValue:(PSSpecifier *)specifier;

/// Stores the value (nil removes the key) and then posts the specifier's `PostNotification`, if it names one.
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;

/// Pushes a page, or nothing at all for nil.
- (void)pushController:(UIViewController *)controller;
- (void)pushController:(UIViewController *)controller animate:(BOOL)animate;

@end
