// A view that shows a picture (UIImageView class reference).
#pragma once

#import <UIKit/UIImage.h>
#import <UIKit/UIView.h>

@interface UIImageView : UIView {
@private
    UIImage *_image;
    UIImage *_highlightedImage;
    BOOL _highlighted;
}

- (id)initWithImage:(UIImage *)image;
- (id)initWithImage:(UIImage *)image highlightedImage:(UIImage *)highlightedImage;

@property (nonatomic, retain) UIImage *image;
@property (nonatomic, retain) UIImage *highlightedImage;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;

@end
