// A contact's name as the pickers show it.
#pragma once

#import <Foundation/Foundation.h>

namespace zv {

/// Which part of a name leads.
enum class NameOrder { firstNameFirst, lastNameFirst };

/// The order for the user's sort ordering, as ABPersonGetSortOrdering() gives it: 0 is by first name,
/// anything else by last name.
constexpr NameOrder nameOrder(unsigned sortOrdering) {
    return sortOrdering == 0 ? NameOrder::firstNameFirst : NameOrder::lastNameFirst;
}

/// Joins first and last names. Keeps one buffer for all the names it is asked for, since a load asks for
/// many.
class DisplayNames {
public:
    explicit DisplayNames(NameOrder order) : m_order(order) {}
    ~DisplayNames();
    DisplayNames(const DisplayNames &) = delete;
    DisplayNames &operator=(const DisplayNames &) = delete;

    /// The name made of the two UTF-8 parts, owned by the caller; nil when neither is present. A part that is
    /// null or not valid UTF-8 is absent. Two parts of together less than 5 UTF-16 units, such as Chinese
    /// names, are joined without a space.
    [[nodiscard]] NSString *copyName(const char *first, const char *last);

private:
    char *bufferFor(size_t bytes);

    NameOrder m_order;
    char *m_buffer = nullptr;
    size_t m_capacity = 0;
};

} // namespace zv
