#include <CoreFoundation/CFBase.h>

#include "host/Failure.h"

#import <Foundation/Foundation.h>

namespace {

id objectOf(CFTypeRef reference) {
    if (!reference)
        host::fail("a NULL reference was given to CFRetain or CFRelease");
    return (id)reference;
}

} // namespace

CFTypeRef CFRetain(CFTypeRef object) {
    return [objectOf(object) retain];
}

void CFRelease(CFTypeRef object) {
    [objectOf(object) release];
}
