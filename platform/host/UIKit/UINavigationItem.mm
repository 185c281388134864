// Follows the UINavigationItem class reference.
#import <UIKit/UINavigationItem.h>

#import <UIKit/UIBarButtonItem.h>
#import <UIKit/UIView.h>

#include "host/Retained.h"

struct UINavigationItemState {
    host::Retained<NSString *> title;
    host::Retained<NSString *> prompt;
    host::Retained<UIView *> titleView;
    host::Retained<UIBarButtonItem *> back;
    bool hidesBack = false;
    bool leftSupplementsBack = false;
    host::Retained<NSArray *> left, right;
};

namespace {

NSArray *listOf(UIBarButtonItem *item) {
    return item ? [NSArray arrayWithObject:item] : nil;
}

} // namespace

@implementation UINavigationItem

- (id)init {
    return [self initWithTitle:nil];
}

- (id)initWithTitle:(NSString *)title {
    if ((self = [super init])) {
        _item = new UINavigationItemState;
        [self setTitle:title];
    }
    return self;
}

- (void)dealloc {
    delete _item;
    [super dealloc];
}

- (NSString *)title {
    return _item->title;
}

- (void)setTitle:(NSString *)title {
    _item->title = [[title copy] autorelease];
}

- (NSString *)prompt {
    return _item->prompt;
}

- (void)setPrompt:(NSString *)prompt {
    _item->prompt = [[prompt copy] autorelease];
}

- (UIView *)titleView {
    return _item->titleView;
}

- (void)setTitleView:(UIView *)view {
    _item->titleView = view;
}

- (UIBarButtonItem *)backBarButtonItem {
    return _item->back;
}

- (void)setBackBarButtonItem:(UIBarButtonItem *)item {
    _item->back = item;
}

- (BOOL)hidesBackButton {
    return _item->hidesBack;
}

- (void)setHidesBackButton:(BOOL)hides {
    [self setHidesBackButton:hides animated:NO];
}

- (void)setHidesBackButton:(BOOL)hides animated:(BOOL)animated {
    _item->hidesBack = hides;
}

- (BOOL)leftItemsSupplementBackButton {
    return _item->leftSupplementsBack;
}

- (void)setLeftItemsSupplementBackButton:(BOOL)supplement {
    _item->leftSupplementsBack = supplement;
}

- (UIBarButtonItem *)leftBarButtonItem {
    return [_item->left count] ? [_item->left objectAtIndex:0] : nil;
}

- (void)setLeftBarButtonItem:(UIBarButtonItem *)item {
    [self setLeftBarButtonItem:item animated:NO];
}

- (void)setLeftBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated {
    [self setLeftBarButtonItems:listOf(item) animated:animated];
}

- (UIBarButtonItem *)rightBarButtonItem {
    return [_item->right count] ? [_item->right objectAtIndex:0] : nil;
}

- (void)setRightBarButtonItem:(UIBarButtonItem *)item {
    [self setRightBarButtonItem:item animated:NO];
}

- (void)setRightBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated {
    [self setRightBarButtonItems:listOf(item) animated:animated];
}

- (NSArray *)leftBarButtonItems {
    return _item->left;
}

- (void)setLeftBarButtonItems:(NSArray *)items {
    [self setLeftBarButtonItems:items animated:NO];
}

- (void)setLeftBarButtonItems:(NSArray *)items animated:(BOOL)animated {
    _item->left = [[items copy] autorelease];
}

- (NSArray *)rightBarButtonItems {
    return _item->right;
}

- (void)setRightBarButtonItems:(NSArray *)items {
    [self setRightBarButtonItems:items animated:NO];
}

- (void)setRightBarButtonItems:(NSArray *)items animated:(BOOL)animated {
    _item->right = [[items copy] autorelease];
}

@end
