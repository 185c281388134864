// What a page shows in the navigation bar (UINavigationItem class reference).
#pragma once

#import <Foundation/Foundation.h>

@class UIBarButtonItem, UIView;

@interface UINavigationItem : NSObject {
@private
    struct UINavigationItemState *_item;
}

- (id)initWithTitle:(NSString *)title;

@property (nonatomic, copy) NSString *title;
@property (nonatomic, copy) NSString *prompt;
@property (nonatomic, retain) UIView *titleView;

/// The button that leads back to this page, in the bar of the next one.
@property (nonatomic, retain) UIBarButtonItem *backBarButtonItem;
@property (nonatomic) BOOL hidesBackButton;
- (void)setHidesBackButton:(BOOL)hides animated:(BOOL)animated;
@property (nonatomic) BOOL leftItemsSupplementBackButton;

/// The first of leftBarButtonItems; setting it leaves that item alone there.
@property (nonatomic, retain) UIBarButtonItem *leftBarButtonItem;
@property (nonatomic, retain) UIBarButtonItem *rightBarButtonItem;
/// Left items from the left, right items from the right.
@property (nonatomic, copy) NSArray *leftBarButtonItems;
@property (nonatomic, copy) NSArray *rightBarButtonItems;

- (void)setLeftBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated;
- (void)setRightBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated;
- (void)setLeftBarButtonItems:(NSArray *)items animated:(BOOL)animated;
- (void)setRightBarButtonItems:(NSArray *)items animated:(BOOL)animated;

@end
