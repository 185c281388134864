// Follows the UIScreen class reference.
#import <UIKit/UIScreen.h>

#include "host/Device.h"
#include "UIKit/Metrics.h"

@implementation UIScreen

+ (UIScreen *)mainScreen {
    static UIScreen *screen = [UIScreen new];
    return screen;
}

- (CGRect)bounds {
    return CGRectMake(0, 0, host::device().width, host::device().height);
}

- (CGRect)applicationFrame {
    CGRect frame = [self bounds];
    frame.origin.y += host::statusBarHeight;
    frame.size.height -= host::statusBarHeight;
    return frame;
}

- (CGFloat)scale {
    return host::device().scale;
}

@end
