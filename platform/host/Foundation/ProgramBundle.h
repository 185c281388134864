// Classes that are linked into the program instead of being loaded from their bundle.
#pragma once

#import <Foundation/NSBundle.h>

namespace host {

/// From now on bundleForClass: gives `bundle` for the classes of the program itself; nil gives the main
/// bundle again.
void setProgramBundle(NSBundle *bundle);

} // namespace host
