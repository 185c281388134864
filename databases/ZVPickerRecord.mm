#import "databases/ZVPickerRecord.h"

#include "settings/RecordKeys.h"

@implementation ZVPickerRecord

// No message to super: the initializers of a dictionary lead back to initWithObjects:forKeys:count:.
- (instancetype)initWithNumber:(NSString *)number name:(NSString *)name type:(NSString *)type {
    _number = [number retain];
    _name = [name retain];
    _type = [type retain];
    return self;
}

- (instancetype)initWithCapacity:(NSUInteger)capacity {
    return [self initWithNumber:nil name:nil type:nil];
}

- (instancetype)initWithObjects:(const id[])objects
                        forKeys:(const id<NSCopying>[])keys
                          count:(NSUInteger)count {
    self = [self initWithCapacity:count];
    for (NSUInteger index = 0; index < count; ++index)
        [self setObject:objects[index] forKey:keys[index]];
    return self;
}

- (void)dealloc {
    [_number release];
    [_name release];
    [_type release];
    [_others release];
    [super dealloc];
}

// The place of a key that has one. Nearly every key is one of ours itself; comparing texts would take most of
// the time of a lookup.
static NSString **placeOf(ZVPickerRecord *record, id key) {
    const struct {
        NSString *key;
        NSString **place;
    } places[] = {{zv::key::number, &record->_number},
                  {zv::key::name, &record->_name},
                  {zv::key::type, &record->_type}};
    for (const auto &one : places) {
        if (one.key == key)
            return one.place;
    }
    for (const auto &one : places) {
        if ([one.key isEqual:key])
            return one.place;
    }
    return nullptr;
}

- (NSUInteger)count {
    return (_number ? 1 : 0) + (_name ? 1 : 0) + (_type ? 1 : 0) + [_others count];
}

- (id)objectForKey:(id)key {
    NSString **place = placeOf(self, key);
    return place ? *place : [_others objectForKey:key];
}

- (void)setObject:(id)object forKey:(id)key {
    NSString **place = object ? placeOf(self, key) : nullptr;
    if (!place) {
        // An object or key that is nil raises there, as it does in any dictionary.
        if (!_others)
            _others = [[NSMutableDictionary alloc] init];
        [_others setObject:object forKey:key];
        return;
    }
    [object retain];
    [*place release];
    *place = object;
}

- (void)removeObjectForKey:(id)key {
    NSString **place = placeOf(self, key);
    if (!place) {
        [_others removeObjectForKey:key];
        return;
    }
    [*place release];
    *place = nil;
}

- (NSArray *)allKeys {
    NSMutableArray *keys = [NSMutableArray arrayWithCapacity:[self count]];
    if (_number)
        [keys addObject:zv::key::number];
    if (_name)
        [keys addObject:zv::key::name];
    if (_type)
        [keys addObject:zv::key::type];
    if (_others)
        [keys addObjectsFromArray:[_others allKeys]];
    return keys;
}

- (NSEnumerator *)keyEnumerator {
    return [[self allKeys] objectEnumerator];
}

- (NSEnumerator *)objectEnumerator {
    return [[self objectsForKeys:[self allKeys] notFoundMarker:[NSNull null]] objectEnumerator];
}

// Keys in batches; the state counts those that were given. They live as long as the record keeps them.
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id[])buffer
                                    count:(NSUInteger)length {
    NSArray *keys = [self allKeys];
    NSUInteger given = [keys count] - state->state;
    given = given < length ? given : length;
    [keys getObjects:buffer range:NSMakeRange(state->state, given)];
    state->state += given;
    state->itemsPtr = buffer;
    state->mutationsPtr = &state->extra[0];
    return given;
}

@end
