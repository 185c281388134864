// References to objects. Each is the Foundation object of the same name under another type, so a cast turns
// one into the other.
#pragma once

#include <stddef.h>

typedef unsigned char Boolean;
typedef long CFIndex;

typedef const void *CFTypeRef;
typedef const struct __CFString *CFStringRef;
typedef const struct __CFArray *CFArrayRef;
typedef const struct __CFDictionary *CFDictionaryRef;
typedef const struct __CFData *CFDataRef;
typedef const struct __CFNumber *CFNumberRef;
typedef const struct __CFError *CFErrorRef;

/// A constant string; `text` is a literal.
#define CFSTR(text) ((CFStringRef) @text) // NOLINT(bugprone-macro-parentheses): pasted to its @

#ifdef __cplusplus
extern "C" {
#endif

/// Adds a reference and returns the object. `object` must not be NULL.
CFTypeRef CFRetain(CFTypeRef object);

/// Gives a reference up. `object` must not be NULL.
void CFRelease(CFTypeRef object);

#ifdef __cplusplus
}
#endif
