// Follows the UIBarItem class reference.
#import <UIKit/UIBarItem.h>

@implementation UIBarItem

@synthesize title = _title, image = _image, enabled = _enabled, tag = _tag;

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

@end
