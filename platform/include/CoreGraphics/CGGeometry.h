// Points, sizes and rectangles (CGGeometry reference). On Linux they are Foundation's own structures, so that
// a rectangle may be given to either framework; elsewhere they are structures of the same shape.
#pragma once

#import <Foundation/Foundation.h>

#ifdef GNUSTEP

typedef NSPoint CGPoint;
typedef NSSize CGSize;
typedef NSRect CGRect;

#else

typedef struct CGPoint {
    CGFloat x, y;
} CGPoint;

typedef struct CGSize {
    CGFloat width, height;
} CGSize;

typedef struct CGRect {
    CGPoint origin;
    CGSize size;
} CGRect;

#endif

static inline CGPoint CGPointMake(CGFloat x, CGFloat y) {
    CGPoint point = {x, y};
    return point;
}

static inline CGSize CGSizeMake(CGFloat width, CGFloat height) {
    CGSize size = {width, height};
    return size;
}

static inline CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    CGRect rect;
    rect.origin = CGPointMake(x, y);
    rect.size = CGSizeMake(width, height);
    return rect;
}

static inline bool CGPointEqualToPoint(CGPoint a, CGPoint b) {
    return a.x == b.x && a.y == b.y;
}

static inline bool CGSizeEqualToSize(CGSize a, CGSize b) {
    return a.width == b.width && a.height == b.height;
}

static inline bool CGRectEqualToRect(CGRect a, CGRect b) {
    return CGPointEqualToPoint(a.origin, b.origin) && CGSizeEqualToSize(a.size, b.size);
}

static inline CGFloat CGRectGetMinX(CGRect rect) {
    return rect.origin.x;
}

static inline CGFloat CGRectGetMinY(CGRect rect) {
    return rect.origin.y;
}

static inline CGFloat CGRectGetMaxX(CGRect rect) {
    return rect.origin.x + rect.size.width;
}

static inline CGFloat CGRectGetMaxY(CGRect rect) {
    return rect.origin.y + rect.size.height;
}

static inline CGFloat CGRectGetMidX(CGRect rect) {
    return rect.origin.x + rect.size.width / 2;
}

static inline CGFloat CGRectGetMidY(CGRect rect) {
    return rect.origin.y + rect.size.height / 2;
}

static inline CGFloat CGRectGetWidth(CGRect rect) {
    return rect.size.width;
}

static inline CGFloat CGRectGetHeight(CGRect rect) {
    return rect.size.height;
}

static inline bool CGRectIsEmpty(CGRect rect) {
    return rect.size.width <= 0 || rect.size.height <= 0;
}

static inline bool CGRectContainsPoint(CGRect rect, CGPoint point) {
    return point.x >= CGRectGetMinX(rect) && point.x < CGRectGetMaxX(rect) &&
           point.y >= CGRectGetMinY(rect) && point.y < CGRectGetMaxY(rect);
}

static inline bool CGRectIntersectsRect(CGRect a, CGRect b) {
    return CGRectGetMinX(a) < CGRectGetMaxX(b) && CGRectGetMinX(b) < CGRectGetMaxX(a) &&
           CGRectGetMinY(a) < CGRectGetMaxY(b) && CGRectGetMinY(b) < CGRectGetMaxY(a);
}

static inline CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
    return CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width - 2 * dx,
                      rect.size.height - 2 * dy);
}

static inline CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy) {
    return CGRectMake(rect.origin.x + dx, rect.origin.y + dy, rect.size.width, rect.size.height);
}

#ifdef __cplusplus
extern "C" {
#endif
extern const CGPoint CGPointZero;
extern const CGSize CGSizeZero;
extern const CGRect CGRectZero;
#ifdef __cplusplus
}
#endif
