// What a page remembers; for UIViewController's own files alone.
#pragma once

#import <UIKit/UIBarButtonItem.h>
#import <UIKit/UINavigationItem.h>
#import <UIKit/UIView.h>

#include "host/Retained.h"
#include "UIKit/UIViewController+Host.h"

struct UIViewControllerState {
    host::Retained<NSString *> nibName;
    host::Retained<NSBundle *> nibBundle;
    host::Retained<UIView *> view;
    host::Retained<NSString *> title;
    host::Retained<UINavigationItem *> navigationItem;
    host::Retained<UIBarButtonItem *> editButtonItem;

    UIViewController *parent = nil; ///< not retained: it retains this page
    host::Retained<NSMutableArray *> children = host::Retained<NSMutableArray *>::adopt([NSMutableArray new]);
    bool toldOfParent = false;
    bool movingTo = false, movingFrom = false;

    host::Retained<UIViewController *> presented;
    UIViewController *presenting = nil; ///< not retained: it retains this page
    bool beingPresented = false, beingDismissed = false;
    UIModalPresentationStyle presentationStyle = UIModalPresentationFullScreen;
    UIModalTransitionStyle transitionStyle = UIModalTransitionStyleCoverVertical;

    host::Appearance appearance = host::Appearance::didDisappear;
    bool editing = false;
    bool hidesBottomBar = false;
    UIRectEdge edges = UIRectEdgeAll;
    bool adjustsInsets = true;
    CGSize preferredContentSize = {0, 0};
    std::uint64_t number = 0;
};

@interface UIViewController (State)
- (struct UIViewControllerState *)_hostState;
@end
