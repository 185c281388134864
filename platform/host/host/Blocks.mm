// Follows the public description of blocks, section "Imported Variables": a copied block retains the
// objects that it captures. The system's library of blocks knows of no objects, so these two take precedence
// over its own and leave it all other kinds of captured things.
#import <Foundation/NSObject.h>

#include <dlfcn.h>

namespace {

constexpr int fieldIsObject = 3;

template<typename Function>
Function *next(const char *name) {
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" void _Block_object_assign(void *to, const void *object, int flags) {
    static auto *const assign = next<void(void *, const void *, int)>("_Block_object_assign");
    if (flags == fieldIsObject)
        *static_cast<id *>(to) = [static_cast<id>(const_cast<void *>(object)) retain];
    else
        assign(to, object, flags);
}

extern "C" void _Block_object_dispose(const void *object, int flags) {
    static auto *const dispose = next<void(const void *, int)>("_Block_object_dispose");
    if (flags == fieldIsObject)
        [static_cast<id>(const_cast<void *>(object)) release];
    else
        dispose(object, flags);
}
