// Telephone numbers that belong to nobody: the ranges that numbering authorities keep for films and books.
#pragma once

#include <cstddef>
#include <string>

namespace sim {

/// How many different numbers there are.
[[nodiscard]] std::size_t fictionNumberCount();

/// Number `index` of them, from 0, in the international form that its country writes; larger indexes start
/// over. Neighbouring indexes come from different countries.
[[nodiscard]] std::string fictionNumber(std::size_t index);

} // namespace sim
