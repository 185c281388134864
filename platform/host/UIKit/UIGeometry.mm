#import <UIKit/UIGeometry.h>

extern const UIEdgeInsets UIEdgeInsetsZero = {0, 0, 0, 0};

@implementation NSValue (UIGeometryExtensions)

+ (NSValue *)valueWithCGPoint:(CGPoint)point {
    return [NSValue valueWithPoint:point];
}

+ (NSValue *)valueWithCGSize:(CGSize)size {
    return [NSValue valueWithSize:size];
}

+ (NSValue *)valueWithCGRect:(CGRect)rect {
    return [NSValue valueWithRect:rect];
}

- (CGPoint)CGPointValue {
    return [self pointValue];
}

- (CGSize)CGSizeValue {
    return [self sizeValue];
}

- (CGRect)CGRectValue {
    return [self rectValue];
}

@end
