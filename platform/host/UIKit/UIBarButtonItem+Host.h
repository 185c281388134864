#pragma once

#import <UIKit/UIBarButtonItem.h>

#include "host/Element.h"
#include "host/Gesture.h"

@interface UIBarButtonItem (Host)

/// Names this item as long as it lives.
@property (nonatomic, readonly) unsigned long long _hostNumber;

/// An item that only takes up room.
- (BOOL)_hostIsSpace;

/// Points that the item takes up in a bar.
- (CGFloat)_hostWidth;

/// A Button without its place; `tint` is the bar's.
- (host::Element)_hostElementWithTint:(UIColor *)tint;

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture;

@end
