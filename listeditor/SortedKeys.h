// The keys of a dictionary in ascending order, faster than by sending `compare:` for every pair.
#pragma once

#import <Foundation/Foundation.h>

#include <stdint.h>

namespace zv {

/// The keys of a dictionary, all of them strings, in ascending order by `compare:`. The keys still belong to
/// the dictionary.
class SortedKeys {
public:
    explicit SortedKeys(NSDictionary *dictionary);
    ~SortedKeys();
    SortedKeys(const SortedKeys &) = delete;
    SortedKeys &operator=(const SortedKeys &) = delete;

    [[nodiscard]] NSUInteger count() const { return m_count; }
    [[nodiscard]] NSString *operator[](NSUInteger index) const { return m_entries[index].key; }

    /// One key with what is needed to compare it without asking it again.
    struct Entry {
        NSString *key;
        const char *ascii; ///< its characters; null where one of them is not ASCII
        size_t length;
        uint64_t head; ///< the first eight characters, the first one in the highest byte
    };

private:
    NSUInteger m_count = 0;
    Entry *m_entries;
    char *m_characters;
};

} // namespace zv
