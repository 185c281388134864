#include "UIKit/PngHeader.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

constexpr std::array<std::uint8_t, 16> beginning = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                                    0,    0,   0,   13,  'I',  'H',  'D',  'R'};
constexpr std::size_t widthAt = 16, heightAt = 20, sumAt = 29, headerLength = 33, summedFrom = 12;

std::uint32_t bigEndian(std::span<const std::uint8_t> bytes, std::size_t at) {
    return std::uint32_t{bytes[at]} << 24 | std::uint32_t{bytes[at + 1]} << 16 |
           std::uint32_t{bytes[at + 2]} << 8 | std::uint32_t{bytes[at + 3]};
}

/// The check sum of PNG chunks (CRC-32 of ISO 3309).
std::uint32_t checkSum(std::span<const std::uint8_t> bytes) {
    std::uint32_t sum = 0xFFFFFFFF;
    for (const std::uint8_t byte : bytes) {
        sum ^= byte;
        for (int bit = 0; bit < 8; bit++)
            sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
    }
    return ~sum;
}

} // namespace

std::optional<PixelSize> pngSize(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < headerLength || !std::equal(beginning.begin(), beginning.end(), bytes.begin()))
        return std::nullopt;
    if (checkSum(bytes.subspan(summedFrom, sumAt - summedFrom)) != bigEndian(bytes, sumAt))
        return std::nullopt;
    const PixelSize size{bigEndian(bytes, widthAt), bigEndian(bytes, heightAt)};
    if (size.width == 0 || size.height == 0)
        return std::nullopt;
    return size;
}

} // namespace host
