// Reads the binary form ("bplist00"), as described in the comments of Apple's published CFBinaryPList.c:
// object table, offset table, trailer of 32 bytes; big-endian. Each object is made once and shared where it
// is referred to again, so that a small file cannot grow without bounds.
#include "Foundation/PropertyListReading.h"

#include "host/Retained.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace host {
namespace {

constexpr std::size_t headerSize = 8;
constexpr std::size_t trailerSize = 32;
// Apple counts dates from the first instant of 2001.
const double reference = NSTimeIntervalSince1970;

enum class Marker {
    simple = 0x0,
    integer = 0x1,
    real = 0x2,
    date = 0x3,
    data = 0x4,
    ascii = 0x5,
    utf16 = 0x6,
    array = 0xA,
    set = 0xC,
    dictionary = 0xD
};

class BinaryReader {
public:
    BinaryReader(std::string_view bytes, RootMutability mutability)
        : m_bytes(bytes), m_mutability(mutability) {}

    id newRoot() { return readTrailer() ? newObject(m_top, 0) : nil; }

private:
    struct Span {
        std::size_t start;
        std::size_t count;
    };

    [[nodiscard]] bool has(std::size_t at, std::size_t count) const {
        return at <= m_bytes.size() && count <= m_bytes.size() - at;
    }

    [[nodiscard]] std::uint64_t number(std::size_t at, std::size_t size) const {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | static_cast<unsigned char>(m_bytes[at + i]);
        return value;
    }

    bool readTrailer() {
        if (m_bytes.size() < headerSize + trailerSize)
            return false;
        const std::size_t trailer = m_bytes.size() - trailerSize;
        m_offsetSize = number(trailer + 6, 1);
        m_referenceSize = number(trailer + 7, 1);
        const std::uint64_t count = number(trailer + 8, 8);
        m_top = number(trailer + 16, 8);
        m_offsets = number(trailer + 24, 8);
        const auto isSize = [](std::size_t size) { return size >= 1 && size <= 8; };
        if (!isSize(m_offsetSize) || !isSize(m_referenceSize) || count == 0 || m_offsets > trailer)
            return false;
        if (count > (trailer - m_offsets) / m_offsetSize)
            return false;
        m_made.resize(count);
        m_beingMade.resize(count);
        return true;
    }

    id newObject(std::uint64_t index, int depth) {
        if (index >= m_made.size() || m_beingMade[index] || depth > deepestPropertyList)
            return nil;
        if (m_made[index].get())
            return [m_made[index].get() retain];
        const std::size_t at = number(m_offsets + index * m_offsetSize, m_offsetSize);
        if (at < headerSize || !has(at, 1))
            return nil;
        m_beingMade[index] = true;
        const id object = newObjectAt(at, depth);
        m_beingMade[index] = false;
        m_made[index] = Retained<>(object);
        return object;
    }

    id newObjectAt(std::size_t at, int depth) {
        const auto byte = static_cast<unsigned char>(m_bytes[at]);
        const unsigned low = byte & 0xF;
        switch (static_cast<Marker>(byte >> 4)) {
        case Marker::simple: return low == 8 || low == 9 ? newBoolean(low == 9) : nil;
        case Marker::integer: return newInteger(at + 1, low);
        case Marker::real: return newReal(at + 1, low);
        case Marker::date: return newDate(at + 1, low);
        case Marker::data: return newData(span(at, low, 1));
        case Marker::ascii: return newASCII(span(at, low, 1));
        case Marker::utf16: return newUTF16(span(at, low, 2));
        case Marker::array: return newArray(span(at, low, m_referenceSize), depth);
        case Marker::dictionary: return newDictionary(span(at, low, 2 * m_referenceSize), depth);
        default: return nil;
        }
    }

