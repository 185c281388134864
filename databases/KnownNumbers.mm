#include "databases/KnownNumbers.h"

#include "databases/DialableForm.h"
#include "databases/Hash.h"
#include "settings/RecordKeys.h"

#include <stdlib.h>
#include <string.h>

namespace zv {

namespace {

constexpr size_t fewestPlaces = 64;
constexpr size_t fewestBytes = 1024;
constexpr NSUInteger longestNumber = 255; // characters, as in the dialable form

// Copies the characters of `text` to `bytes` and returns their number; 0 where there are too many or one is
// not dialable.
size_t copyDialable(NSString *text, char *bytes) {
    unichar units[longestNumber];
    const NSUInteger length = [text length];
    if (length > longestNumber)
        return 0;
    [text getCharacters:units range:NSMakeRange(0, length)];
    for (NSUInteger index = 0; index < length; ++index) {
        bytes[index] = static_cast<char>(units[index]);
        if (units[index] > 0x7f || !isDialable(bytes[index]))
            return 0;
    }
    return length;
}

} // namespace

KnownNumbers::KnownNumbers(NSArray *contacts) {
    for (NSMutableDictionary *record in contacts)
        add(record);
}

KnownNumbers::~KnownNumbers() {
    for (size_t index = 0; index < m_placeCount; ++index)
        [m_places[index].record release];
    free(m_places);
    free(m_bytes);
}

void KnownNumbers::add(NSMutableDictionary *record) {
    char bytes[longestNumber];
    const size_t length = copyDialable([record objectForKey:key::number], bytes);
    if (Place *place = placeOf(bytes, length)) {
        [record retain];
        [place->record release];
        place->record = record;
    }
}

KnownNumbers::Answer KnownNumbers::take(const char *number, size_t length, NSMutableDictionary **record) {
    Place *place = placeOf(number, length);
    if (!place || place->isTaken)
        return Answer::alreadyTaken;
    place->isTaken = true;
    *record = place->record;
    place->record = nil;
    return *record ? Answer::known : Answer::stranger;
}

// The place of a number, made where it is new; null for the empty number and where there is no memory.
KnownNumbers::Place *KnownNumbers::placeOf(const char *number, size_t length) {
    if (length == 0 || length > UINT16_MAX || !makeRoom())
        return nullptr;
    const uint32_t hash = hashOf(number, length);
    Place &place = freeOrEqual(number, length, hash);
    if (place.length == 0) {
        uint32_t start = 0;
        if (!keepBytes(number, length, &start))
            return nullptr;
        place = {nil, hash, start, static_cast<uint16_t>(length), false};
        ++m_used;
    }
    return &place;
}

// Open addressing: from the place that the hash names to the first that is free or holds the number.
KnownNumbers::Place &KnownNumbers::freeOrEqual(const char *number, size_t length, uint32_t hash) const {
    for (size_t index = hash;; ++index) {
        Place &place = m_places[index & (m_placeCount - 1)];
        if (place.length == 0 || (place.hash == hash && place.length == length &&
                                  memcmp(m_bytes + place.start, number, length) == 0))
            return place;
    }
}

// Keeps half of the places free, so that a search is short.
bool KnownNumbers::makeRoom() {
    if (m_used < m_placeCount / 2)
        return true;
    const size_t count = m_placeCount > 0 ? m_placeCount * 2 : fewestPlaces;
    auto *places = static_cast<Place *>(calloc(count, sizeof(Place)));
    if (!places)
        return false;
    for (size_t old = 0; old < m_placeCount; ++old) {
        if (m_places[old].length == 0)
            continue;
        size_t index = m_places[old].hash & (count - 1);
        while (places[index].length > 0)
            index = (index + 1) & (count - 1);
        places[index] = m_places[old];
    }
    free(m_places);
    m_places = places;
    m_placeCount = count;
    return true;
}

bool KnownNumbers::keepBytes(const char *number, size_t length, uint32_t *start) {
    if (m_byteCount > UINT32_MAX)
        return false;
    if (m_byteCount + length > m_byteCapacity) {
        const size_t capacity = (m_byteCapacity + length) * 2 + fewestBytes;
        auto *bytes = static_cast<char *>(realloc(m_bytes, capacity));
        if (!bytes)
            return false;
        m_bytes = bytes;
        m_byteCapacity = capacity;
    }
    memcpy(m_bytes + m_byteCount, number, length);
    *start = static_cast<uint32_t>(m_byteCount);
    m_byteCount += length;
    return true;
}

} // namespace zv
