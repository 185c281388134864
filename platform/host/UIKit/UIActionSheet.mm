// Follows the UIActionSheet class and UIActionSheetDelegate protocol references. What is seen of it is in
// UIActionSheet+Host.mm.
#include "UIKit/UIActionSheet+State.h"

#include <cstdarg>

@implementation UIActionSheet

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _sheet = new UIActionSheetState;
    return self;
}

- (id)initWithTitle:(NSString *)title
                  delegate:(id<UIActionSheetDelegate>)delegate
         cancelButtonTitle:(NSString *)cancelButtonTitle
    destructiveButtonTitle:(NSString *)destructiveButtonTitle
         otherButtonTitles:(NSString *)otherButtonTitles, ... {
    if (!(self = [self initWithFrame:CGRectZero]))
        return nil;
    [self setTitle:title];
    [self setDelegate:delegate];
    if (destructiveButtonTitle)
        _sheet->destructive = [self addButtonWithTitle:destructiveButtonTitle];
    va_list others;
    va_start(others, otherButtonTitles);
    for (NSString *other = otherButtonTitles; other; other = va_arg(others, NSString *))
        [self addButtonWithTitle:other];
    va_end(others);
    if (cancelButtonTitle)
        _sheet->cancel = [self addButtonWithTitle:cancelButtonTitle];
    return self;
}

- (void)dealloc {
    delete _sheet;
    [super dealloc];
}

- (struct UIActionSheetState *)_hostSheet {
    return _sheet;
}

- (id<UIActionSheetDelegate>)delegate {
    return _sheet->delegate;
}

- (void)setDelegate:(id<UIActionSheetDelegate>)delegate {
    _sheet->delegate = delegate;
    _sheet->can = {
        .clicked = bool([delegate respondsToSelector:@selector(actionSheet:clickedButtonAtIndex:)]),
        .willPresent = bool([delegate respondsToSelector:@selector(willPresentActionSheet:)]),
        .didPresent = bool([delegate respondsToSelector:@selector(didPresentActionSheet:)]),
        .willDismiss = bool([delegate respondsToSelector:@selector(actionSheet:willDismissWithButtonIndex:)]),
        .didDismiss = bool([delegate respondsToSelector:@selector(actionSheet:didDismissWithButtonIndex:)]),
        .cancel = bool([delegate respondsToSelector:@selector(actionSheetCancel:)]),
    };
}

- (NSString *)title {
    return _sheet->title;
}

- (void)setTitle:(NSString *)title {
    _sheet->title = [[title copy] autorelease];
}

- (UIActionSheetStyle)actionSheetStyle {
    return _sheet->style;
}

- (void)setActionSheetStyle:(UIActionSheetStyle)style {
    _sheet->style = style;
}

- (NSInteger)addButtonWithTitle:(NSString *)title {
    _sheet->titles.emplace_back([[title copy] autorelease]);
    return [self numberOfButtons] - 1;
}

- (NSString *)buttonTitleAtIndex:(NSInteger)buttonIndex {
    return _sheet->has(buttonIndex) ? _sheet->titles[(std::size_t)buttonIndex].get() : nil;
}

- (NSInteger)numberOfButtons {
    return (NSInteger)_sheet->titles.size();
}

- (NSInteger)cancelButtonIndex {
    return _sheet->cancel;
}

- (void)setCancelButtonIndex:(NSInteger)index {
    _sheet->cancel = index;
}

- (NSInteger)destructiveButtonIndex {
    return _sheet->destructive;
}

- (void)setDestructiveButtonIndex:(NSInteger)index {
    _sheet->destructive = index;
}

- (NSInteger)firstOtherButtonIndex {
    return _sheet->firstOther();
}

- (BOOL)isVisible {
    return _sheet->visible;
}

- (void)showInView:(UIView *)view {
    host::showPopup(self);
}

- (void)showFromBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated {
    host::showPopup(self);
}

- (void)showFromRect:(CGRect)rect inView:(UIView *)view animated:(BOOL)animated {
    host::showPopup(self);
}

- (void)dismissWithClickedButtonIndex:(NSInteger)buttonIndex animated:(BOOL)animated {
    if (!host::isWaitingOrShown(self) || _sheet->closing)
        return;
    _sheet->closing = true;
    if (_sheet->can.willDismiss)
        [_sheet->delegate actionSheet:self willDismissWithButtonIndex:buttonIndex];
    host::closePopup(self, buttonIndex);
}

@end
