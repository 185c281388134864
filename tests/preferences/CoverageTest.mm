// The fixture bundles together hold everything that a page's property list may say.
#include "preferences/PreferencesTest.h"

#include "host/Text.h"

#include <array>
#include <fstream>
#include <set>
#include <sstream>

using testing::IsSupersetOf;

namespace {

constexpr std::array cellTypes{
    "PSGroupCell",          "PSLinkCell",    "PSLinkListCell",     "PSListItemCell",
    "PSTitleValueCell",     "PSSliderCell",  "PSSwitchCell",       "PSStaticTextCell",
    "PSEditTextCell",       "PSSegmentCell", "PSGiantIconCell",    "PSGiantCell",
    "PSSecureEditTextCell", "PSButtonCell",  "PSEditTextViewCell", "PSSpinnerCell",
};

/// The keys of the public format documentation.
constexpr std::array keys{
    "cell",
    "label",
    "id",
    "defaults",
    "key",
    "default",
    "get",
    "set",
    "action",
    "PostNotification",
    "detail",
    "pane",
    "cancel",
    "bundle",
    "isController",
    "overridePrincipalClass",
    "internal",
    "hasIcon",
    "icon",
    "cellClass",
    "height",
    "enabled",
    "requiredCapabilities",
    "alignment",
    "negate",
    "validValues",
    "validTitles",
    "shortTitles",
    "valuesDataSource",
    "titlesDataSource",
    "shortTitlesDataSource",
    "staticTextMessage",
    "footerText",
    "footerAlignment",
    "headerDetailText",
    "headerCellClass",
    "footerCellClass",
    "isRadioGroup",
    "isStaticText",
    "min",
    "max",
    "showValue",
    "isSegmented",
    "segmentCount",
    "leftImage",
    "rightImage",
    "isContinuous",
    "placeholder",
    "suffix",
    "prompt",
    "okTitle",
    "cancelTitle",
    "keyboard",
    "isNumeric",
    "isDecimalPad",
    "isIP",
    "isURL",
    "isEmail",
    "isEmailAddressing",
    "autoCaps",
    "noAutoCorrect",
    "bestGuess",
    "textFieldShouldPopOnReturn",
    "confirmation",
    "isDestructive",
    "alternateColors",
    "control-loading",
    "hidesDisclosureIndicator",
    "loadAction",
    "customControllerClass",
};

struct Used {
    std::set<std::string> keys, cellTypes;
};

/// Takes the keys of an item, and of dictionaries in it.
void takeItem(NSDictionary *item, Used &used) {
    for (NSString *key in item) {
        id value = [item objectForKey:key];
        used.keys.insert(host::utf8(key));
        if ([key isEqualToString:@"cell"] && [value isKindOfClass:[NSString class]])
            used.cellTypes.insert(host::utf8(value));
        if ([value isKindOfClass:[NSDictionary class]])
            takeItem(value, used);
    }
}

Used usedIn(NSString *bundle) {
    Used used;
    NSString *folder = [preferences::text(ZV_FIXTURE_BUNDLES) stringByAppendingPathComponent:bundle];
    for (NSString *name in [[NSFileManager defaultManager] contentsOfDirectoryAtPath:folder error:NULL]) {
        NSDictionary *page =
            [NSDictionary dictionaryWithContentsOfFile:[folder stringByAppendingPathComponent:name]];
        id items = [page objectForKey:@"items"];
        if (![items isKindOfClass:[NSArray class]])
            continue;
        for (id item in items) {
            if ([item isKindOfClass:[NSDictionary class]])
                takeItem(item, used);
        }
    }
    return used;
}

class Coverage : public preferences::Test {
protected:
    Coverage() {
        for (NSString *bundle in
             @[ @"Jukebox.bundle", @"Weathercock.bundle", @"LateTrain.bundle", @"Wreck.bundle" ]) {
            const Used its = usedIn(bundle);
            used.keys.insert(its.keys.begin(), its.keys.end());
            used.cellTypes.insert(its.cellTypes.begin(), its.cellTypes.end());
        }
    }

    Used used;
};

TEST_F(Coverage, EveryCellTypeIsOnSomePage) {
    for (std::size_t code = 0; code < cellTypes.size(); code++)
        EXPECT_EQ([PSTableCell cellTypeFromString:preferences::text(cellTypes[code])], int(code));
    EXPECT_THAT(used.cellTypes, IsSupersetOf(cellTypes));
}

TEST_F(Coverage, EveryKeyIsOnSomePage) {
    EXPECT_THAT(used.keys, IsSupersetOf(keys));
}

TEST_F(Coverage, EveryKeyAndCellTypeIsDocumented) {
    std::stringstream text;
    text << std::ifstream(ZV_FIXTURES "/../../docs/settings-bundles.md").rdbuf();
    const std::string documentation = text.str();
    for (const char *key : keys)
        EXPECT_NE(documentation.find("`" + std::string(key) + "`"), std::string::npos) << key;
    for (const char *type : cellTypes)
        EXPECT_NE(documentation.find(type), std::string::npos) << type;
}

} // namespace
