// Listings of folders, after Apple's NSFileManager class reference, in the order in which the phone's file
// system gives them. GNUstep's come in the order of the disk, and a nil path raises.
#include "Foundation/HostDirectoryEnumerator.h"
#include "host/Text.h"

@implementation NSFileManager (HostSortedListing)

- (NSArray *)contentsOfDirectoryAtPath:(NSString *)path error:(NSError **)error {
    const auto entries = host::sortedFolder(host::utf8(path));
    if (!entries) {
        if (error)
            *error = [NSError errorWithDomain:NSCocoaErrorDomain code:NSFileReadNoSuchFileError userInfo:nil];
        return nil;
    }
    NSMutableArray *names = [NSMutableArray arrayWithCapacity:entries->size()];
    for (const host::FolderEntry &entry : *entries)
        [names addObject:host::string(entry.units)];
    return names;
}

- (NSArray *)directoryContentsAtPath:(NSString *)path {
    return [self contentsOfDirectoryAtPath:path error:NULL];
}

- (NSDirectoryEnumerator *)enumeratorAtPath:(NSString *)path {
    if (!path)
        return nil;
    return (NSDirectoryEnumerator *)[[[HostDirectoryEnumerator alloc] initWithPath:path] autorelease];
}

- (NSArray *)subpathsAtPath:(NSString *)path {
    return [[self enumeratorAtPath:path] allObjects];
}

@end
