// The lists that a list editor page can edit.
#pragma once

#include "settings/NotificationNames.h"

namespace zv {

/// The values are those of a page's `_customId`.
enum class ListKind : int {
    none = 0,
    area = 1,
    t9 = 2,
    black = 3,
    white = 4,
    priority = 5,
    exclude = 6,
    callTime = 7,
};

struct ListKindEntry {
    const char *listId; ///< value of the specifier property "_custom"
    ListKind kind;
    const char *notification; ///< posted after a change; null: the settings notification, by the root page
    bool hasDocument;         ///< false: the one value lies in the call-history database
};

/// In the order in which ids are compared. The priority list is announced like the code table, on purpose:
/// the dialer ranks its search results by both.
constexpr ListKindEntry listKinds[] = {
    {"calltime", ListKind::callTime, nullptr, false},
    {"area", ListKind::area, notification::area, true},
    {"t9", ListKind::t9, notification::t9, true},
    {"black", ListKind::black, notification::blacklist, true},
    {"white", ListKind::white, notification::blacklist, true},
    {"priority", ListKind::priority, notification::t9, true},
    {"exclude", ListKind::exclude, nullptr, true},
};

/// What is known of a page without a list id, or with an unknown one.
constexpr ListKindEntry noListKind = {nullptr, ListKind::none, nullptr, false};

/// True when both texts are the same to the last byte.
constexpr bool isSameText(const char *left, const char *right) {
    for (; *left != '\0' && *left == *right; ++left)
        ++right;
    return *left == *right;
}

/// The entry of a list id, compared exactly; `noListKind` for null and for an unknown id.
constexpr const ListKindEntry &listKindWithId(const char *listId) {
    for (const ListKindEntry &entry : listKinds) {
        if (listId && isSameText(listId, entry.listId))
            return entry;
    }
    return noListKind;
}

/// The entry of a kind.
constexpr const ListKindEntry &listKindEntry(ListKind kind) {
    for (const ListKindEntry &entry : listKinds) {
        if (entry.kind == kind)
            return entry;
    }
    return noListKind;
}

/// The four lists of phone numbers.
constexpr bool holdsPhoneNumbers(ListKind kind) {
    return kind >= ListKind::black && kind <= ListKind::exclude;
}

} // namespace zv
