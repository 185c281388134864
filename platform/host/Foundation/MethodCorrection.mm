#include "Foundation/MethodCorrection.h"

#import <objc/runtime.h>

#include <cstdlib>
#include <memory>
#include <utility>

// Both are the GNU runtime's own. Its method_setImplementation is not enough: it forgets subclasses whose
// dispatch tables exist already, and writes into tables that classes share.
struct objc_method {
    SEL name;
    const char *types;
    IMP implementation;
};
extern "C" void __objc_update_dispatch_table_for_class(Class aClass);

namespace host {

IMP replaceMethod(Class owner, SEL selector, IMP replacement) {
    unsigned count = 0;
    const std::unique_ptr<Method[], void (*)(void *)> methods(class_copyMethodList(owner, &count), std::free);
    for (unsigned i = 0; i < count; ++i) {
        if (!sel_isEqual(method_getName(methods[i]), selector))
            continue;
        const IMP old = std::exchange(methods[i]->implementation, replacement);
        __objc_update_dispatch_table_for_class(owner);
        return old;
    }
    return nullptr;
}

IMP replaceMethod(const char *className, SEL selector, IMP replacement) {
    return replaceMethod([objc_getClass(className) class], selector, replacement);
}

void replaceMethods(std::initializer_list<const char *> classNames, SEL selector, IMP replacement) {
    for (const char *name : classNames)
        replaceMethod(name, selector, replacement);
}

} // namespace host
