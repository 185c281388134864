#pragma once

#import <UIKit/UINavigationBar.h>

@class UINavigationController;

@interface UINavigationBar (Host)

/// The controller whose pages the bar shows; it owns the bar.
- (void)_hostSetController:(UINavigationController *)controller;

/// Puts the views of the top page's items into place.
- (void)_hostArrange;

@end
