// Follows the UISearchBar class and UISearchBarDelegate protocol references.
#import <UIKit/UISearchBar.h>

#import <UIKit/UIButton.h>

#include "host/Retained.h"
#include "host/SystemText.h"
#include "host/Text.h"
#include "UIKit/UITextField+State.h"
#include "UIKit/UIView+Host.h"

/// The field of a search bar.
@interface HostSearchField : UITextField
@end

@implementation HostSearchField

- (BOOL)_hostDescribe:(host::Element &)element {
    [super _hostDescribe:element];
    element.type = "SearchField";
    return YES;
}

@end

struct UISearchBarState {
    host::Retained<HostSearchField *> field;
    host::Retained<UIButton *> cancel;
    id<UISearchBarDelegate> delegate = nil;
};

namespace {

constexpr CGFloat barHeight = 44, fieldHeight = 28, margin = 8;

} // namespace

@interface UISearchBar (Field) <UITextFieldDelegate>
@end

@implementation UISearchBar

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame])) {
        _searchBar = new UISearchBarState;
        [self _hostMakeField];
        [self _hostMakeCancelButton];
    }
    return self;
}

- (void)_hostMakeField {
    HostSearchField *field = [[[HostSearchField alloc] initWithFrame:CGRectZero] autorelease];
    [field setDelegate:self];
    [field setClearButtonMode:UITextFieldViewModeWhileEditing];
    [field setReturnKeyType:UIReturnKeySearch];
    [field addTarget:self action:@selector(_hostTextChanged) forControlEvents:UIControlEventEditingChanged];
    [self addSubview:field];
    _searchBar->field = field;
}

- (void)_hostMakeCancelButton {
    UIButton *cancel = [UIButton buttonWithType:UIButtonTypeSystem];
    [cancel setTitle:host::string(host::systemText("Cancel")) forState:UIControlStateNormal];
    [cancel addTarget:self action:@selector(_hostCancel) forControlEvents:UIControlEventTouchUpInside];
    [cancel setHidden:YES];
    [self addSubview:cancel];
    _searchBar->cancel = cancel;
}

- (void)dealloc {
    [_searchBar->field setDelegate:nil];
    delete _searchBar;
    [super dealloc];
}

- (NSString *)text {
    return [_searchBar->field text];
}

- (void)setText:(NSString *)text {
    [_searchBar->field setText:text];
}

- (NSString *)placeholder {
    return [_searchBar->field placeholder];
}

- (void)setPlaceholder:(NSString *)placeholder {
    [_searchBar->field setPlaceholder:placeholder];
}

- (BOOL)showsCancelButton {
    return ![_searchBar->cancel isHidden];
}

- (void)setShowsCancelButton:(BOOL)shows {
    [self setShowsCancelButton:shows animated:NO];
}

- (void)setShowsCancelButton:(BOOL)shows animated:(BOOL)animated {
    [_searchBar->cancel setHidden:!shows];
    [self setNeedsLayout];
}

- (id<UISearchBarDelegate>)delegate {
    return _searchBar->delegate;
}

- (void)setDelegate:(id<UISearchBarDelegate>)delegate {
    _searchBar->delegate = delegate;
}

- (UITextAutocapitalizationType)autocapitalizationType {
    return [_searchBar->field autocapitalizationType];
}

- (void)setAutocapitalizationType:(UITextAutocapitalizationType)type {
    [_searchBar->field setAutocapitalizationType:type];
}

- (UITextAutocorrectionType)autocorrectionType {
    return [_searchBar->field autocorrectionType];
}

- (void)setAutocorrectionType:(UITextAutocorrectionType)type {
    [_searchBar->field setAutocorrectionType:type];
}

- (UIKeyboardType)keyboardType {
    return [_searchBar->field keyboardType];
}

- (void)setKeyboardType:(UIKeyboardType)type {
    [_searchBar->field setKeyboardType:type];
}

- (BOOL)canBecomeFirstResponder {
    return YES;
}

- (BOOL)becomeFirstResponder {
    return [_searchBar->field becomeFirstResponder];
}

- (BOOL)resignFirstResponder {
    return [_searchBar->field resignFirstResponder];
}

- (BOOL)isFirstResponder {
    return [_searchBar->field isFirstResponder];
}

- (CGSize)sizeThatFits:(CGSize)size {
    return CGSizeMake(size.width, barHeight);
}

- (void)layoutSubviews {
    const CGSize room = [self bounds].size;
    const CGSize cancel = [_searchBar->cancel sizeThatFits:room];
    const CGFloat taken = [self showsCancelButton] ? cancel.width + margin : 0;
    const CGFloat top = (room.height - fieldHeight) / 2;
    [_searchBar->field setFrame:CGRectMake(margin, top, room.width - 2 * margin - taken, fieldHeight)];
    [_searchBar->cancel setFrame:CGRectMake(room.width - margin - cancel.width,
                                            (room.height - cancel.height) / 2, cancel.width, cancel.height)];
}

@end

@implementation UISearchBar (Field)

- (void)_hostTextChanged {
    id<UISearchBarDelegate> delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(searchBar:textDidChange:)])
        [delegate searchBar:self textDidChange:[self text]];
}

- (void)_hostCancel {
    id<UISearchBarDelegate> delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(searchBarCancelButtonClicked:)])
        [delegate searchBarCancelButtonClicked:self];
}

- (BOOL)textFieldShouldBeginEditing:(UITextField *)field {
    id<UISearchBarDelegate> delegate = [self delegate];
    return ![delegate respondsToSelector:@selector(searchBarShouldBeginEditing:)] ||
           [delegate searchBarShouldBeginEditing:self];
}

- (void)textFieldDidBeginEditing:(UITextField *)field {
    id<UISearchBarDelegate> delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(searchBarTextDidBeginEditing:)])
        [delegate searchBarTextDidBeginEditing:self];
}

- (BOOL)textFieldShouldEndEditing:(UITextField *)field {
    id<UISearchBarDelegate> delegate = [self delegate];
    return ![delegate respondsToSelector:@selector(searchBarShouldEndEditing:)] ||
           [delegate searchBarShouldEndEditing:self];
}

- (void)textFieldDidEndEditing:(UITextField *)field {
    id<UISearchBarDelegate> delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(searchBarTextDidEndEditing:)])
        [delegate searchBarTextDidEndEditing:self];
}

- (BOOL)textFieldShouldReturn:(UITextField *)field {
    id<UISearchBarDelegate> delegate = [self delegate];
    if ([delegate respondsToSelector:@selector(searchBarSearchButtonClicked:)])
        [delegate searchBarSearchButtonClicked:self];
    return NO;
}

@end
