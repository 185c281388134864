#include "UIKit/KeyboardRoom.h"

#include "UIKit/Metrics.h"
#include "UIKit/TextInput.h"

#import <UIKit/UITextField.h>
#import <UIKit/UITextView.h>
#import <UIKit/UIWindow.h>

@implementation HostKeyboardRoom

- (instancetype)init {
    if (!(self = [super init]))
        return nil;
    NSNotificationCenter *center = [NSNotificationCenter defaultCenter];
    for (NSString *comes in @[
             UIKeyboardWillShowNotification, UITextFieldTextDidBeginEditingNotification,
             UITextViewTextDidBeginEditingNotification
         ])
        [center addObserver:self selector:@selector(make) name:comes object:nil];
    [center addObserver:self selector:@selector(takeBack) name:UIKeyboardWillHideNotification object:nil];
    return self;
}

- (void)dealloc {
    [[NSNotificationCenter defaultCenter] removeObserver:self];
    [_table release];
    [super dealloc];
}

- (void)pageDidAppear:(UIScrollView *)table {
    [table retain];
    [_table release];
    _table = table;
    [self make];
}

- (void)pageWillDisappear {
    [self takeBack];
    [_table release];
    _table = nil;
}

- (void)setBottom:(CGFloat)height {
    UIEdgeInsets inset = [_table contentInset];
    inset.bottom = height;
    [_table setContentInset:inset];
    [_table setScrollIndicatorInsets:inset];
}

- (void)make {
    UIView *input = host::focusedInput();
    if (!_table || !input || ![input isDescendantOfView:_table])
        return;
    _made = YES;
    [self setBottom:host::keyboardHeight];
    [_table scrollRectToVisible:[input convertRect:[input bounds] toView:_table] animated:YES];
}

- (void)takeBack {
    if (_made)
        [self setBottom:0];
    _made = NO;
}

@end
