// Measures UTF-8 text without making an object of it.
#pragma once

#include <stddef.h>

namespace zv {

/// What a text ended by a null byte comes to. Valid is what RFC 3629 calls valid: no overlong form, no
/// surrogate, nothing beyond U+10FFFF, no character cut short.
struct Utf8Measure {
    bool isValid = false;
    size_t bytes = 0;      ///< without the null byte; 0 when not valid
    size_t utf16Units = 0; ///< as NSString counts its length; 0 when not valid
};

/// `text` may be null, which is not valid.
[[nodiscard]] Utf8Measure measureUtf8(const char *text);

} // namespace zv
