#include "host/Unicode.h"

namespace host {

void appendUTF8(char32_t character, std::string &bytes) {
    const auto tail = [&](int shift) { bytes += static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        bytes += static_cast<char>(character);
    } else if (character < 0x800) {
        bytes += static_cast<char>(0xC0 | (character >> 6));
        tail(0);
    } else if (character < 0x10000) {
        bytes += static_cast<char>(0xE0 | (character >> 12));
        tail(6), tail(0);
    } else {
        bytes += static_cast<char>(0xF0 | (character >> 18));
        tail(12), tail(6), tail(0);
    }
}

std::string utf8(std::u16string_view units) {
    std::string bytes;
    bytes.reserve(units.size());
    for (std::size_t at = 0; at < units.size();)
        appendUTF8(nextCharacter(units, at), bytes);
    return bytes;
}

} // namespace host
