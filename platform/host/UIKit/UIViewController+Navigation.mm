// Follows the UIViewController class reference, "Configuring a Navigation Interface".
#include "UIKit/UIViewController+State.h"

#import <UIKit/UINavigationController.h>

@interface UIViewController (Editing)
- (void)_hostShowEditing;
@end

@implementation UIViewController (UINavigationControllerItem)

- (UINavigationItem *)navigationItem {
    UIViewControllerState *state = [self _hostState];
    if (!state->navigationItem) {
        NSString *title = [self title];
        state->navigationItem = [[[UINavigationItem alloc] initWithTitle:title] autorelease];
    }
    return state->navigationItem;
}

- (UINavigationController *)navigationController {
    for (UIViewController *each = [self parentViewController]; each; each = [each parentViewController]) {
        if ([each isKindOfClass:[UINavigationController class]])
            return (UINavigationController *)each;
    }
    return nil;
}

- (BOOL)hidesBottomBarWhenPushed {
    return [self _hostState]->hidesBottomBar;
}

- (void)setHidesBottomBarWhenPushed:(BOOL)hides {
    [self _hostState]->hidesBottomBar = hides;
}

- (UIBarButtonItem *)editButtonItem {
    UIViewControllerState *state = [self _hostState];
    if (!state->editButtonItem) {
        state->editButtonItem =
            [[[UIBarButtonItem alloc] initWithTitle:nil
                                              style:UIBarButtonItemStylePlain
                                             target:self
                                             action:@selector(_hostToggleEditing)] autorelease];
        [self _hostShowEditing];
    }
    return state->editButtonItem;
}

- (void)_hostToggleEditing {
    [self setEditing:![self isEditing] animated:YES];
}

@end
