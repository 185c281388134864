// Strings cut inside a surrogate pair. For Apple's NSString a lone surrogate is a character like any other,
// which only has no UTF-8: UTF8String is then NULL. GNUstep gives nil for such strings and raises when asked
// for their UTF-8.
#include "Foundation/MethodCorrection.h"
#include "host/Unicode.h"

#import <Foundation/Foundation.h>

#include <string>
#include <vector>

namespace {

using host::isHighSurrogate;
using host::isLowSurrogate;

// GNUstep checks strings when they are made, not when they are changed: each lone surrogate is given a
// partner first, and the partners are deleted again.
class Pairing {
public:
    explicit Pairing(std::u16string_view units) {
        // At the start it would be taken for a byte-order mark.
        if (!units.empty() && (units.front() == 0xFEFF || units.front() == 0xFFFE))
            add(u'x', true);
        for (std::size_t i = 0; i < units.size(); ++i) {
            if (isLowSurrogate(units[i]))
                add(u'\xD800', true);
            add(units[i], false);
            if (!isHighSurrogate(units[i]))
                continue;
            if (i + 1 < units.size() && isLowSurrogate(units[i + 1]))
                add(units[++i], false);
            else
                add(u'\xDC00', true);
        }
    }

    [[nodiscard]] NSMutableString *newString() const {
        NSMutableString *text = [[NSMutableString alloc] initWithCapacity:m_paired.size()];
        [text appendString:[NSString stringWithCharacters:reinterpret_cast<const unichar *>(m_paired.data())
                                                   length:m_paired.size()]];
        for (auto partner = m_partners.rbegin(); partner != m_partners.rend(); ++partner)
            [text deleteCharactersInRange:NSMakeRange(*partner, 1)];
        return text;
    }

private:
    void add(char16_t unit, bool isPartner) {
        if (isPartner)
            m_partners.push_back(m_paired.size());
        m_paired += unit;
    }

    std::u16string m_paired;
    std::vector<std::size_t> m_partners;
};

bool hasLoneSurrogate(std::u16string_view units) {
    for (std::size_t at = 0; at < units.size();) {
        const char16_t unit = units[at];
        if (host::nextCharacter(units, at) == host::replacementCharacter && !host::isScalar(unit))
            return true;
    }
    return false;
}

// The two classes that make strings of bytes: one for all immutable strings, one for mutable ones.
enum class Maker { placeholder, mutableString };

template<Maker maker>
struct Initializers {
    using FromBytes = id (*)(id, SEL, const void *, NSUInteger, NSStringEncoding);
    using FromBytesNoCopy = id (*)(id, SEL, void *, NSUInteger, NSStringEncoding, BOOL);
    static inline FromBytes fromBytes = nullptr;
    static inline FromBytesNoCopy fromBytesNoCopy = nullptr;

    // What GNUstep would refuse; nil for everything else.
    static id newLone(const void *bytes, NSUInteger length, NSStringEncoding encoding) {
        if (encoding != NSUnicodeStringEncoding)
            return nil;
        const std::u16string_view units(static_cast<const char16_t *>(bytes), length / sizeof(char16_t));
        if (!hasLoneSurrogate(units))
            return nil;
        NSMutableString *text = Pairing(units).newString();
        if constexpr (maker == Maker::mutableString)
            return text;
        NSString *copy = [text copy];
        [text release];
        return copy;
    }

    static id withBytes(id self, SEL selector, const void *bytes, NSUInteger length,
                        NSStringEncoding encoding) {
        const id lone = newLone(bytes, length, encoding);
        if (!lone)
            return fromBytes(self, selector, bytes, length, encoding);
        [self release];
        return lone;
    }

    static id withBytesNoCopy(id self, SEL selector, void *bytes, NSUInteger length,
                              NSStringEncoding encoding, BOOL freeWhenDone) {
        const id lone = newLone(bytes, length, encoding);
        if (!lone)
            return fromBytesNoCopy(self, selector, bytes, length, encoding, freeWhenDone);
        if (freeWhenDone)
            NSZoneFree(NSZoneFromPointer(bytes), bytes);
        [self release];
        return lone;
    }

    static void correct(const char *className) {
        fromBytes = reinterpret_cast<FromBytes>(host::replaceMethod(
            className, @selector(initWithBytes:length:encoding:), reinterpret_cast<IMP>(withBytes)));
        fromBytesNoCopy = reinterpret_cast<FromBytesNoCopy>(
            host::replaceMethod(className, @selector(initWithBytesNoCopy:length:encoding:freeWhenDone:),
                                reinterpret_cast<IMP>(withBytesNoCopy)));
    }
};

enum class Holder { base, unicode, mutableString };

template<Holder holder>
struct CStrings {
    using UTF8String = const char *(*)(id, SEL);
    using CString = const char *(*)(id, SEL, NSStringEncoding);
    static inline UTF8String utf8 = nullptr;
    static inline CString encoded = nullptr;

    static const char *utf8OrNull(id self, SEL selector) {
        @try {
            return utf8(self, selector);
        } @catch (NSException *) {
            return nullptr;
        }
    }

    static const char *encodedOrNull(id self, SEL selector, NSStringEncoding encoding) {
        @try {
            return encoded(self, selector, encoding);
        } @catch (NSException *) {
            return nullptr;
        }
    }

    static void correct(const char *className) {
        utf8 = reinterpret_cast<UTF8String>(
            host::replaceMethod(className, @selector(UTF8String), reinterpret_cast<IMP>(utf8OrNull)));
        encoded = reinterpret_cast<CString>(host::replaceMethod(className, @selector(cStringUsingEncoding:),
                                                                reinterpret_cast<IMP>(encodedOrNull)));
    }
};

} // namespace

@interface HostLoneSurrogates : NSObject
@end

@implementation HostLoneSurrogates

+ (void)load {
    Initializers<Maker::placeholder>::correct("GSPlaceholderString");
    Initializers<Maker::mutableString>::correct("GSMutableString");
    CStrings<Holder::base>::correct("NSString");
    CStrings<Holder::unicode>::correct("GSUnicodeString");
    CStrings<Holder::mutableString>::correct("GSMutableString");
}

@end
