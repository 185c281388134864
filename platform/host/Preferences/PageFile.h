// The property list of a settings page, as it is found in a bundle.
#pragma once

#import <Foundation/Foundation.h>

namespace host {

struct PageFile {
    NSDictionary *root = nil; ///< nil when the page cannot be shown
    NSArray *items = nil;
    NSString *failure = nil; ///< why not, in words for the bundle's developer
};

/// Reads NAME.plist of the bundle.
[[nodiscard]] PageFile readPage(NSBundle *bundle, NSString *name);

/// Reads a page's property list at a path of this machine; `name` is for the failure.
[[nodiscard]] PageFile readPageAtPath(NSString *path, NSString *name);

} // namespace host
