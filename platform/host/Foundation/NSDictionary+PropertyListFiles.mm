// Dictionaries and arrays in files: Apple's NSDictionary and NSArray class references. GNUstep writes its own
// text format, cannot read the binary form and raises on damaged input; these methods take the place of its
// own.
#include "Foundation/PropertyList.h"

namespace {

using host::RootMutability;

NSString *pathOf(NSURL *url) {
    return [url isFileURL] ? [url path] : nil;
}

// What an initializer of `receiver` returns for the object that was read: the object itself when it is of the
// receiver's very class, else the receiver filled from it.
id replaced(id receiver, id read) {
    [receiver release];
    return [read retain];
}

} // namespace

@implementation NSDictionary (HostPropertyListFiles)

+ (id)dictionaryWithContentsOfFile:(NSString *)path {
    return [[[self alloc] initWithContentsOfFile:path] autorelease];
}

+ (id)dictionaryWithContentsOfURL:(NSURL *)url {
    return [[[self alloc] initWithContentsOfURL:url] autorelease];
}

- (id)initWithContentsOfFile:(NSString *)path {
    const BOOL isMutable = [self isKindOfClass:[NSMutableDictionary class]];
    id root =
        host::propertyListOfFile(path, isMutable ? RootMutability::mutableRoot : RootMutability::immutable);
    if (![root isKindOfClass:[NSDictionary class]])
        return replaced(self, nil);
    return [root class] == [self class] ? replaced(self, root) : [self initWithDictionary:root];
}

- (id)initWithContentsOfURL:(NSURL *)url {
    return [self initWithContentsOfFile:pathOf(url)];
}

- (BOOL)writeToFile:(NSString *)path atomically:(BOOL)atomically {
    return host::writePropertyList(self, path, atomically);
}

- (BOOL)writeToURL:(NSURL *)url atomically:(BOOL)atomically {
    return host::writePropertyList(self, pathOf(url), atomically);
}

@end

@implementation NSArray (HostPropertyListFiles)

+ (id)arrayWithContentsOfFile:(NSString *)path {
    return [[[self alloc] initWithContentsOfFile:path] autorelease];
}

+ (id)arrayWithContentsOfURL:(NSURL *)url {
    return [[[self alloc] initWithContentsOfURL:url] autorelease];
}

- (id)initWithContentsOfFile:(NSString *)path {
    id root = host::propertyListOfFile(path);
    return [root isKindOfClass:[NSArray class]] ? [self initWithArray:root] : replaced(self, nil);
}

- (id)initWithContentsOfURL:(NSURL *)url {
    return [self initWithContentsOfFile:pathOf(url)];
}

- (BOOL)writeToFile:(NSString *)path atomically:(BOOL)atomically {
    return host::writePropertyList(self, path, atomically);
}

- (BOOL)writeToURL:(NSURL *)url atomically:(BOOL)atomically {
    return host::writePropertyList(self, pathOf(url), atomically);
}

@end
