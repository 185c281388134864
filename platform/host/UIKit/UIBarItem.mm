// Follows the UIBarItem class reference.
#import <UIKit/UIBarItem.h>

#import <UIKit/UIImage.h>

@implementation UIBarItem

- (id)init {
    if ((self = [super init]))
        _enabled = YES;
    return self;
}

- (void)dealloc {
    [_title release];
    [_image release];
    [super dealloc];
}

- (NSString *)title {
    return _title;
}

- (void)setTitle:(NSString *)title {
    NSString *old = _title;
    _title = [title copy];
    [old release];
}

- (UIImage *)image {
    return _image;
}

- (void)setImage:(UIImage *)image {
    [image retain];
    [_image release];
    _image = image;
}

- (BOOL)isEnabled {
    return _enabled;
}

- (void)setEnabled:(BOOL)enabled {
    _enabled = enabled;
}

- (NSInteger)tag {
    return _tag;
}

- (void)setTag:(NSInteger)tag {
    _tag = tag;
}

@end
