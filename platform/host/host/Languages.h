// Names of languages and locales.
#pragma once

#include <string>
#include <vector>

namespace host {

/// The language folders (NAME.lproj) that a bundle may use for `language`, the best first: the language,
/// its name in older bundles, then English, the last resort of a phone's list of languages.
[[nodiscard]] std::vector<std::string> languageFolders(const std::string &language);

/// "zh-Hans" and "CN" make "zh_Hans_CN", "pt-BR" and "PT" make "pt_PT".
[[nodiscard]] std::string localeFor(const std::string &language, const std::string &region);

} // namespace host
