#import <CoreGraphics/CGGeometry.h>

extern const CGPoint CGPointZero = {0, 0};
extern const CGSize CGSizeZero = {0, 0};
extern const CGRect CGRectZero = {{0, 0}, {0, 0}};
