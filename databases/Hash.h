// A hash of bytes for small tables of our own.
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace zv {

/// FNV-1a (http://www.isthe.com/chongo/tech/comp/fnv/).
inline uint32_t hashOf(const char *bytes, size_t length) {
    uint32_t value = 2166136261U;
    for (size_t index = 0; index < length; ++index)
        value = (value ^ static_cast<uint8_t>(bytes[index])) * 16777619U;
    return value;
}

} // namespace zv
