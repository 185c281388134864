// The people in a demo device's address book. All are invented.
#pragma once

#include "simulator/demo/AddressBookFile.h"

namespace sim {

/// The people that a demo device has of itself: names of many kinds, companies, several numbers, none.
[[nodiscard]] std::vector<Person> inventedPeople();

/// So many people: the invented ones, and beyond them names put together by chance. Equal seeds give equal
/// people.
[[nodiscard]] std::vector<Person> makePeople(std::size_t count, unsigned seed);

} // namespace sim
