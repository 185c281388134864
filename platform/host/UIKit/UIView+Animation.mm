// Follows the UIView class reference, "Animating Views with Block Objects".
#import <UIKit/UIView.h>

#include "host/Work.h"

@implementation UIView (UIViewAnimation)

+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations {
    [self animateWithDuration:duration animations:animations completion:nullptr];
}

+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
    [self animateWithDuration:duration delay:0 options:0 animations:animations completion:completion];
}

+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
    animations();
    if (!completion)
        return;
    void (^kept)(BOOL) = Block_copy(completion);
    host::later([kept] {
        kept(YES);
        Block_release(kept);
    });
}

@end
