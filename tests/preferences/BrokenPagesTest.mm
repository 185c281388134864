// Pages that cannot be shown say so; nothing a property list holds ends Settings.
#include "preferences/PreferencesTest.h"

#include <random>

using preferences::texts;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class BrokenPages : public preferences::Test {
protected:
    BrokenPages() { preferences::open("Weathercock"); }

    void expectFooter(const std::string &row, const std::string &footer) {
        person.tap(row);
        EXPECT_THAT(person.rows(), IsEmpty());
        EXPECT_THAT(texts("footer"), ElementsAre(footer));
        person.back();
        EXPECT_EQ(person.title(), "Weathercock");
    }
};

TEST_F(BrokenPages, AMissingPageSaysSo) {
    expectFooter("Missing", "The page Missing.plist is missing in Weathercock.bundle.");
}

TEST_F(BrokenPages, ADamagedPageSaysSo) {
    expectFooter("Damaged", "The page Damaged.plist is damaged, or its root is not a dictionary.");
}

TEST_F(BrokenPages, APageWithoutItemsSaysSo) {
    expectFooter("Itemless", "The page Itemless.plist has no items.");
}

TEST_F(BrokenPages, APageWhoseItemsAreNoArraySaysSo) {
    expectFooter("Wrong", "The page Wrong.plist has items that are not an array.");
}

TEST_F(BrokenPages, TheLineIsTheFrameworksAndNoSpecifierOfThePage) {
    PSListController *root = preferences::open("Weathercock");
    person.tap("Missing");
    PSListController *page = static_cast<PSListController *>([[root navigationController] topViewController]);
    EXPECT_EQ([[page specifiers] count], 0u);
}

TEST_F(BrokenPages, APageOpenedByARowWithoutNameSaysSo) {
    PSListController *root = preferences::open("Weathercock");
    PSSpecifier *nameless = [[[PSSpecifier alloc] init] autorelease];
    [nameless setDetailControllerClass:NSClassFromString(@"PLCustomListController")];
    [root showController:[root controllerForSpecifier:nameless]];
    host::waitUntilIdle();
    EXPECT_THAT(texts("footer"), ElementsAre(HasSubstr("neither an id nor a label")));
}

TEST_F(BrokenPages, ItemsOfWrongTypesAreShownAsFarAsTheyGo) {
    person.tap("Mixed");
    EXPECT_THAT(person.rows(),
                testing::IsSupersetOf({"An item of this page is not a dictionary.",
                                       "The row \"No Cell\" has no known cell type: (null).",
                                       "The row \"Number Cell\" has no known cell type: 3.", "Wrong Choices",
                                       "Wrong Slider", "Wrong Text", "Wrong Link"}));
}

TEST_F(BrokenPages, RowsOfWrongTypesCanBeUsedWithoutHarm) {
    person.tap("Mixed");
    for (const char *row : {"Wrong Choices", "Wrong Slider", "Wrong Text", "A Date", "Wrong Link"})
        EXPECT_NE(person.tryTap(row), host::Outcome::notThere) << row;
}

TEST_F(BrokenPages, WhatAPageHidesIsMentionedToTheDeveloper) {
    person.tap("Missing");
    EXPECT_TRUE(preferences::complained("Missing.plist is missing"));
}

/// A page whose property list is cut off at any place is a page, with rows or with the line that says why
/// not.
TEST_F(BrokenPages, ATornPropertyListNeverEndsSettings) {
    preferences::install("Weathercock.bundle", "/Library/PreferenceBundles/Torn.bundle");
    const std::string file = "/Library/PreferenceBundles/Torn.bundle/Root.plist";
    const std::string whole = phone.read(file);
    std::mt19937 random(7);
    for (std::size_t length = 0; length < whole.size(); length += whole.size() / 40) {
        std::string torn = whole.substr(0, length);
        if (!torn.empty())
            torn[random() % torn.size()] = static_cast<char>(random() % 256);
        phone.write(file, torn);
        EXPECT_NE(host::openBundle(preferences::text(phone.path("/Library/PreferenceBundles/Torn.bundle"))),
                  nil);
    }
}

TEST_F(BrokenPages, ABundleThatCannotBeLoadedOpensAPageThatSaysSo) {
    std::string reason;
    EXPECT_NE(preferences::open("Wreck", &reason), nil);
    EXPECT_THAT(reason, HasSubstr("Wreck.bundle cannot be loaded"));
    EXPECT_THAT(texts("footer"), ElementsAre(reason));
}

TEST_F(BrokenPages, AMissingBundleIsNoPage) {
    std::string reason;
    EXPECT_EQ(host::openBundle(@"/nowhere/Ghost.bundle", &reason), nil);
    EXPECT_THAT(reason, HasSubstr("/nowhere/Ghost.bundle"));
}

TEST_F(BrokenPages, ABundleWhosePrincipalClassIsNoPageSaysSo) {
    std::string reason;
    EXPECT_NE(preferences::open("LateTrain", &reason), nil);
    EXPECT_THAT(texts("footer"),
                ElementsAre("The principal class of LateTrain.bundle is no page of Settings."));
}

} // namespace
