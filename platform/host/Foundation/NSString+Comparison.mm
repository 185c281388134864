// Comparing strings. isEqualToString: is literal as in Apple's NSString class reference ("equivalent ... on a
// Unicode-by-Unicode basis"), where GNUstep takes composed and decomposed forms for equal, and compare:
// orders by characters, where GNUstep orders by UTF-16 units and so puts characters above U+FFFF before
// U+E000.
#include "Foundation/MethodCorrection.h"
#include "host/Text.h"
#include "host/Unicode.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <optional>

namespace {

enum class Owner { base, constant, latin, unicode, mutableString, immutable };

bool sameUnits(NSString *one, NSString *other) {
    return one == other || ([one length] == [other length] && host::utf16(one) == host::utf16(other));
}

template<Owner owner>
struct Equality {
    using Compare = BOOL (*)(id, SEL, id);
    static inline Compare toString = nullptr;
    static inline Compare toObject = nullptr;

    static BOOL isEqualToString(id self, SEL selector, id other) {
        return toString(self, selector, other) && sameUnits(self, other);
    }

    static BOOL isEqual(id self, SEL selector, id other) {
        return toObject(self, selector, other) && sameUnits(self, other);
    }

    static void correct(const char *className) {
        toString = reinterpret_cast<Compare>(host::replaceMethod(className, @selector(isEqualToString:),
                                                                 reinterpret_cast<IMP>(isEqualToString)));
        toObject = reinterpret_cast<Compare>(
            host::replaceMethod(className, @selector(isEqual:), reinterpret_cast<IMP>(isEqual)));
    }
};

bool isBehindSurrogates(char16_t unit) {
    return unit >= 0xE000;
}

bool isSurrogate(char16_t unit) {
    return !host::isScalar(unit);
}

// The order where the strings first differ in a way that the order of units gets wrong; nothing elsewhere.
std::optional<NSComparisonResult> orderBySurrogate(NSString *one, NSString *other) {
    const std::u16string first = host::utf16(one);
    const std::u16string second = host::utf16(other);
    const auto [a, b] = std::mismatch(first.begin(), first.end(), second.begin(), second.end());
    if (a == first.end() || b == second.end())
        return std::nullopt;
    if (isSurrogate(*a) && isBehindSurrogates(*b))
        return NSOrderedDescending;
    return isBehindSurrogates(*a) && isSurrogate(*b) ? std::optional(NSOrderedAscending) : std::nullopt;
}

template<Owner owner>
struct Order {
    using Compare = NSComparisonResult (*)(id, SEL, NSString *, NSStringCompareOptions, NSRange);
    static inline Compare units = nullptr;

    static NSComparisonResult compare(id self, SEL selector, NSString *other, NSStringCompareOptions options,
                                      NSRange range) {
        const NSComparisonResult result = units(self, selector, other, options, range);
        const bool plain =
            (options & ~NSLiteralSearch) == 0 && range.location == 0 && range.length == [self length];
        if (result == NSOrderedSame || !plain)
            return result;
        return orderBySurrogate(self, other).value_or(result);
    }

    static void correct(const char *className) {
        units = reinterpret_cast<Compare>(host::replaceMethod(className, @selector(compare:options:range:),
                                                              reinterpret_cast<IMP>(compare)));
    }
};

} // namespace

@interface HostStringComparison : NSObject
@end

@implementation HostStringComparison

+ (void)load {
    Equality<Owner::base>::correct("NSString");
    Equality<Owner::constant>::correct("NSConstantString");
    Equality<Owner::latin>::correct("GSCString");
    Equality<Owner::unicode>::correct("GSUnicodeString");
    Equality<Owner::mutableString>::correct("GSMutableString");
    Equality<Owner::immutable>::correct("GSImmutableString");
    Order<Owner::base>::correct("NSString");
    Order<Owner::constant>::correct("NSConstantString");
    Order<Owner::unicode>::correct("GSUnicodeString");
    Order<Owner::mutableString>::correct("GSMutableString");
    Order<Owner::immutable>::correct("GSImmutableString");
}

@end
