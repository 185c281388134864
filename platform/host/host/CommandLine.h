// Command lines of the phone, made fit for this machine.
#pragma once

#include <optional>
#include <string>

namespace host {

/// The same command line with the phone's paths below `folder`, to be run there as the working folder.
///
/// Absolute paths move below the folder wherever they begin a word or follow a "=" in one, quoted or not;
/// patterns still expand. A program named by its place in the phone's system folders is looked up by its name
/// instead unless the folder has it. /dev/null stays.
///
/// Nothing for a line that could reach outside: expansions ($, `, ~), a component "..", a path inside quotes
/// behind other text, a here-document.
[[nodiscard]] std::optional<std::string> confinedCommand(const std::string &command,
                                                         const std::string &folder);

} // namespace host
