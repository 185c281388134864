// Follows the UIActivityIndicatorView class reference.
#import <UIKit/UIActivityIndicatorView.h>

#include "UIKit/UIView+Host.h"

@implementation UIActivityIndicatorView

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        _style = UIActivityIndicatorViewStyleWhite;
        _hidesWhenStopped = YES;
    }
    return self;
}

- (id)initWithActivityIndicatorStyle:(UIActivityIndicatorViewStyle)style {
    if ((self = [self initWithFrame:CGRectZero])) {
        _style = style;
        [self sizeToFit];
    }
    return self;
}

- (CGSize)sizeThatFits:(CGSize)size {
    const CGFloat side = _style == UIActivityIndicatorViewStyleWhiteLarge ? 37 : 20;
    return CGSizeMake(side, side);
}

- (UIActivityIndicatorViewStyle)activityIndicatorViewStyle {
    return _style;
}

- (void)setActivityIndicatorViewStyle:(UIActivityIndicatorViewStyle)style {
    _style = style;
}

- (BOOL)hidesWhenStopped {
    return _hidesWhenStopped;
}

- (void)setHidesWhenStopped:(BOOL)hides {
    _hidesWhenStopped = hides;
}

- (void)startAnimating {
    _animating = YES;
}

- (void)stopAnimating {
    _animating = NO;
}

- (BOOL)isAnimating {
    return _animating;
}

- (BOOL)_hostDescribe:(host::Element &)element {
    if (!_animating && _hidesWhenStopped)
        return NO;
    element.type = "ActivityIndicator";
    element.value = _animating ? "1" : "0";
    return YES;
}

@end
