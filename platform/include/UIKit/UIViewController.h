// A page (UIViewController class reference).
#pragma once

#import <UIKit/UIGeometry.h>
#import <UIKit/UIResponder.h>

@class UIBarButtonItem, UINavigationController, UINavigationItem, UIView;

typedef NS_ENUM(NSInteger, UIModalPresentationStyle) {
    UIModalPresentationFullScreen = 0,
    UIModalPresentationPageSheet = 1,
    UIModalPresentationFormSheet = 2,
    UIModalPresentationCurrentContext = 3
};

typedef NS_ENUM(NSInteger, UIModalTransitionStyle) {
    UIModalTransitionStyleCoverVertical = 0,
    UIModalTransitionStyleFlipHorizontal = 1,
    UIModalTransitionStyleCrossDissolve = 2,
    UIModalTransitionStylePartialCurl = 3
};

@interface UIViewController : UIResponder {
@private
    struct UIViewControllerState *_controllerState;
}

/// There are no nib files on this platform; both names are kept and otherwise unused.
- (id)initWithNibName:(NSString *)nibName bundle:(NSBundle *)nibBundle;
@property (nonatomic, readonly, copy) NSString *nibName;
@property (nonatomic, readonly, retain) NSBundle *nibBundle;

/// Loaded at its first use: loadView, then viewDidLoad.
@property (nonatomic, retain) UIView *view;
- (BOOL)isViewLoaded;
- (void)loadView;
- (void)viewDidLoad;

@property (nonatomic, copy) NSString *title;

- (void)viewWillAppear:(BOOL)animated;
- (void)viewDidAppear:(BOOL)animated;
- (void)viewWillDisappear:(BOOL)animated;
- (void)viewDidDisappear:(BOOL)animated;
- (void)viewWillLayoutSubviews;
- (void)viewDidLayoutSubviews;

@property (nonatomic, getter=isEditing) BOOL editing;
- (void)setEditing:(BOOL)editing animated:(BOOL)animated;

@property (nonatomic) UIRectEdge edgesForExtendedLayout;
@property (nonatomic) BOOL automaticallyAdjustsScrollViewInsets;
@property (nonatomic) CGSize preferredContentSize;

@end

@interface UIViewController (UIContainerViewControllers)
@property (nonatomic, readonly) UIViewController *parentViewController;
@property (nonatomic, readonly) NSArray *childViewControllers;
- (void)addChildViewController:(UIViewController *)child;
- (void)removeFromParentViewController;
- (void)willMoveToParentViewController:(UIViewController *)parent;
- (void)didMoveToParentViewController:(UIViewController *)parent;
- (BOOL)isMovingToParentViewController;
- (BOOL)isMovingFromParentViewController;
@end

@interface UIViewController (UIModalPresentation)
/// What this page, or a page that contains it, presents.
@property (nonatomic, readonly) UIViewController *presentedViewController;
/// What presented this page or a page that contains it.
@property (nonatomic, readonly) UIViewController *presentingViewController;
@property (nonatomic) UIModalPresentationStyle modalPresentationStyle;
@property (nonatomic) UIModalTransitionStyle modalTransitionStyle;
- (BOOL)isBeingPresented;
- (BOOL)isBeingDismissed;
- (void)presentViewController:(UIViewController *)controller
                     animated:(BOOL)animated
                   completion:(void (^)(void))completion;
- (void)dismissViewControllerAnimated:(BOOL)animated completion:(void (^)(void))completion;
@end

@interface UIViewController (UINavigationControllerItem)
/// Made at its first use, with the title that the page has then.
@property (nonatomic, readonly, retain) UINavigationItem *navigationItem;
/// The nearest navigation controller that holds this page or a page that contains it.
@property (nonatomic, readonly, retain) UINavigationController *navigationController;
@property (nonatomic) BOOL hidesBottomBarWhenPushed;
/// A button that turns editing on and off.
- (UIBarButtonItem *)editButtonItem;
@end
