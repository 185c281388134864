// Whole files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

/// The bytes of a regular file; nothing for any other path or when reading fails. Never waits (for a pipe).
[[nodiscard]] std::optional<std::string> contentOfFile(const std::string &path);

/// Replaces the file's content where it lies. False when that fails; the file may then be cut.
[[nodiscard]] bool overwriteFile(const std::string &path, std::string_view content);

/// Puts a complete new file in place of the old one: a temporary file beside it, then a rename. The mode of
/// the old file is kept. False, with the old file untouched and nothing left behind, when that fails.
[[nodiscard]] bool replaceFile(const std::string &path, std::string_view content);

} // namespace host
