// Follows the UIImageView class reference. An image view takes no touches by itself.
#import <UIKit/UIImageView.h>

#include "UIKit/UIImage+Host.h"
#include "UIKit/UIView+Host.h"

@implementation UIImageView

@synthesize highlightedImage = _highlightedImage, highlighted = _highlighted;

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        [self setUserInteractionEnabled:NO];
    return self;
}

- (id)initWithImage:(UIImage *)image {
    return [self initWithImage:image highlightedImage:nil];
}

- (id)initWithImage:(UIImage *)image highlightedImage:(UIImage *)highlightedImage {
    const CGSize size = [image size];
    if ((self = [self initWithFrame:CGRectMake(0, 0, size.width, size.height)])) {
        _image = [image retain];
        _highlightedImage = [highlightedImage retain];
    }
    return self;
}

- (void)dealloc {
    [_image release];
    [_highlightedImage release];
    [super dealloc];
}

- (UIImage *)image {
    return _image;
}

- (void)setImage:(UIImage *)image {
    [image retain];
    [_image release];
    _image = image;
    [[self superview] setNeedsLayout];
}

- (CGSize)sizeThatFits:(CGSize)size {
    return [_image size];
}

- (BOOL)_hostDescribe:(host::Element &)element {
    UIImage *shown = _highlighted && _highlightedImage ? _highlightedImage : _image;
    if (!shown)
        return NO;
    element.type = "Image";
    host::describeImage(element, shown);
    return YES;
}

@end
