#include "databases/Utf8.h"

#include <stdint.h>

namespace zv {

namespace {

// How many bytes follow a leading byte, and which second bytes are allowed: that bound is what keeps out
// overlong forms, surrogates and numbers that are too high.
struct LeadingByte {
    int following;
    uint8_t lowestSecond;
    uint8_t highestSecond;
};

constexpr LeadingByte invalidByte = {-1, 0, 0};

LeadingByte leadingByte(uint8_t byte) {
    if (byte < 0x80)
        return {0, 0, 0};
    if (byte >= 0xC2 && byte <= 0xDF)
        return {1, 0x80, 0xBF};
    if (byte >= 0xE0 && byte <= 0xEF)
        return {2, uint8_t(byte == 0xE0 ? 0xA0 : 0x80), uint8_t(byte == 0xED ? 0x9F : 0xBF)};
    if (byte >= 0xF0 && byte <= 0xF4)
        return {3, uint8_t(byte == 0xF0 ? 0x90 : 0x80), uint8_t(byte == 0xF4 ? 0x8F : 0xBF)};
    return invalidByte;
}

// Bytes of the character at `text`, 0 where it is not valid. The null byte at the end is no following byte,
// so nothing beyond it is read.
int characterBytes(const uint8_t *text) {
    LeadingByte lead = leadingByte(text[0]);
    if (lead.following > 0 && (text[1] < lead.lowestSecond || text[1] > lead.highestSecond))
        return 0;
    for (int index = 2; index <= lead.following; ++index) {
        if ((text[index] & 0xC0) != 0x80)
            return 0;
    }
    return lead.following + 1;
}

} // namespace

Utf8Measure measureUtf8(const char *text) {
    if (!text)
        return {};
    Utf8Measure measure = {true, 0, 0};
    const auto *bytes = reinterpret_cast<const uint8_t *>(text);
    while (bytes[measure.bytes] != 0) {
        int length = characterBytes(bytes + measure.bytes);
        if (length == 0)
            return {};
        measure.bytes += size_t(length);
        measure.utf16Units += length == 4 ? 2 : 1;
    }
    return measure;
}

} // namespace zv
