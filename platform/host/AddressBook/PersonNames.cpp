#include "AddressBook/PersonNames.h"

#include "host/Device.h"

#include <algorithm>
#include <initializer_list>

namespace host {
namespace {

using Name = std::optional<std::u16string>;

bool isPresent(const Name &name) {
    return name && !name->empty();
}

bool isEastAsian(char16_t unit) {
    return (unit >= 0x1100 && unit <= 0x11FF) || (unit >= 0x3040 && unit <= 0x9FFF) ||
           (unit >= 0xAC00 && unit <= 0xD7AF) || (unit >= 0xD840 && unit <= 0xD87F) ||
           (unit >= 0xF900 && unit <= 0xFAFF);
}

bool isEastAsian(const Name &name) {
    return isPresent(name) &&
           std::any_of(name->begin(), name->end(), [](char16_t unit) { return isEastAsian(unit); });
}

bool hasEastAsianName(const Person &person) {
    return isEastAsian(person.first) || isEastAsian(person.last);
}

std::u16string joined(std::initializer_list<const Name *> names, const std::u16string &delimiter) {
    std::u16string result;
    for (const Name *name : names) {
        if (!isPresent(*name))
            continue;
        if (!result.empty())
            result += delimiter;
        result += **name;
    }
    return result;
}

/// The organization, where the person is shown by it.
std::u16string organizationName(const Person &person) {
    const bool named = isPresent(person.first) || isPresent(person.middle) || isPresent(person.last);
    return (person.company || !named) && isPresent(person.organization) ? *person.organization : u"";
}

} // namespace

NameSettings nameSettings() {
    return {device().sortOrdering, device().compositeNameFormat};
}

int nameFormat(const Person &person, const NameSettings &settings) {
    return hasEastAsianName(person) ? 1 : settings.nameFormat;
}

std::u16string nameDelimiter(const Person &person) {
    return hasEastAsianName(person) ? u"" : u" ";
}

std::u16string compositeName(const Person &person, const NameSettings &settings) {
    if (std::u16string organization = organizationName(person); !organization.empty())
        return organization;
    const bool lastFirst = nameFormat(person, settings) != 0;
    return joined({&person.prefix, lastFirst ? &person.last : &person.first,
                   lastFirst ? &person.first : &person.middle, lastFirst ? &person.middle : &person.last,
                   &person.suffix},
                  nameDelimiter(person));
}

std::u16string sortName(const Person &person, const NameSettings &settings) {
    if (std::u16string organization = organizationName(person); !organization.empty())
        return organization;
    const bool byLast = settings.sortOrdering != 0;
    return joined(
        {byLast ? &person.last : &person.first, byLast ? &person.first : &person.last, &person.middle}, u" ");
}

} // namespace host
