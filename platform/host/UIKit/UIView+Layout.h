#pragma once

#import <UIKit/UIView.h>

namespace host {

/// Moves and sizes the subviews of `view` by their autoresizing masks, after its size was `before`.
void autoresizeSubviews(UIView *view, CGSize before);

} // namespace host
