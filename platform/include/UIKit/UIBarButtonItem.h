// A button of a bar (UIBarButtonItem class reference). Its target is not retained; the action is given the
// item.
#pragma once

#import <CoreGraphics/CGGeometry.h>
#import <UIKit/UIBarItem.h>

@class UIColor, UIView;

typedef NS_ENUM(NSInteger, UIBarButtonItemStyle) {
    UIBarButtonItemStylePlain = 0,
    UIBarButtonItemStyleBordered = 1,
    UIBarButtonItemStyleDone = 2
};

typedef NS_ENUM(NSInteger, UIBarButtonSystemItem) {
    UIBarButtonSystemItemDone = 0,
    UIBarButtonSystemItemCancel = 1,
    UIBarButtonSystemItemEdit = 2,
    UIBarButtonSystemItemSave = 3,
    UIBarButtonSystemItemAdd = 4,
    UIBarButtonSystemItemFlexibleSpace = 5,
    UIBarButtonSystemItemFixedSpace = 6,
    UIBarButtonSystemItemCompose = 7,
    UIBarButtonSystemItemReply = 8,
    UIBarButtonSystemItemAction = 9,
    UIBarButtonSystemItemOrganize = 10,
    UIBarButtonSystemItemBookmarks = 11,
    UIBarButtonSystemItemSearch = 12,
    UIBarButtonSystemItemRefresh = 13,
    UIBarButtonSystemItemStop = 14,
    UIBarButtonSystemItemCamera = 15,
    UIBarButtonSystemItemTrash = 16
};

@interface UIBarButtonItem : UIBarItem {
@private
    struct UIBarButtonItemState *_item;
}

- (id)initWithBarButtonSystemItem:(UIBarButtonSystemItem)systemItem target:(id)target action:(SEL)action;
- (id)initWithTitle:(NSString *)title style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action;
/// A nil image makes an empty button that can be tapped all the same.
- (id)initWithImage:(UIImage *)image style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action;
- (id)initWithCustomView:(UIView *)customView;

@property (nonatomic) UIBarButtonItemStyle style;
@property (nonatomic) CGFloat width;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;
@property (nonatomic, retain) UIView *customView;
@property (nonatomic, retain) UIColor *tintColor;

@end
