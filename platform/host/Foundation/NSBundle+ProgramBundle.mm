// bundleForClass: as in Apple's NSBundle class reference, the bundle that holds the class's code. GNUstep
// knows the bundles that it loaded itself; classes linked into the program belong to the bundle that the host
// names.
#include "Foundation/MethodCorrection.h"
#include "Foundation/ProgramBundle.h"

#import <Foundation/Foundation.h>
#import <objc/runtime.h>

namespace {

using BundleForClass = id (*)(id, SEL, Class);
BundleForClass loadedBundle = nullptr;
NSBundle *programBundle = nil;

id bundleForClass(id self, SEL selector, Class aClass) {
    NSBundle *bundle = loadedBundle(self, selector, aClass);
    return programBundle && (!bundle || bundle == [NSBundle mainBundle]) ? programBundle : bundle;
}

} // namespace

@interface HostProgramBundle : NSObject
@end

@implementation HostProgramBundle

+ (void)load {
    loadedBundle = reinterpret_cast<BundleForClass>(host::replaceMethod(
        objc_getMetaClass("NSBundle"), @selector(bundleForClass:), reinterpret_cast<IMP>(bundleForClass)));
}

@end

namespace host {

void setProgramBundle(NSBundle *bundle) {
    [bundle retain];
    [programBundle release];
    programBundle = bundle;
}

} // namespace host
