// Numbers in dialable form and the contact records that they lead to.
#pragma once

#import <Foundation/Foundation.h>

#include <stddef.h>
#include <stdint.h>

namespace zv {

/// Hands out the contact record of each number once. A history holds thousands of calls, most of them with
/// numbers that are asked for again and again: a dictionary would need a string object for every question.
class KnownNumbers {
public:
    /// Of the records with the same number the last one counts. A record whose number has characters that are
    /// not dialable is never found.
    explicit KnownNumbers(NSArray *contacts);
    ~KnownNumbers();
    KnownNumbers(const KnownNumbers &) = delete;
    KnownNumbers &operator=(const KnownNumbers &) = delete;

    enum class Answer { known, stranger, alreadyTaken };

    /// The first question for a number gives its record, owned by the caller, or tells that there is none;
    /// every further one that it was taken. Numbers have at most 65,535 bytes; where memory is short, every
    /// one counts as taken.
    Answer take(const char *number, size_t length, NSMutableDictionary **record);

private:
    struct Place {
        NSMutableDictionary *record;
        uint32_t hash;
        uint32_t start;  ///< of the number's bytes in `m_bytes`
        uint16_t length; ///< 0 where the place is free
        bool isTaken;
    };

    void add(NSMutableDictionary *record);
    Place *placeOf(const char *number, size_t length);
    Place &freeOrEqual(const char *number, size_t length, uint32_t hash) const;
    bool makeRoom();
    bool keepBytes(const char *number, size_t length, uint32_t *start);

    Place *m_places = nullptr;
    size_t m_placeCount = 0; ///< a power of two, or 0
    size_t m_used = 0;
    char *m_bytes = nullptr;
    size_t m_byteCount = 0, m_byteCapacity = 0;
};

} // namespace zv
