// A face at a size (UIFont class reference). The system font of iOS 7 and 8 is Helvetica Neue, its bold the
// Medium.
#pragma once

#import <CoreGraphics/CGGeometry.h>
#import <Foundation/Foundation.h>

@interface UIFont : NSObject <NSCopying> {
@private
    NSString *_fontName;
    CGFloat _pointSize;
}

+ (UIFont *)systemFontOfSize:(CGFloat)size;
+ (UIFont *)boldSystemFontOfSize:(CGFloat)size;
+ (UIFont *)italicSystemFontOfSize:(CGFloat)size;
+ (UIFont *)fontWithName:(NSString *)name size:(CGFloat)size;

+ (CGFloat)labelFontSize;
+ (CGFloat)buttonFontSize;
+ (CGFloat)smallSystemFontSize;
+ (CGFloat)systemFontSize;

@property (nonatomic, readonly) NSString *fontName;
@property (nonatomic, readonly) NSString *familyName;
@property (nonatomic, readonly) CGFloat pointSize;
@property (nonatomic, readonly) CGFloat lineHeight;

- (UIFont *)fontWithSize:(CGFloat)size;

@end
