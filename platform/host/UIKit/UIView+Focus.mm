#include "UIKit/UIView+Focus.h"

namespace host {

namespace {

/// Not retained: a view that goes away takes its wish with it.
UIView *wishing = nil;

} // namespace

void wishForFocus(UIView *view) {
    wishing = view;
}

void forgetFocusWish(UIView *view) {
    if (!view || wishing == view)
        wishing = nil;
}

void fulfilFocusWish(UIView *view) {
    if (wishing == view)
        [view becomeFirstResponder];
}

} // namespace host
