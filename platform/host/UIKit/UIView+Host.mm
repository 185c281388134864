#include "host/Text.h"
#include "UIKit/UIView+Host.h"
#include "UIKit/UIView+State.h"
#import <UIKit/UIAccessibility.h>

@implementation UIView (Host)

- (unsigned long long)_hostNumber {
    return [self _hostState]->number;
}

- (BOOL)_hostDescribe:(host::Element &)element {
    return NO;
}

- (NSArray *)_hostVisibleSubviews {
    NSMutableArray *visible = [NSMutableArray array];
    for (UIView *subview in [self subviews]) {
        if (![subview isHidden] && [subview alpha] >= host::leastVisibleAlpha)
            [visible addObject:subview];
    }
    return visible;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    return host::Outcome::disabled;
}

@end

@implementation UIView (UIAccessibility)

- (NSString *)accessibilityLabel {
    return [self _hostState]->accessibilityLabel;
}

- (void)setAccessibilityLabel:(NSString *)label {
    [self _hostState]->accessibilityLabel = [[label copy] autorelease];
}

- (NSString *)accessibilityIdentifier {
    return [self _hostState]->accessibilityIdentifier;
}

- (void)setAccessibilityIdentifier:(NSString *)identifier {
    [self _hostState]->accessibilityIdentifier = [[identifier copy] autorelease];
}

@end

void host::describe(UIView *view, double dx, double dy, std::vector<Element> &into) {
    const CGRect frame = [view frame];
    Element element;
    element.number = [view _hostNumber];
    element.rect = {dx + frame.origin.x, dy + frame.origin.y, frame.size.width, frame.size.height};
    const bool shown = [view _hostDescribe:element];
    const CGPoint scrolled = [view bounds].origin;
    std::vector<Element> &children = shown ? element.children : into;
    for (UIView *subview in [view _hostVisibleSubviews])
        describe(subview, dx + frame.origin.x - scrolled.x, dy + frame.origin.y - scrolled.y, children);
    if (!shown)
        return;
    if (NSString *label = [view accessibilityLabel])
        element.label = utf8(label);
    element.identifier = utf8([view accessibilityIdentifier]);
    into.push_back(std::move(element));
}
