#include "host/Languages.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace host {
namespace {

struct OlderName {
    const char *language;
    const char *folder;
};

// Apple's "Language and Locale IDs": names that bundles used before language codes.
constexpr std::array olderNames{
    OlderName{"en", "English"}, OlderName{"de", "German"},     OlderName{"fr", "French"},
    OlderName{"it", "Italian"}, OlderName{"es", "Spanish"},    OlderName{"ja", "Japanese"},
    OlderName{"nl", "Dutch"},   OlderName{"zh-Hans", "zh_CN"}, OlderName{"zh-Hant", "zh_TW"},
};

void append(const std::string &language, std::vector<std::string> &into) {
    if (std::find(into.begin(), into.end(), language) != into.end())
        return;
    into.push_back(language);
    for (const OlderName &name : olderNames) {
        if (language == name.language)
            into.emplace_back(name.folder);
    }
}

// "BR" of "pt-BR"; "Hans" of "zh-Hans" is a script.
bool isRegion(const std::string &part) {
    return part.size() == 2 && std::isupper(static_cast<unsigned char>(part[0]));
}

} // namespace

std::vector<std::string> languageFolders(const std::string &language) {
    std::vector<std::string> folders;
    append(language, folders);
    append(language.substr(0, language.find('-')), folders);
    append("en", folders);
    return folders;
}

std::string localeFor(const std::string &language, const std::string &region) {
    std::string locale = language;
    const std::size_t dash = language.find('-');
    if (dash != std::string::npos && isRegion(language.substr(dash + 1)))
        locale.resize(dash);
    std::replace(locale.begin(), locale.end(), '-', '_');
    return region.empty() ? locale : locale + "_" + region;
}

} // namespace host
