#include "Foundation/HostDirectoryEnumerator.h"

#include "host/Text.h"

@implementation HostDirectoryEnumerator

- (id)initWithPath:(NSString *)path {
    self = [super init];
    if (self) {
        _top = host::utf8(path);
        [self _enter:""];
    }
    return self;
}

- (void)_enter:(const std::string &)prefix {
    auto entries = host::sortedFolder(_top + "/" + prefix);
    if (entries)
        _levels.push_back({prefix, std::move(*entries)});
}

- (id)nextObject {
    if (_mayDescend)
        [self _enter:_current + "/"];
    _mayDescend = NO;
    while (!_levels.empty() && _levels.back().next == _levels.back().entries.size())
        _levels.pop_back();
    if (_levels.empty())
        return nil;
    host::FolderLevel &level = _levels.back();
    const host::FolderEntry &entry = level.entries[level.next++];
    _current = level.prefix + entry.name;
    _mayDescend = entry.isFolder;
    return host::string(_current);
}

// One name at a time, so that the questions below are about the name that the loop is at.
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id *)objects
                                    count:(NSUInteger)count {
    state->state = 1;
    state->itemsPtr = objects;
    state->mutationsPtr = &state->extra[0];
    objects[0] = [self nextObject];
    return objects[0] ? 1 : 0;
}

- (NSDictionary *)fileAttributes {
    return [[NSFileManager defaultManager] attributesOfItemAtPath:host::string(_top + "/" + _current)
                                                            error:NULL];
}

- (NSDictionary *)directoryAttributes {
    return [[NSFileManager defaultManager] attributesOfItemAtPath:host::string(_top) error:NULL];
}

- (NSUInteger)level {
    return _levels.size();
}

- (void)skipDescendants {
    _mayDescend = NO;
}

- (void)skipDescendents {
    [self skipDescendants];
}

@end
