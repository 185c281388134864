// How the names of a person are put together, and where the person stands in a list.
#pragma once

#include "AddressBook/AddressBookFile.h"

#include <string>
#include <string_view>

namespace host {

/// The user's settings, as DeviceOptions has them.
struct NameSettings {
    int sortOrdering = 1; ///< 0 by first name, 1 by last
    int nameFormat = 0;   ///< 0 first name first, 1 last name first
};

[[nodiscard]] NameSettings nameSettings();

/// 0 when the first name stands first in this person's name, 1 when the last does. Names in Chinese, Japanese
/// and Korean script have the last name first whatever the setting is.
[[nodiscard]] int nameFormat(const Person &person, const NameSettings &settings);

/// What stands between the names: nothing in those scripts, a space in others.
[[nodiscard]] std::u16string nameDelimiter(const Person &person);

/// Prefix, names and suffix, or the organization of a company or of a person without names; empty for
/// neither.
[[nodiscard]] std::u16string compositeName(const Person &person, const NameSettings &settings);

/// By what the person is sorted: the composite name without prefix and suffix, led by the name of the user's
/// sort ordering; empty for a person without any name.
[[nodiscard]] std::u16string sortName(const Person &person, const NameSettings &settings);

} // namespace host
