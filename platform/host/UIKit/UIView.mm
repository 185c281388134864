// Follows the UIView class reference: the properties. The tree, layout and the host's hooks are in
// UIView+*.mm.
#include "host/Numbers.h"
#include "UIKit/UIColor+Host.h"
#include "UIKit/UIView+Focus.h"
#include "UIKit/UIView+Layout.h"
#include "UIKit/UIView+State.h"
#import <UIKit/UIViewController.h>

UIViewController *host::controllerOf(UIView *view) {
    return numberedObject([view _hostState]->controllerNumber);
}

namespace {

void tellTintChanged(UIView *view) {
    [view tintColorDidChange];
    for (UIView *subview in [view subviews]) {
        if (![subview _hostState]->tintColor)
            tellTintChanged(subview);
    }
}

} // namespace

@implementation UIView

- (id)init {
    return [self initWithFrame:CGRectZero];
}

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super init])) {
        _viewState = new UIViewState;
        _viewState->number = host::giveNumber(self);
        [self setFrame:frame];
    }
    return self;
}

- (void)dealloc {
    if (!_viewState) // init never ran
        return [super dealloc];
    host::forgetFocusWish(self);
    host::forgetNumber(_viewState->number);
    for (UIView *subview in _viewState->subviews.get())
        [subview _hostState]->superview = nil;
    delete _viewState;
    [super dealloc];
}

- (struct UIViewState *)_hostState {
    return _viewState;
}

- (UIResponder *)nextResponder {
    UIViewController *controller = host::controllerOf(self);
    return controller ? controller : (UIResponder *)_viewState->superview;
}

- (CGRect)frame {
    CGRect frame;
    frame.origin = _viewState->origin;
    frame.size = _viewState->bounds.size;
    return frame;
}

- (void)setFrame:(CGRect)frame {
    _viewState->origin = frame.origin;
    CGRect bounds = _viewState->bounds;
    bounds.size = frame.size;
    [self setBounds:bounds];
}

- (CGRect)bounds {
    return _viewState->bounds;
}

- (void)setBounds:(CGRect)bounds {
    const CGSize before = _viewState->bounds.size;
    _viewState->bounds = bounds;
    if (CGSizeEqualToSize(before, bounds.size))
        return;
    [self setNeedsLayout];
    if (_viewState->autoresizesSubviews)
        host::autoresizeSubviews(self, before);
}

- (CGPoint)center {
    const CGRect frame = [self frame];
    return CGPointMake(CGRectGetMidX(frame), CGRectGetMidY(frame));
}

- (void)setCenter:(CGPoint)center {
    const CGSize size = _viewState->bounds.size;
    [self
        setFrame:CGRectMake(center.x - size.width / 2, center.y - size.height / 2, size.width, size.height)];
}

- (UIViewAutoresizing)autoresizingMask {
    return _viewState->autoresizingMask;
}

- (void)setAutoresizingMask:(UIViewAutoresizing)mask {
    _viewState->autoresizingMask = mask;
}

- (BOOL)autoresizesSubviews {
    return _viewState->autoresizesSubviews;
}

- (void)setAutoresizesSubviews:(BOOL)resizes {
    _viewState->autoresizesSubviews = resizes;
}

- (UIViewContentMode)contentMode {
    return _viewState->contentMode;
}

- (void)setContentMode:(UIViewContentMode)mode {
    _viewState->contentMode = mode;
}

- (BOOL)isHidden {
    return _viewState->hidden;
}

- (void)setHidden:(BOOL)hidden {
    _viewState->hidden = hidden;
}

- (CGFloat)alpha {
    return _viewState->alpha;
}

- (void)setAlpha:(CGFloat)alpha {
    _viewState->alpha = alpha;
}

- (BOOL)isOpaque {
    return _viewState->opaque;
}

- (void)setOpaque:(BOOL)opaque {
    _viewState->opaque = opaque;
}

- (BOOL)clipsToBounds {
    return _viewState->clipsToBounds;
}

- (void)setClipsToBounds:(BOOL)clips {
    _viewState->clipsToBounds = clips;
}

- (NSInteger)tag {
    return _viewState->tag;
}

- (void)setTag:(NSInteger)tag {
    _viewState->tag = tag;
}

- (UIColor *)backgroundColor {
    return _viewState->backgroundColor;
}

- (void)setBackgroundColor:(UIColor *)color {
    _viewState->backgroundColor = color;
}

- (UIColor *)tintColor {
    if (_viewState->tintColor)
        return _viewState->tintColor;
    return _viewState->superview ? [_viewState->superview tintColor] : host::systemTint();
}

- (void)setTintColor:(UIColor *)color {
    _viewState->tintColor = color;
    tellTintChanged(self);
}

- (void)tintColorDidChange {
}

- (BOOL)isUserInteractionEnabled {
    return _viewState->userInteractionEnabled;
}

- (void)setUserInteractionEnabled:(BOOL)enabled {
    _viewState->userInteractionEnabled = enabled;
}

- (BOOL)becomeFirstResponder {
    if (![self window] && [self canBecomeFirstResponder]) {
        host::wishForFocus(self);
        return NO;
    }
    if (![super becomeFirstResponder])
        return NO;
    host::forgetFocusWish(nil);
    return YES;
}

@end
