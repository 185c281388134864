// A picture (UIImage class reference): what is known of it is its file, its size and its scale.
#pragma once

#import <CoreGraphics/CGGeometry.h>
#import <Foundation/Foundation.h>

typedef NS_ENUM(NSInteger, UIImageRenderingMode) {
    UIImageRenderingModeAutomatic = 0,
    UIImageRenderingModeAlwaysOriginal = 1,
    UIImageRenderingModeAlwaysTemplate = 2
};

@interface UIImage : NSObject {
@private
    struct UIImageState *_image;
}

/// The image of the file NAME.png, or NAME itself with an extension, in the program's own bundle; kept for
/// the next time. Nil when there is none.
+ (UIImage *)imageNamed:(NSString *)name;
/// The image at a full path, in the best scale for the screen that lies beside it (NAME@2x.png, NAME@3x.png).
/// Nil when the file is missing or no picture.
+ (UIImage *)imageWithContentsOfFile:(NSString *)path;
+ (UIImage *)imageWithData:(NSData *)data;
+ (UIImage *)imageWithData:(NSData *)data scale:(CGFloat)scale;

- (id)initWithContentsOfFile:(NSString *)path;
- (id)initWithData:(NSData *)data;
- (id)initWithData:(NSData *)data scale:(CGFloat)scale;

@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGFloat scale;
@property (nonatomic, readonly) UIImageRenderingMode renderingMode;

- (UIImage *)imageWithRenderingMode:(UIImageRenderingMode)mode;

@end
