// The phone's display (UIScreen class reference).
#pragma once

#import <CoreGraphics/CGGeometry.h>
#import <Foundation/Foundation.h>

@interface UIScreen : NSObject

+ (UIScreen *)mainScreen;

@property (nonatomic, readonly) CGRect bounds;
/// The bounds without the status bar.
@property (nonatomic, readonly) CGRect applicationFrame;
@property (nonatomic, readonly) CGFloat scale;

@end
