// A stack of pages (UINavigationController class reference). The stack changes at once; the pages are told in
// the next turn of the run loop.
#pragma once

#import <UIKit/UIViewController.h>

@class UINavigationBar, UINavigationController;

@protocol UINavigationControllerDelegate <NSObject>
@optional
- (void)navigationController:(UINavigationController *)navigationController
      willShowViewController:(UIViewController *)viewController
                    animated:(BOOL)animated;
- (void)navigationController:(UINavigationController *)navigationController
       didShowViewController:(UIViewController *)viewController
                    animated:(BOOL)animated;
@end

@interface UINavigationController : UIViewController {
@private
    struct UINavigationControllerState *_navigation;
}

- (id)initWithRootViewController:(UIViewController *)root;

@property (nonatomic, copy) NSArray *viewControllers;
@property (nonatomic, readonly, retain) UIViewController *topViewController;
/// The top page, or what it presents.
@property (nonatomic, readonly, retain) UIViewController *visibleViewController;
@property (nonatomic, readonly) UINavigationBar *navigationBar;
@property (nonatomic, getter=isNavigationBarHidden) BOOL navigationBarHidden;
@property (nonatomic, assign) id<UINavigationControllerDelegate> delegate;

- (void)pushViewController:(UIViewController *)controller animated:(BOOL)animated;
- (UIViewController *)popViewControllerAnimated:(BOOL)animated;
- (NSArray *)popToRootViewControllerAnimated:(BOOL)animated;
- (NSArray *)popToViewController:(UIViewController *)controller animated:(BOOL)animated;
- (void)setViewControllers:(NSArray *)controllers animated:(BOOL)animated;
- (void)setNavigationBarHidden:(BOOL)hidden animated:(BOOL)animated;

@end
