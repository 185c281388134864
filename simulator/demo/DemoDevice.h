// A demo device: a device folder with an address book, call histories and catalogs to try the settings on.
#pragma once

#include <cstddef>
#include <string>

namespace sim {

struct DemoOptions {
    std::size_t contacts = 66; ///< people in the address book
    std::size_t calls = 240;   ///< calls of the last 30 days
    double now = 0;            ///< seconds since 1970; the calls lie before it
    unsigned seed = 1;         ///< equal options make equal databases
};

/// Adds to the device folder what a demo device has and the folder lacks: the address book, both forms of the
/// call history, area files and code tables. What is there already stays as it is. Throws std::exception
/// where something cannot be written; a database that could not be finished is removed again.
void makeDemoDevice(const std::string &folder, const DemoOptions &options);

/// Puts the program `tool` into the device folder as `zvtool`, in place of an older one.
void installTool(const std::string &folder, const std::string &tool);

/// The seconds since 1970.
[[nodiscard]] double currentTime();

} // namespace sim
