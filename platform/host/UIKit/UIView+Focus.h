// A view that asks for the keyboard before it is in a window gets it when it arrives there; the last one that
// asked wins.
#pragma once

#import <UIKit/UIView.h>

namespace host {

void wishForFocus(UIView *view);

/// Forgets the wish of `view`; of any view for nil.
void forgetFocusWish(UIView *view);

/// Carries out the wish of a view that has just reached a window.
void fulfilFocusWish(UIView *view);

} // namespace host
