// What the items of bars have in common (UIBarItem class reference).
#pragma once

#import <Foundation/Foundation.h>

@class UIImage;

@interface UIBarItem : NSObject {
@private
    NSString *_title;
    UIImage *_image;
    BOOL _enabled;
    NSInteger _tag;
}

@property (nonatomic, copy) NSString *title;
@property (nonatomic, retain) UIImage *image;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic) NSInteger tag;

@end
