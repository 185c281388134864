// Numbers at the start of a string as Apple's NSString class reference describes them: leading white space is
// skipped, a number beyond the type's range gives the range's end. GNUstep's wrap around.
#include "Foundation/MethodCorrection.h"

#import <Foundation/Foundation.h>

#include <limits>

namespace {

template<typename Integer>
Integer clamped(unsigned long long magnitude, bool negative) {
    constexpr auto most = static_cast<unsigned long long>(std::numeric_limits<Integer>::max());
    if (magnitude > most)
        return negative ? std::numeric_limits<Integer>::min() : std::numeric_limits<Integer>::max();
    const auto value = static_cast<Integer>(magnitude);
    return negative ? -value : value;
}

// Stops growing once the value is beyond every type.
unsigned long long withDigit(unsigned long long magnitude, unichar digit) {
    constexpr unsigned long long beyond = 1ull << 63;
    if (magnitude > beyond / 10)
        return beyond;
    return magnitude * 10 + static_cast<unsigned long long>(digit - '0');
}

template<typename Integer>
Integer number(NSString *text, SEL) {
    const NSUInteger length = [text length];
    NSCharacterSet *space = [NSCharacterSet whitespaceAndNewlineCharacterSet];
    NSUInteger at = 0;
    while (at < length && [space characterIsMember:[text characterAtIndex:at]])
        ++at;
    const unichar sign = at < length ? [text characterAtIndex:at] : 0;
    if (sign == '-' || sign == '+')
        ++at;
    unsigned long long magnitude = 0;
    for (; at < length; ++at) {
        const unichar digit = [text characterAtIndex:at];
        if (digit < '0' || digit > '9')
            break;
        magnitude = withDigit(magnitude, digit);
    }
    return clamped<Integer>(magnitude, sign == '-');
}

template<typename Integer>
void correct(SEL selector) {
    host::replaceMethods({"NSString", "NSConstantString", "GSCString", "GSUnicodeString", "GSMutableString",
                          "GSImmutableString"},
                         selector, reinterpret_cast<IMP>(number<Integer>));
}

} // namespace

@interface HostStringNumbers : NSObject
@end

@implementation HostStringNumbers

+ (void)load {
    correct<int>(@selector(intValue));
    correct<NSInteger>(@selector(integerValue));
    correct<long long>(@selector(longLongValue));
}

@end
