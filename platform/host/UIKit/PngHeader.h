// The size that a PNG file says it has (Portable Network Graphics, sections 5.2, 5.3 and 11.2.2).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace host {

struct PixelSize {
    std::uint32_t width = 0, height = 0;
};

/// Nothing when `bytes` do not begin with a whole and undamaged PNG header.
[[nodiscard]] std::optional<PixelSize> pngSize(std::span<const std::uint8_t> bytes);

} // namespace host
