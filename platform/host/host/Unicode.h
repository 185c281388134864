// The arithmetic of UTF-8 and UTF-16.
#pragma once

#include <string>
#include <string_view>

namespace host {

/// Stands for what has no character: ill-formed bytes, lone surrogates.
constexpr char32_t replacementCharacter = 0xFFFD;

[[nodiscard]] constexpr bool isHighSurrogate(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}

[[nodiscard]] constexpr bool isLowSurrogate(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

/// Whether it is a character by its value: in range and no surrogate.
[[nodiscard]] constexpr bool isScalar(char32_t value) {
    return value < 0xD800 || (value >= 0xE000 && value <= 0x10FFFF);
}

[[nodiscard]] constexpr char32_t combineSurrogates(char16_t high, char16_t low) {
    return 0x10000 + ((char32_t{high} - 0xD800) << 10) + (char32_t{low} - 0xDC00);
}

/// The character that begins at `units[at]`, which is moved past it; a lone surrogate is U+FFFD.
[[nodiscard]] inline char32_t nextCharacter(std::u16string_view units, std::size_t &at) {
    const char16_t unit = units[at++];
    if (isHighSurrogate(unit) && at < units.size() && isLowSurrogate(units[at]))
        return combineSurrogates(unit, units[at++]);
    return isScalar(unit) ? unit : replacementCharacter;
}

void appendUTF8(char32_t character, std::string &bytes);

/// UTF-8 of `units`; a lone surrogate becomes U+FFFD.
[[nodiscard]] std::string utf8(std::u16string_view units);

} // namespace host
