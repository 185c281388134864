// Benchmarks compare a piece of work with the bare work that any implementation of it would have to do,
// measured in the same run on the same machine: the ratio says how much our part costs, whatever the machine.
#pragma once

#include <functional>
#include <string>

namespace bench {

struct Ratio {
    std::string name;
    std::function<void()> work; ///< ours
    std::function<void()> bare; ///< what it is measured against
    double aim;                 ///< the ratio we want
    double bar;                 ///< the ratio that must not be exceeded
};

/// Prepares its data and describes one ratio. Called once, when the program runs.
using Maker = std::function<Ratio()>;

/// A global of this type adds a benchmark. Globals are made before Objective-C works: messages belong into
/// the maker.
///     const bench::Registration reading([] { return bench::Ratio{"reading", ours, bare, 1.5, 3}; });
class Registration {
public:
    explicit Registration(Maker maker);
};

/// Keeps the compiler from dropping work whose result nobody reads.
void use(const void *result);

} // namespace bench
