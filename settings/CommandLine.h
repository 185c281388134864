// Command lines, which do what a settings page cannot do by itself.
#pragma once

#import <Foundation/Foundation.h>

#include <stdlib.h>

namespace zv {

/// Runs a command line and waits for its end. Its exit status says nothing that a page could act on.
inline void runCommand(NSString *commandLine) {
    (void)system([commandLine UTF8String]);
}

} // namespace zv
