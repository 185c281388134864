// What the three readers of property lists share. All give objects that the caller owns, or nil.
#pragma once

#include "Foundation/PropertyList.h"

#include <vector>

namespace host {

id newObjectOfXML(std::string_view bytes, RootMutability mutability);
id newObjectOfBinary(std::string_view bytes, RootMutability mutability);
/// The old-style text form; also a string table, which is a dictionary without its braces.
id newObjectOfText(std::string_view bytes, RootMutability mutability);

/// The string of UTF-8 bytes; nil when they are ill-formed.
NSString *newString(std::string_view utf8);
NSString *newString(std::u16string_view units);

/// Numbers as Apple's readers make them.
NSNumber *newInteger(long long value);
NSNumber *newReal(double value);
NSNumber *newBoolean(BOOL value);

/// The members of a container while it is read: owned here until the container takes them over.
class Members {
public:
    Members() = default;
    Members(const Members &) = delete;
    Members &operator=(const Members &) = delete;
    ~Members();

    /// Takes over the caller's reference.
    void add(id owned) { m_objects.push_back(owned); }
    [[nodiscard]] NSArray *newArray(RootMutability mutability) const;

private:
    friend class Pairs;
    std::vector<id> m_objects;
};

/// The same for a dictionary. Of equal keys the last counts.
class Pairs {
public:
    /// Takes over the caller's references; false, and nothing kept, when one of them is nil.
    [[nodiscard]] bool add(id ownedKey, id ownedValue);
    [[nodiscard]] NSDictionary *newDictionary(RootMutability mutability) const;

private:
    Members m_keys;
    Members m_values;
};

} // namespace host
