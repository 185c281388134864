#include "host/Text.h"

#include "host/Unicode.h"

namespace host {

namespace {

/// The character that begins at `bytes[at]`, which is moved past it; U+FFFD for one byte that begins none.
char32_t next(const std::string &bytes, std::size_t &at) {
    const auto byte = [&](std::size_t i) -> unsigned { return static_cast<unsigned char>(bytes[i]); };
    const unsigned first = byte(at++);
    if (first < 0x80)
        return first;
    const std::size_t more = first >= 0xF0 ? 3 : first >= 0xE0 ? 2 : 1;
    if (first < 0xC2 || first > 0xF4 || at + more > bytes.size())
        return replacementCharacter;
    char32_t c = first & (0x3F >> more);
    for (std::size_t i = at; i < at + more; i++) {
        if ((byte(i) & 0xC0) != 0x80)
            return replacementCharacter;
        c = c << 6 | (byte(i) & 0x3F);
    }
    const bool overlong = (more == 2 && c < 0x800) || (more == 3 && (c < 0x10000 || c > 0x10FFFF));
    if (overlong || (c >= 0xD800 && c < 0xE000))
        return replacementCharacter;
    at += more;
    return c;
}

} // namespace

std::u16string utf16(NSString *text) {
    std::u16string units([text length], u'\0');
    if (!units.empty())
        [text getCharacters:reinterpret_cast<unichar *>(units.data())];
    return units;
}

std::string utf8(NSString *text) {
    return utf8(utf16(text));
}

NSString *string(const std::u16string &units) {
    return [NSString stringWithCharacters:reinterpret_cast<const unichar *>(units.data())
                                   length:units.size()];
}

NSString *string(const std::string &bytes) {
    std::u16string units;
    for (std::size_t at = 0; at < bytes.size();) {
        const char32_t c = next(bytes, at);
        if (c >= 0x10000) {
            units += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
            units += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
        } else {
            units += static_cast<char16_t>(c);
        }
    }
    return string(units);
}

} // namespace host
