#pragma once

#import <Foundation/Foundation.h>

#include "Foundation/SortedFolder.h"

#include <string>
#include <vector>

namespace host {

/// A folder that is being walked through.
struct FolderLevel {
    std::string prefix; ///< of its entries, relative to the top
    std::vector<FolderEntry> entries;
    std::size_t next = 0;
};

} // namespace host

/// What enumeratorAtPath: gives (Apple's NSDirectoryEnumerator class reference): everything below a folder,
/// each folder before its contents, links not followed. A folder that cannot be read has no entries.
@interface HostDirectoryEnumerator : NSEnumerator {
    std::string _top;
    std::vector<host::FolderLevel> _levels;
    std::string _current;
    BOOL _mayDescend;
}

- (id)initWithPath:(NSString *)path;
- (NSDictionary *)fileAttributes;
- (NSDictionary *)directoryAttributes;
- (NSUInteger)level;
- (void)skipDescendants;
- (void)skipDescendents;

@end
