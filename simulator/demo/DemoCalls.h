// The calls in a demo device's history.
#pragma once

#include "simulator/demo/AddressBookFile.h"
#include "simulator/demo/CallHistoryFile.h"

namespace sim {

/// So many calls of the 30 days before `now` (seconds since 1970), oldest first: with people of the address
/// book, some more often than others, and with strangers. Equal seeds give equal calls.
[[nodiscard]] std::vector<Call> makeCalls(std::size_t count, const std::vector<Person> &people, double now,
                                          unsigned seed);

} // namespace sim
