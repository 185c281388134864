// Path extensions as Apple's NSString class reference describes them: what follows the only dot of a hidden
// file's name is no extension. GNUstep knows that of a name alone, not at the end of a longer path.
#include "Foundation/MethodCorrection.h"

#import <Foundation/Foundation.h>

namespace {

IMP uncorrected;

NSString *withoutExtension(NSString *path, SEL selector) {
    NSString *shorter = reinterpret_cast<NSString *(*)(NSString *, SEL)>(uncorrected)(path, selector);
    const bool lostItsName = [shorter length] > 1 && [shorter hasSuffix:@"/"];
    return lostItsName ? [shorter stringByAppendingString:[path lastPathComponent]] : shorter;
}

} // namespace

@interface HostStringPaths : NSObject
@end

@implementation HostStringPaths

+ (void)load {
    uncorrected = host::replaceMethod("NSString", @selector(stringByDeletingPathExtension),
                                      reinterpret_cast<IMP>(withoutExtension));
}

@end
