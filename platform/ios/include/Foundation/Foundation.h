// The part of Foundation that the bundle uses, declared for a device build without an SDK. After Apple's
// public reference documentation; each class lists only what is called.
#pragma once

#include <objc/objc.h>
#include <stddef.h>
#include <stdint.h>

#if __LP64__
typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double CGFloat;
#else
typedef int NSInteger;
typedef unsigned int NSUInteger;
typedef float CGFloat;
#endif
typedef double NSTimeInterval;
#define NSTimeIntervalSince1970 978307200.0
typedef unsigned short unichar;
typedef NSUInteger NSStringEncoding;
typedef NSInteger NSComparisonResult;
typedef struct _NSZone NSZone;

#define NS_ENUM(type, name)                                                                                  \
    enum name : type name;                                                                                   \
    enum name : type
#define MIN(left, right) ((left) < (right) ? (left) : (right))
#define NS_RETURNS_RETAINED __attribute__((ns_returns_retained))
#define NS_OPTIONS(type, name)                                                                               \
    enum name : type name;                                                                                   \
    enum name : type

enum : NSComparisonResult { NSOrderedAscending = -1, NSOrderedSame = 0, NSOrderedDescending = 1 };
enum : NSStringEncoding { NSASCIIStringEncoding = 1 };

typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;

static inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) {
    return NSRange{location, length};
}

@class NSArray, NSBundle, NSData, NSDate, NSDictionary, NSEnumerator, NSError, NSIndexSet, NSNumber, NSSet,
    NSString, NSURL;

@protocol NSObject
- (Class)class;
- (BOOL)isEqual:(id)object;
- (NSUInteger)hash;
- (BOOL)isKindOfClass:(Class)aClass;
- (BOOL)respondsToSelector:(SEL)selector;
- (id)performSelector:(SEL)selector withObject:(id)object;
- (instancetype)retain;
- (oneway void)release;
- (instancetype)autorelease;
@end

@protocol NSCopying
- (id)copyWithZone:(NSZone *)zone;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
+ (instancetype)alloc;
+ (instancetype)new;
+ (Class)class;
- (instancetype)init;
- (void)dealloc;
- (id)copy;
@end

@interface NSObject (NSDelayedPerforming)
- (void)performSelector:(SEL)selector withObject:(id)object afterDelay:(NSTimeInterval)delay;
+ (void)cancelPreviousPerformRequestsWithTarget:(id)target selector:(SEL)selector object:(id)object;
@end

@interface NSObject (NSKeyValueCoding)
- (void)setValue:(id)value forKey:(NSString *)key;
@end

typedef struct {
    unsigned long state;
    id *itemsPtr;
    unsigned long *mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState *)state
                                  objects:(id *)buffer
                                    count:(NSUInteger)length;
@end

@interface NSString : NSObject <NSCopying>
+ (instancetype)string;
+ (instancetype)stringWithFormat:(NSString *)format, ... __attribute__((format(NSString, 1, 2)));
+ (instancetype)stringWithString:(NSString *)other;
+ (instancetype)stringWithUTF8String:(const char *)bytes;
- (instancetype)initWithUTF8String:(const char *)bytes;
@property (readonly) NSUInteger length;
@property (readonly) const char *UTF8String;
@property (readonly) const char *fileSystemRepresentation;
@property (readonly) int intValue;
@property (readonly) NSInteger integerValue;
@property (readonly) float floatValue;
@property (readonly) double doubleValue;
@property (readonly, copy) NSString *stringByDeletingPathExtension;
- (void)getCharacters:(unichar *)buffer range:(NSRange)range;
- (NSComparisonResult)compare:(NSString *)other;
- (BOOL)isEqualToString:(NSString *)other;
- (BOOL)hasSuffix:(NSString *)suffix;
- (NSString *)substringToIndex:(NSUInteger)index;
- (NSString *)stringByAppendingString:(NSString *)other;
- (NSString *)stringByReplacingOccurrencesOfString:(NSString *)target withString:(NSString *)replacement;
- (NSString *)stringByAddingPercentEscapesUsingEncoding:(NSStringEncoding)encoding;
@end

@interface NSValue : NSObject <NSCopying>
@end

@interface NSNumber : NSValue
+ (NSNumber *)numberWithBool:(BOOL)value;
+ (NSNumber *)numberWithInt:(int)value;
+ (NSNumber *)numberWithInteger:(NSInteger)value;
+ (NSNumber *)numberWithFloat:(float)value;
@property (readonly) int intValue;
@property (readonly) NSInteger integerValue;
@property (readonly) float floatValue;
@end

