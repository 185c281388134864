// How pages are shown: the calls that containers, windows and presentations make on them.
#pragma once

#import <UIKit/UIViewController.h>

#include <cstdint>

@class UIWindow;

namespace host {

enum class Appearance { willAppear, didAppear, willDisappear, didDisappear };

} // namespace host

@interface UIViewController (Host)

/// Names this page as long as it lives.
@property (nonatomic, readonly) unsigned long long _hostNumber;

/// Tells this page and then those that it contains and shows. A call that would repeat the state that the
/// page is in already is left out.
- (void)_hostAppearance:(host::Appearance)appearance animated:(BOOL)animated;

/// Between viewWillAppear: and viewDidDisappear:.
- (BOOL)_hostIsShown;

/// The contained pages that are on the screen when this one is; the base: those whose views are in a view.
- (NSArray *)_hostShownChildren;

/// Whether a child appears when its view is added to a view, and not when this container says so; the base:
/// YES.
- (BOOL)_hostShowsChildrenByTheirViews;

/// The innermost page in front: what a container shows, and what that contains.
- (UIViewController *)_hostInnermost;

/// Loads the views of this page and of those that it shows.
- (void)_hostLoad;

/// Puts the view and what the page contains into place; the base: gives the view `frame`.
- (void)_hostPlaceIn:(CGRect)frame;

- (void)_hostSetParent:(UIViewController *)parent;
/// Sends didMoveToParentViewController: once after each willMoveToParentViewController:.
- (void)_hostTellParent;

- (void)_hostSetMovingTo:(BOOL)movingTo from:(BOOL)movingFrom;

/// Lets go what this page presents, and what that presents, without a word to anybody.
- (void)_hostForgetPresented;

@end

namespace host {

/// The page in front of all that `root` and what it presents present.
[[nodiscard]] UIViewController *frontOf(UIViewController *root);

/// Loads the view of `controller` and adds it to `window`, over what is there.
void placeInWindow(UIViewController *controller, UIWindow *window);

} // namespace host
