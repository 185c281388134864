// A hash of bytes for small tables of our own: FNV-1a (http://www.isthe.com/chongo/tech/comp/fnv/).
#pragma once

#include <stddef.h>
#include <stdint.h>

namespace zv {

inline uint32_t hashWith(uint32_t hash, char byte) {
    return (hash ^ static_cast<uint8_t>(byte)) * 16777619U;
}

constexpr uint32_t emptyHash = 2166136261U;

inline uint32_t hashOf(const char *bytes, size_t length) {
    uint32_t hash = emptyHash;
    for (size_t index = 0; index < length; ++index)
        hash = hashWith(hash, bytes[index]);
    return hash;
}

/// The same for a text that ends with a null byte.
inline uint32_t hashOf(const char *text) {
    uint32_t hash = emptyHash;
    for (; *text != '\0'; ++text)
        hash = hashWith(hash, *text);
    return hash;
}

} // namespace zv
