#include "simulator/demo/FictionNumbers.h"

#include <array>

namespace sim {

namespace {

// A range of numbers: what they begin with and how many digits follow.
struct Range {
    const char *prefix;
    int digits;
};

// North America: 555-0100 to 555-0199 in every area code (NANPA). United Kingdom: Ofcom, "Telephone numbers
// for use in TV and radio drama programmes". Australia: ACMA, "Phone numbers for use in TV shows, films and
// creative works". France: ARCEP, decision 2018-0881. Germany: Bundesnetzagentur, "Rufnummern für
// Medienzwecke".
constexpr Range ranges[] = {
    {"+44 7700 900", 3},    {"+1 (212) 555-01", 2}, {"+33 1 99 00 ", 4},    {"+61 2 5550 ", 4},
    {"+49 30 23125 ", 3},   {"+44 20 7946 0", 3},   {"+1 (415) 555-01", 2}, {"+33 6 39 98 ", 4},
    {"+61 3 5550 ", 4},     {"+49 89 99998 ", 3},   {"+44 161 496 0", 3},   {"+1 (312) 555-01", 2},
    {"+33 2 61 91 ", 4},    {"+61 7 5550 ", 4},     {"+49 40 66969 ", 3},   {"+44 131 496 0", 3},
    {"+1 (206) 555-01", 2}, {"+33 3 53 01 ", 4},    {"+61 8 5550 ", 4},     {"+49 69 90009 ", 3},
    {"+44 121 496 0", 3},   {"+1 (617) 555-01", 2}, {"+33 4 65 71 ", 4},    {"+61 2 7010 ", 4},
    {"+49 221 4710 ", 3},   {"+44 117 496 0", 3},   {"+1 (604) 555-01", 2}, {"+33 5 36 49 ", 4},
    {"+61 3 7010 ", 4},     {"+44 1632 960", 3},    {"+44 141 496 0", 3},   {"+1 (416) 555-01", 2},
    {"+61 7 7010 ", 4},     {"+61 8 7010 ", 4},     {"+44 3069 990", 3},
};

constexpr std::size_t sizeOf(const Range &range) {
    std::size_t size = 1;
    for (int digit = 0; digit < range.digits; ++digit)
        size *= 10;
    return size;
}

std::string number(const Range &range, std::size_t offset) {
    std::string digits = std::to_string(offset);
    return range.prefix + std::string(static_cast<std::size_t>(range.digits) - digits.size(), '0') + digits;
}

} // namespace

std::size_t fictionNumberCount() {
    std::size_t count = 0;
    for (const Range &range : ranges)
        count += sizeOf(range);
    return count;
}

// Takes a number of each range in turn; ranges that are used up drop out of the turn.
std::string fictionNumber(std::size_t index) {
    index %= fictionNumberCount();
    std::size_t first = 0; // numbers of each remaining range that earlier rounds have taken
    for (std::size_t last : {100U, 1000U, 10000U}) {
        std::size_t open = 0;
        for (const Range &range : ranges)
            open += sizeOf(range) > first ? 1 : 0;
        if (index < open * (last - first)) {
            std::size_t turn = index % open;
            for (const Range &range : ranges) {
                if (sizeOf(range) > first && turn-- == 0)
                    return number(range, first + index / open);
            }
        }
        index -= open * (last - first);
        first = last;
    }
    return {};
}

} // namespace sim
