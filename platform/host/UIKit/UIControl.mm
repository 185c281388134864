// Follows the UIControl class reference.
#import <UIKit/UIControl.h>

#import <UIKit/UIApplication.h>

#include "UIKit/UIView+Host.h"

#include <algorithm>
#include <vector>

namespace {

/// Neither target nor control keeps the other alive.
struct Registration {
    id target;
    SEL action;
    UIControlEvents events;
};

} // namespace

struct UIControlRecord {
    std::vector<Registration> registrations;
    bool enabled = true;
    bool selected = false;
    bool highlighted = false;
    UIControlContentVerticalAlignment vertical = UIControlContentVerticalAlignmentCenter;
    UIControlContentHorizontalAlignment horizontal = UIControlContentHorizontalAlignmentCenter;
};

@implementation UIControl

- (id)initWithFrame:(CGRect)frame {
    if ((self = [super initWithFrame:frame]))
        _control = new UIControlRecord;
    return self;
}

- (void)dealloc {
    delete _control;
    [super dealloc];
}

- (BOOL)isEnabled {
    return _control->enabled;
}

- (void)setEnabled:(BOOL)enabled {
    _control->enabled = enabled;
    [self setNeedsLayout];
}

- (BOOL)isSelected {
    return _control->selected;
}

- (void)setSelected:(BOOL)selected {
    _control->selected = selected;
    [self setNeedsLayout];
}

- (BOOL)isHighlighted {
    return _control->highlighted;
}

- (void)setHighlighted:(BOOL)highlighted {
    _control->highlighted = highlighted;
    [self setNeedsLayout];
}

- (UIControlState)state {
    UIControlState state = UIControlStateNormal;
    if (_control->highlighted)
        state |= UIControlStateHighlighted;
    if (!_control->enabled)
        state |= UIControlStateDisabled;
    if (_control->selected)
        state |= UIControlStateSelected;
    return state;
}

- (UIControlContentVerticalAlignment)contentVerticalAlignment {
    return _control->vertical;
}

- (void)setContentVerticalAlignment:(UIControlContentVerticalAlignment)alignment {
    _control->vertical = alignment;
}

- (UIControlContentHorizontalAlignment)contentHorizontalAlignment {
    return _control->horizontal;
}

- (void)setContentHorizontalAlignment:(UIControlContentHorizontalAlignment)alignment {
    _control->horizontal = alignment;
}

- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
    for (Registration &each : _control->registrations) {
        if (each.target == target && sel_isEqual(each.action, action)) {
            each.events |= events;
            return;
        }
    }
    _control->registrations.push_back({target, action, events});
}

- (void)removeTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)events {
    for (Registration &each : _control->registrations) {
        if ((!target || each.target == target) && (!action || sel_isEqual(each.action, action)))
            each.events &= ~events;
    }
    std::erase_if(_control->registrations, [](const Registration &each) { return each.events == 0; });
}

- (NSSet *)allTargets {
    NSMutableSet *targets = [NSMutableSet set];
    for (const Registration &each : _control->registrations)
        [targets addObject:each.target ? each.target : (id)[NSNull null]];
    return targets;
}

- (UIControlEvents)allControlEvents {
    UIControlEvents events = 0;
    for (const Registration &each : _control->registrations)
        events |= each.events;
    return events;
}

- (NSArray *)actionsForTarget:(id)target forControlEvent:(UIControlEvents)event {
    NSMutableArray *actions = [NSMutableArray array];
    for (const Registration &each : _control->registrations) {
        if (each.target == target && (each.events & event))
            [actions addObject:NSStringFromSelector(each.action)];
    }
    return [actions count] ? actions : nil;
}

- (void)sendAction:(SEL)action to:(id)target forEvent:(UIEvent *)event {
    [[UIApplication sharedApplication] sendAction:action to:target from:self forEvent:event];
}

- (void)sendActionsForControlEvents:(UIControlEvents)events {
    // An action may change the list, or free the control.
    const auto registrations = _control->registrations;
    [[self retain] autorelease];
    for (const Registration &each : registrations) {
        if (each.events & events)
            [self sendAction:each.action to:each.target forEvent:nil];
    }
}

- (BOOL)_hostDescribe:(host::Element &)element {
    element.type = "Other";
    element.enabled = [self isEnabled];
    element.selected = [self isSelected];
    return YES;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    if (gesture.kind != host::GestureKind::tap || ![self isEnabled])
        return host::Outcome::disabled;
    [self setHighlighted:YES];
    [self sendActionsForControlEvents:UIControlEventTouchDown];
    [self setHighlighted:NO];
    [self sendActionsForControlEvents:UIControlEventTouchUpInside];
    return host::Outcome::done;
}

@end
