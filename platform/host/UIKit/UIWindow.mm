// Follows the UIWindow class reference. A window keeps its root page's view as large as itself.
#include "UIKit/UIWindow+Host.h"

#include "host/Retained.h"
#include "UIKit/UIViewController+Host.h"

#import <UIKit/UIScreen.h>

#include <algorithm>
#include <vector>

struct UIWindowState {
    host::Retained<UIViewController *> root;
};

namespace {

/// Not retained: a window that goes away is taken out in its dealloc.
std::vector<UIWindow *> &windows() {
    static auto &all = *new std::vector<UIWindow *>;
    return all;
}

UIWindow *key = nil;

} // namespace

NSArray *host::shownWindows() {
    NSMutableArray *shown = [NSMutableArray array];
    for (UIWindow *window : windows()) {
        if (![window isHidden])
            [shown addObject:window];
    }
    return shown;
}

UIWindow *host::keyWindow() {
    return key;
}

@implementation UIWindow

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        _windowState = new UIWindowState;
        [self setHidden:YES];
        windows().push_back(self);
    }
    return self;
}

- (void)dealloc {
    std::erase(windows(), self);
    if (key == self)
        key = nil;
    delete _windowState;
    [super dealloc];
}

- (UIWindow *)window {
    return self;
}

- (BOOL)isKeyWindow {
    return key == self;
}

- (void)makeKeyWindow {
    key = self;
}

- (void)makeKeyAndVisible {
    [self makeKeyWindow];
    if (![self isHidden])
        return;
    [self setHidden:NO];
    [self _hostShowRoot];
}

- (UIViewController *)rootViewController {
    return _windowState->root;
}

- (void)setRootViewController:(UIViewController *)controller {
    if (_windowState->root.get() == controller)
        return;
    const host::Retained<UIViewController *> old = _windowState->root;
    _windowState->root = controller;
    if ([self isHidden])
        return;
    [self _hostHide:old];
    [self _hostShowRoot];
}

/// What the old root page presents goes with it.
- (void)_hostHide:(UIViewController *)old {
    if (!old)
        return;
    UIViewController *front = host::frontOf(old);
    [front _hostAppearance:host::Appearance::willDisappear animated:NO];
    [[front view] removeFromSuperview];
    [front _hostAppearance:host::Appearance::didDisappear animated:NO];
    [old _hostForgetPresented];
}

- (void)_hostShowRoot {
    UIViewController *root = _windowState->root;
    if (!root)
        return;
    host::placeInWindow(root, self);
    [root _hostAppearance:host::Appearance::willAppear animated:NO];
    [root _hostAppearance:host::Appearance::didAppear animated:NO];
}

@end
