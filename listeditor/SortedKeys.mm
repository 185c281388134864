#include "listeditor/SortedKeys.h"

#include <stdlib.h>
#include <string.h>

namespace zv {

namespace {

constexpr size_t headLength = sizeof(uint64_t);

// Copies the characters of `text` to `to`, which has room for them; false where one is not ASCII.
bool copyAscii(NSString *text, NSUInteger length, char *to) {
    constexpr NSUInteger chunk = 64;
    unichar units[chunk];
    for (NSUInteger start = 0; start < length; start += chunk) {
        const NSUInteger count = MIN(chunk, length - start);
        [text getCharacters:units range:NSMakeRange(start, count)];
        for (NSUInteger index = 0; index < count; ++index) {
            if (units[index] > 0x7f)
                return false;
            to[start + index] = static_cast<char>(units[index]);
        }
    }
    return true;
}

uint64_t headOf(const char *ascii, size_t length) {
    uint64_t head = 0;
    for (size_t index = 0; index < headLength; ++index)
        head = head << 8 | (index < length ? static_cast<uint64_t>(ascii[index]) : 0);
    return head;
}

template<typename Number>
int order(Number left, Number right) {
    return left < right ? -1 : (right < left ? 1 : 0);
}

// `compare:` orders ASCII texts by their characters, the shorter of two with the same beginning first.
int compareAscii(const SortedKeys::Entry &left, const SortedKeys::Entry &right) {
    if (left.head != right.head)
        return order(left.head, right.head);
    const int difference = memcmp(left.ascii, right.ascii, MIN(left.length, right.length));
    return difference != 0 ? difference : order(left.length, right.length);
}

int compareEntries(const void *first, const void *second) {
    const auto &left = *static_cast<const SortedKeys::Entry *>(first);
    const auto &right = *static_cast<const SortedKeys::Entry *>(second);
    if (left.ascii && right.ascii)
        return compareAscii(left, right);
    return static_cast<int>([left.key compare:right.key]);
}

size_t totalLength(NSDictionary *dictionary) {
    size_t total = 0;
    for (NSString *key in dictionary)
        total += [key length];
    return total;
}

} // namespace

SortedKeys::SortedKeys(NSDictionary *dictionary)
    : m_entries(static_cast<Entry *>(calloc([dictionary count] + 1, sizeof(Entry)))),
      m_characters(static_cast<char *>(malloc(totalLength(dictionary) + 1))) {
    char *next = m_characters;
    for (NSString *key in dictionary) {
        const NSUInteger length = [key length];
        const bool ascii = copyAscii(key, length, next);
        m_entries[m_count++] = {key, ascii ? next : nullptr, length, ascii ? headOf(next, length) : 0};
        next += length;
    }
    qsort(m_entries, m_count, sizeof(Entry), compareEntries);
}

SortedKeys::~SortedKeys() {
    free(m_entries);
    free(m_characters);
}

} // namespace zv
