// Corrects methods of GNUstep's where a category cannot: in private classes, whose declarations are not
// published, and where the old method is still needed.
#pragma once

#import <Foundation/NSObject.h>

#include <initializer_list>

namespace host {

/// Puts `replacement` in place of the method that the class itself implements, and returns the method it
/// replaces; null when the class only inherits it. For a class method give the class's class. Sends the class
/// no message, so that this may be done before the platform starts.
IMP replaceMethod(Class owner, SEL selector, IMP replacement);

/// The same for a string class, which is initialized first: some of them take over methods of others then.
IMP replaceMethod(const char *className, SEL selector, IMP replacement);

/// The same replacement for several classes, when the old method is not needed.
void replaceMethods(std::initializer_list<const char *> classNames, SEL selector, IMP replacement);

} // namespace host
