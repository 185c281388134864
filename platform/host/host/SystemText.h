// The frameworks' own words, in the language of the device: what a page gets from the system, not from its
// bundle.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace host {

/// A word of the system. `other` holds zh-Hans, zh-Hant, ja, ko, de, fr, es, ru, in this order.
struct SystemWord {
    std::string_view english;
    std::string_view other[8];
};

/// The word of `words` whose English is `english`, in `language` ("de", "zh-Hans", "en-GB"); the English one
/// where the language is none of the above, `english` itself where the word is not in the list.
[[nodiscard]] std::string_view wordIn(std::span<const SystemWord> words, std::string_view english,
                                      std::string_view language);

/// A word of UIKit in the device's language: "Done", "Cancel", "Edit", "Save", "Delete", "Back", "Search",
/// ...
[[nodiscard]] std::string systemText(std::string_view english);

/// The same in a language that need not be the device's.
[[nodiscard]] std::string_view systemText(std::string_view english, std::string_view language);

} // namespace host