    // Where the elements of a counted object lie; nothing when they do not fit.
    [[nodiscard]] std::optional<Span> span(std::size_t at, unsigned low, std::size_t size) const {
        Span result{at + 1, low};
        if (low == 0xF) {
            if (!has(at + 1, 1))
                return std::nullopt;
            const unsigned marker = static_cast<unsigned char>(m_bytes[at + 1]);
            const std::size_t width = std::size_t{1} << (marker & 0xF);
            if (marker >> 4 != static_cast<unsigned>(Marker::integer) || width > 8 || !has(at + 2, width))
                return std::nullopt;
            result = {at + 2 + width, number(at + 2, width)};
        }
        if (!has(result.start, 0) || result.count > (m_bytes.size() - result.start) / size)
            return std::nullopt;
        return result;
    }

    // One, two and four bytes are unsigned, eight are signed; sixteen hold unsigned values beyond that.
    [[nodiscard]] NSNumber *newInteger(std::size_t at, unsigned power) const {
        const std::size_t width = std::size_t{1} << power;
        if (power > 4 || !has(at, width))
            return nil;
        if (width <= 8)
            return host::newInteger(static_cast<long long>(number(at, width)));
        return number(at, 8) == 0 ? [[NSNumber alloc] initWithUnsignedLongLong:number(at + 8, 8)] : nil;
    }

    [[nodiscard]] NSNumber *newReal(std::size_t at, unsigned power) const {
        const std::size_t width = std::size_t{1} << power;
        if ((power != 2 && power != 3) || !has(at, width))
            return nil;
        if (power == 2)
            return [[NSNumber alloc]
                initWithFloat:std::bit_cast<float>(static_cast<std::uint32_t>(number(at, 4)))];
        return host::newReal(std::bit_cast<double>(number(at, 8)));
    }

    [[nodiscard]] NSDate *newDate(std::size_t at, unsigned power) const {
        if (power != 3 || !has(at, 8))
            return nil;
        const auto seconds = std::bit_cast<double>(number(at, 8));
        return std::isfinite(seconds) ? [[NSDate alloc] initWithTimeIntervalSince1970:seconds + reference]
                                      : nil;
    }

    [[nodiscard]] NSData *newData(std::optional<Span> span) const {
        return span ? [[NSData alloc] initWithBytes:m_bytes.data() + span->start length:span->count] : nil;
    }

    [[nodiscard]] NSString *newASCII(std::optional<Span> span) const {
        return span ? newString(m_bytes.substr(span->start, span->count)) : nil;
    }

    [[nodiscard]] NSString *newUTF16(std::optional<Span> span) const {
        if (!span)
            return nil;
        std::u16string units(span->count, u'\0');
        for (std::size_t i = 0; i < units.size(); ++i)
            units[i] = static_cast<char16_t>(number(span->start + 2 * i, 2));
        return newString(units);
    }

    id newArray(std::optional<Span> span, int depth) {
        Members members;
        for (std::size_t i = 0; span && i < span->count; ++i) {
            const id member = newReferred(span->start, i, depth);
            if (!member)
                return nil;
            members.add(member);
        }
        return span ? members.newArray(mutability(depth)) : nil;
    }

    id newDictionary(std::optional<Span> span, int depth) {
        Pairs pairs;
        for (std::size_t i = 0; span && i < span->count; ++i) {
            const id key = newReferred(span->start, i, depth);
            if (![key isKindOfClass:[NSString class]]) {
                [key release];
                return nil;
            }
            if (!pairs.add(key, newReferred(span->start, span->count + i, depth)))
                return nil;
        }
        return span ? pairs.newDictionary(mutability(depth)) : nil;
    }

    id newReferred(std::size_t start, std::size_t i, int depth) {
        return newObject(number(start + i * m_referenceSize, m_referenceSize), depth + 1);
    }

    [[nodiscard]] RootMutability mutability(int depth) const {
        return depth == 0 ? m_mutability : RootMutability::immutable;
    }

    std::string_view m_bytes;
    RootMutability m_mutability;
    std::size_t m_offsetSize = 0;
    std::size_t m_referenceSize = 0;
    std::size_t m_offsets = 0;
    std::uint64_t m_top = 0;
    std::vector<Retained<>> m_made;
    std::vector<bool> m_beingMade;
};

} // namespace

id newObjectOfBinary(std::string_view bytes, RootMutability mutability) {
    return BinaryReader(bytes, mutability).newRoot();
}

} // namespace host
