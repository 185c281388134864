// The texts that the code sets are those of Localizable.strings: none is missing, none is left over.
#include "Resources.h"

#include "host/Text.h"
#include "listeditor/ListTexts.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <regex>
#include <set>

namespace {

using namespace resources;

/// All sources of the bundle, one after the other.
std::string sources() {
    std::string all;
    for (const char *folder : {"settings", "rootpage", "databases", "listeditor", "pickers"})
        for (const auto &entry :
             std::filesystem::recursive_directory_iterator(ZV_SOURCE_PATH "/" + std::string(folder))) {
            std::ifstream file(entry.path());
            all.append(std::istreambuf_iterator<char>(file), {});
        }
    return all;
}

std::set<std::string> matches(const std::string &code, const char *pattern) {
    const std::regex expression(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator match(code.begin(), code.end(), expression), end; match != end; ++match)
        found.insert((*match)[1]);
    return found;
}

TEST(CodeTexts, EveryTextThatTheCodeLooksUpIsInTheTable) {
    const auto english = table("en", "Localizable");
    const auto looked = matches(sources(), "ocalized\\w*[(:]\\s*@\"((?:[^\"\\\\]|\\\\.)*)\"");
    ASSERT_FALSE(looked.empty());
    for (const auto &key : looked)
        EXPECT_TRUE(key.empty() || english.contains(key)) << key;
}

TEST(CodeTexts, EveryTextOfTheTableIsInTheCode) {
    const auto literals = matches(sources(), "@\"((?:[^\"\\\\]|\\\\.)*)\"");
    for (const auto &[key, value] : table("en", "Localizable"))
        EXPECT_TRUE(literals.contains(key)) << key;
}

TEST(CodeTexts, EveryTextOfAlertsSheetsAndCatalogsIsInTheTable) {
    const auto english = table("en", "Localizable");
    for (const char *text : {"Alert", "Are you sure you want to continue?", "Cancel", "OK", "Failed!",
                             "Succeed!", "Respring", "None"})
        EXPECT_TRUE(english.contains(text)) << text;
}

TEST(CodeTexts, EveryTextOfTheListPagesIsInTheTable) {
    const auto english = table("en", "Localizable");
    for (const auto &entry : zv::listKinds) {
        const auto texts = zv::listTexts(entry.kind);
        for (NSString *text :
             {texts.addTitle, texts.editTitle, texts.namePlaceholder, texts.numberPlaceholder})
            EXPECT_TRUE(!text || english.contains(host::utf8(text))) << host::utf8(text);
    }
}

} // namespace
