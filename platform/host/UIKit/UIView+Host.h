// How a view takes part in the element tree and in gestures. Every class that shows something of its
// own overrides these; nothing else in the platform knows how a class looks.
#pragma once

#import <UIKit/UIView.h>

#include "host/Element.h"
#include "host/Gesture.h"

@interface UIView (Host)

/// Names this view as long as it lives; never 0, never used again.
@property (nonatomic, readonly) unsigned long long _hostNumber;

/// Fills in what this view shows. NO leaves the view out; its children then stand in its place.
/// The caller has set `number` and `rect` (window coordinates). The base: NO.
- (BOOL)_hostDescribe:(host::Element &)element;

/// The subviews that are on the screen, in drawing order; the base: those not hidden.
- (NSArray *)_hostVisibleSubviews;

/// Carries out a gesture that names this view. The base: a tap on a UIControl sends its actions,
/// anything else is Outcome::disabled. Must not wait; the caller waits until idle.
- (host::Outcome)_hostPerform:(const host::Gesture &)gesture;

@end

namespace host {

/// Views paler than this are not on the screen, as the platform takes no touches there.
inline constexpr double leastVisibleAlpha = 0.01;

/// Appends `view` and what it contains to `into`. `dx`, `dy`: where the superview's origin lies in the
/// window.
void describe(UIView *view, double dx, double dy, std::vector<Element> &into);

} // namespace host
