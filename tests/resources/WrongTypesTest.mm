// Preference files whose values are of another type than their controls', as another version, a backup or a
// person may leave them: every page is shown all the same, and a change mends its value.
#include "Resources.h"

#include "support/BundleState.h"
#include "support/BundleTest.h"

#include <algorithm>

namespace {

using namespace resources;

constexpr const char *preferences = "/var/mobile/Library/Preferences/zelvora.plist";

struct Type {
    const char *name;
    const char *value; // as a property list has it
};

constexpr Type types[] = {{"Text", "<string>text</string>"},
                          {"EmptyText", "<string></string>"},
                          {"HugeNumber", "<integer>9223372036854775807</integer>"},
                          {"NegativeNumber", "<real>-1e300</real>"},
                          {"Data", "<data>AAECAw==</data>"},
                          {"Date", "<date>2015-03-06T00:00:00Z</date>"},
                          {"List", "<array><string>1</string></array>"},
                          {"Dictionary", "<dict><key>1</key><true/></dict>"}};

class WrongTypes : public support::BundleTest, public testing::WithParamInterface<Type> {
protected:
    WrongTypes() {
        std::string entries;
        for (const auto &[name, item] : allItems())
            if (isControl(item))
                entries += "<key>" + text(item, "key") + "</key>" + GetParam().value;
        device.write(preferences, "<plist version=\"1.0\"><dict>" + entries + "</dict></plist>");
    }

    /// How many rows the page's resource describes.
    static std::size_t described(const std::string &page) {
        const auto items = itemsOf(page);
        return std::size_t(
            std::count_if(items.begin(), items.end(), [](const Json &i) { return !isGroup(i); }));
    }
};

TEST_P(WrongTypes, EveryPageIsShown) {
    open();
    for (const auto &page : pageNames()) {
        if (page == "Zelvora")
            continue;
        person.tap(page); // the first one loads the file
        EXPECT_EQ(person.title(), page);
        EXPECT_EQ(person.rows().size(), described(page)) << page;
        person.back();
    }
    EXPECT_EQ(person.rows().size(), described("Zelvora"));
}

TEST_P(WrongTypes, AChangeMendsItsValueAndKeepsTheOthers) {
    open();
    person.tap("Keypad");
    person.back();
    person.tap("Enable Zelvora");
    person.tap("Keypad");
    person.tap("Key Tones");
    person.tap("Piano");
    person.back();
    EXPECT_EQ(person.valueOf("Key Tones"), "Piano");
    NSDictionary *file = [NSDictionary dictionaryWithContentsOfFile:support::text(device.path(preferences))];
    EXPECT_TRUE([[file objectForKey:@"Enabled"] isKindOfClass:[NSNumber class]]);
    EXPECT_TRUE([[file objectForKey:@"KeypadTones"] isEqual:@2]);
    EXPECT_EQ([file count], [support::settingsMirror() count]);
    EXPECT_TRUE([file isEqual:support::settingsMirror()]);
}

INSTANTIATE_TEST_SUITE_P(Types, WrongTypes, testing::ValuesIn(types),
                         [](const auto &info) { return info.param.name; });

} // namespace