@interface NSNull : NSObject
+ (NSNull *)null;
@end

@interface NSArray : NSObject <NSFastEnumeration>
+ (instancetype)array;
+ (instancetype)arrayWithObject:(id)object;
+ (instancetype)arrayWithObjects:(const id *)objects count:(NSUInteger)count;
@property (readonly) NSUInteger count;
- (id)objectAtIndex:(NSUInteger)index;
- (void)getObjects:(id *)objects range:(NSRange)range;
- (NSEnumerator *)objectEnumerator;
@end

@interface NSMutableArray : NSArray
+ (instancetype)arrayWithCapacity:(NSUInteger)capacity;
- (instancetype)initWithCapacity:(NSUInteger)capacity;
- (void)addObject:(id)object;
- (void)addObjectsFromArray:(NSArray *)other;
- (void)insertObject:(id)object atIndex:(NSUInteger)index;
- (void)removeObjectAtIndex:(NSUInteger)index;
- (void)removeAllObjects;
- (void)replaceObjectAtIndex:(NSUInteger)index withObject:(id)object;
@end

@interface NSDictionary : NSObject <NSFastEnumeration>
+ (instancetype)dictionary;
+ (instancetype)dictionaryWithContentsOfFile:(NSString *)path;
+ (instancetype)dictionaryWithObjects:(const id *)objects forKeys:(const id *)keys count:(NSUInteger)count;
- (instancetype)initWithContentsOfFile:(NSString *)path;
- (instancetype)initWithObjects:(const id *)objects
                        forKeys:(const id<NSCopying> *)keys
                          count:(NSUInteger)count;
@property (readonly) NSUInteger count;
@property (readonly, copy) NSArray *allKeys;
- (id)objectForKey:(id)key;
- (NSEnumerator *)keyEnumerator;
- (NSArray *)objectsForKeys:(NSArray *)keys notFoundMarker:(id)marker;
- (BOOL)writeToFile:(NSString *)path atomically:(BOOL)atomically;
@end

@interface NSMutableDictionary : NSDictionary
+ (instancetype)dictionaryWithCapacity:(NSUInteger)capacity;
- (instancetype)initWithCapacity:(NSUInteger)capacity;
- (void)setObject:(id)object forKey:(id)key;
- (void)removeObjectForKey:(id)key;
- (void)removeAllObjects;
@end

@interface NSDate : NSObject <NSCopying>
+ (instancetype)date;
- (instancetype)initWithTimeIntervalSinceReferenceDate:(NSTimeInterval)seconds;
@property (readonly) NSTimeInterval timeIntervalSince1970;
@end

typedef NS_ENUM(NSUInteger, NSDateFormatterStyle) {
    NSDateFormatterNoStyle = 0,
    NSDateFormatterShortStyle = 1,
};

@interface NSFormatter : NSObject
@end

@interface NSDateFormatter : NSFormatter
- (void)setDateStyle:(NSDateFormatterStyle)style;
- (void)setTimeStyle:(NSDateFormatterStyle)style;
- (void)setDateFormat:(NSString *)format;
- (NSString *)stringFromDate:(NSDate *)date;
@end

@interface NSTimeZone : NSObject
+ (NSTimeZone *)defaultTimeZone;
- (NSInteger)secondsFromGMTForDate:(NSDate *)date;
@end

@interface NSURL : NSObject <NSCopying>
+ (instancetype)URLWithString:(NSString *)string;
@end

@interface NSBundle : NSObject
- (NSString *)localizedStringForKey:(NSString *)key value:(NSString *)value table:(NSString *)table;
@end

@interface NSEnumerator : NSObject <NSFastEnumeration>
@end

@interface NSDirectoryEnumerator : NSEnumerator
@end

@interface NSFileManager : NSObject
+ (NSFileManager *)defaultManager;
- (BOOL)fileExistsAtPath:(NSString *)path;
- (BOOL)removeItemAtPath:(NSString *)path error:(NSError **)error;
- (NSArray *)contentsOfDirectoryAtPath:(NSString *)path error:(NSError **)error;
- (NSDirectoryEnumerator *)enumeratorAtPath:(NSString *)path;
@end

__attribute__((objc_exception))
@interface NSException : NSObject
@end

@interface NSIndexPath : NSObject <NSCopying>
@end
