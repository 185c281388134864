#include "databases/DisplayName.h"

#include "databases/Utf8.h"

#include <stdlib.h>
#include <string.h>

namespace zv {

namespace {

constexpr size_t shortestSpacedName = 5; // UTF-16 units of both parts

NSString *copyPart(const char *utf8) {
    return [[NSString alloc] initWithUTF8String:utf8];
}

} // namespace

DisplayNames::~DisplayNames() {
    free(m_buffer);
}

NSString *DisplayNames::copyName(const char *first, const char *last) {
    bool firstLeads = m_order == NameOrder::firstNameFirst;
    const char *leading = firstLeads ? first : last;
    const char *trailing = firstLeads ? last : first;
    Utf8Measure leadingMeasure = measureUtf8(leading);
    Utf8Measure trailingMeasure = measureUtf8(trailing);
    if (!leadingMeasure.isValid)
        return trailingMeasure.isValid ? copyPart(trailing) : nil;
    if (!trailingMeasure.isValid)
        return copyPart(leading);

    bool spaced = leadingMeasure.utf16Units + trailingMeasure.utf16Units >= shortestSpacedName;
    char *joined = bufferFor(leadingMeasure.bytes + spaced + trailingMeasure.bytes + 1);
    if (!joined)
        return nil;
    memcpy(joined, leading, leadingMeasure.bytes);
    joined[leadingMeasure.bytes] = ' ';
    memcpy(joined + leadingMeasure.bytes + spaced, trailing, trailingMeasure.bytes + 1);
    return copyPart(joined);
}

// Room for this many bytes, null where there is no memory.
char *DisplayNames::bufferFor(size_t bytes) {
    if (bytes <= m_capacity)
        return m_buffer;
    size_t capacity = bytes * 2;
    auto *buffer = static_cast<char *>(realloc(m_buffer, capacity));
    if (!buffer)
        return nullptr;
    m_buffer = buffer;
    m_capacity = capacity;
    return m_buffer;
}

} // namespace zv
