// Follows the UISwitch class reference.
#import <UIKit/UISwitch.h>

#include "UIKit/UIColor+Host.h"
#include "UIKit/UIView+Host.h"

namespace {

constexpr CGFloat switchWidth = 51, switchHeight = 31;

} // namespace

@implementation UISwitch

@synthesize onTintColor = _onTintColor;

- (void)dealloc {
    [_onTintColor release];
    [super dealloc];
}

/// The size of a switch cannot be changed.
- (void)setFrame:(CGRect)frame {
    frame.size = CGSizeMake(switchWidth, switchHeight);
    [super setFrame:frame];
}

- (CGSize)sizeThatFits:(CGSize)size {
    return CGSizeMake(switchWidth, switchHeight);
}

- (BOOL)isOn {
    return _on;
}

- (void)setOn:(BOOL)on {
    [self setOn:on animated:NO];
}

- (void)setOn:(BOOL)on animated:(BOOL)animated {
    _on = on;
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = "Switch";
    element.value = _on ? "1" : "0";
    element.enabled = [self isEnabled];
    if (_onTintColor)
        element.attributes["color"] = host::hex(_onTintColor);
    return YES;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    if (gesture.kind != host::GestureKind::tap || ![self isEnabled])
        return host::Outcome::disabled;
    [self setOn:!_on animated:YES];
    [self sendActionsForControlEvents:UIControlEventValueChanged];
    return host::Outcome::done;
}

@end
