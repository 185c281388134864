// A turning wheel (UIActivityIndicatorView class reference).
#pragma once

#import <UIKit/UIView.h>

typedef NS_ENUM(NSInteger, UIActivityIndicatorViewStyle) {
    UIActivityIndicatorViewStyleWhiteLarge = 0,
    UIActivityIndicatorViewStyleWhite = 1,
    UIActivityIndicatorViewStyleGray = 2
};

@interface UIActivityIndicatorView : UIView {
@private
    UIActivityIndicatorViewStyle _style;
    BOOL _animating;
    BOOL _hidesWhenStopped;
}

- (id)initWithActivityIndicatorStyle:(UIActivityIndicatorViewStyle)style;

@property (nonatomic) UIActivityIndicatorViewStyle activityIndicatorViewStyle;
@property (nonatomic) BOOL hidesWhenStopped;

- (void)startAnimating;
- (void)stopAnimating;
- (BOOL)isAnimating;

@end
