// People sorted and put under letters for a list, and found by name.
#pragma once

#import "AddressBook/Records.h"

#include "AddressBook/PersonNames.h"
#include "host/Retained.h"

#include <string>
#include <vector>

namespace host {

using PersonRecord = Retained<HostABPerson *>;

/// The people under one letter.
struct PeopleSection {
    std::u16string letter; ///< "A" to "Z", a Greek or Cyrillic letter; "#" for all others
    std::vector<PersonRecord> people;
};

/// Everybody by the user's sort ordering, accents and case aside; "#" comes last.
[[nodiscard]] std::vector<PeopleSection> peopleByLetter(NSArray *records, const NameSettings &settings);

/// Those of whose names every word of `query` begins a word, in the order of `sections`; all for an empty
/// query.
[[nodiscard]] std::vector<PersonRecord>
peopleNamed(NSString *query, const std::vector<PeopleSection> &sections, const NameSettings &settings);

/// What a list shows for a person: the name, else the first number or address, else empty.
[[nodiscard]] std::u16string shownName(const Person &person, const NameSettings &settings);

} // namespace host
