// Address books and call histories of any size, as the demo phone's.
#pragma once

#include "databases/CallHistorySchema.h"

#include <cstddef>
#include <string>

namespace bench {

constexpr double now = 1425643200; ///< of the makers of calls, seconds since 1970

/// Paths of databases with `count` people, or with as many calls among them; made when first asked for.
[[nodiscard]] std::string addressBook(std::size_t count);
[[nodiscard]] std::string callHistory(std::size_t count, zv::CallHistorySchema schema);

/// The bare work: steps through a query's rows and reads every column, without making an object.
void stepAll(const std::string &path, const char *query);

} // namespace bench
