// The page resources: every control is complete, and its values fit it.
#include "Resources.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

using namespace resources;

TEST(Pages, EveryPropertyListParses) {
    ASSERT_FALSE(pageNames().empty());
    for (const auto &name : pageNames()) {
        ASSERT_TRUE(page(name).is_object()) << name;
        EXPECT_FALSE(text(page(name), "title").empty()) << name;
        EXPECT_FALSE(page(name)["items"].empty()) << name;
    }
}

TEST(Pages, TheRootPageIsNamedZelvora) {
    EXPECT_FALSE(page("Zelvora")["items"].empty());
}

TEST(Pages, EveryItemHasACellTypeThatThePlatformKnows) {
    static const std::set<std::string> known{"PSGroupCell",    "PSLinkCell",       "PSLinkListCell",
                                             "PSListItemCell", "PSTitleValueCell", "PSSliderCell",
                                             "PSSwitchCell",   "PSSegmentCell",    "PSStaticTextCell",
                                             "PSEditTextCell", "PSButtonCell"};
    for (const auto &[name, item] : allItems())
        EXPECT_TRUE(known.contains(text(item, "cell"))) << describe(name, item);
}

TEST(Pages, NoTwoRowsShareAKey) {
    std::set<std::string> keys;
    for (const auto &[name, item] : allItems())
        if (!isGroup(item)) {
            EXPECT_FALSE(text(item, "key").empty()) << describe(name, item);
            EXPECT_TRUE(keys.insert(text(item, "key")).second) << describe(name, item);
        }
}

TEST(Pages, EveryControlStoresInTheFileThatIsReadAndReset) {
    for (const auto &[name, item] : allItems())
        if (isControl(item))
            EXPECT_EQ(text(item, "defaults"), "zelvora") << describe(name, item);
}

TEST(Pages, EveryControlHasADefault) {
    for (const auto &[name, item] : allItems())
        if (isControl(item))
            EXPECT_TRUE(item.contains("default")) << describe(name, item);
}

TEST(Pages, SwitchesAreOnOrOff) {
    for (const auto &[name, item] : allItems())
        if (text(item, "cell") == "PSSwitchCell")
            EXPECT_TRUE(item["default"].is_boolean()) << describe(name, item);
}

TEST(Pages, SlidersStartBetweenTheirEnds) {
    for (const auto &[name, item] : allItems()) {
        if (text(item, "cell") != "PSSliderCell")
            continue;
        ASSERT_TRUE(item.contains("min") && item.contains("max")) << describe(name, item);
        EXPECT_LT(item["min"], item["max"]) << describe(name, item);
        EXPECT_GE(item["default"], item["min"]) << describe(name, item);
        EXPECT_LE(item["default"], item["max"]) << describe(name, item);
    }
}

bool hasFixedChoices(const Json &item) {
    return item.contains("validValues");
}

TEST(Pages, EveryChoiceHasOneTitle) {
    for (const auto &[name, item] : allItems())
        if (hasFixedChoices(item))
            EXPECT_EQ(item["validValues"].size(), item["validTitles"].size()) << describe(name, item);
}

TEST(Pages, NoTwoChoicesHaveTheSameValueOrTitle) {
    for (const auto &[name, item] : allItems()) {
        if (!hasFixedChoices(item))
            continue;
        for (const char *list : {"validValues", "validTitles"}) {
            const std::set<Json> different(item[list].begin(), item[list].end());
            EXPECT_EQ(different.size(), item[list].size()) << describe(name, item);
        }
    }
}

TEST(Pages, TheDefaultIsOneOfTheChoicesAndOfTheirType) {
    for (const auto &[name, item] : allItems()) {
        if (!hasFixedChoices(item))
            continue;
        EXPECT_NE(std::find(item["validValues"].begin(), item["validValues"].end(), item["default"]),
                  item["validValues"].end())
            << describe(name, item);
        for (const auto &value : item["validValues"])
            EXPECT_EQ(value.type(), item["default"].type()) << describe(name, item);
    }
}

TEST(Pages, ChoicesComeFromThePageOrFromADataSource) {
    for (const auto &[name, item] : allItems()) {
        const auto cell = text(item, "cell");
        if (cell != "PSLinkListCell" && cell != "PSSegmentCell")
            continue;
        EXPECT_NE(hasFixedChoices(item), item.contains("valuesDataSource")) << describe(name, item);
        EXPECT_EQ(item.contains("valuesDataSource"), item.contains("titlesDataSource"))
            << describe(name, item);
    }
}

// File names would be translated where they happen to be an English text of the program.
TEST(Pages, TitlesFromADataSourceStayAsTheyStand) {
    for (const auto &[name, item] : allItems())
        if (item.contains("titlesDataSource"))
            EXPECT_TRUE(item.contains("valueLocalized")) << describe(name, item);
}

TEST(Pages, EveryChildPageHasItsPropertyList) {
    for (const auto &[name, item] : allItems())
        if (text(item, "detail") == "ZVSettingsViewController")
            EXPECT_TRUE(page(text(item, "id")).is_object()) << describe(name, item);
}

// The platform takes a child page's name from "id" or, on some versions, from the label as it stands in the
// resource.
TEST(Pages, AChildPageIsFoundByIdAndByLabel) {
    for (const auto &[name, item] : allItems())
        if (item.contains("id"))
            EXPECT_EQ(text(item, "id"), text(item, "label")) << describe(name, item);
}

TEST(Pages, NoChildPageIsWithoutALink) {
    std::set<std::string> linked{"Zelvora"};
    for (const auto &[name, item] : allItems())
        linked.insert(text(item, "id"));
    for (const auto &name : pageNames())
        EXPECT_TRUE(linked.contains(name)) << name;
}

// The root page answers alerts and sheets itself, so the platform would not see the answer.
TEST(Pages, NoRowAsksForConfirmation) {
    for (const auto &[name, item] : allItems())
        EXPECT_FALSE(item.contains("confirmation")) << describe(name, item);
}

// The page announces every change, once for a burst of them.
TEST(Pages, NoRowAnnouncesItsChangeByItself) {
    for (const auto &[name, item] : allItems())
        EXPECT_FALSE(item.contains("PostNotification")) << describe(name, item);
}

TEST(Pages, NoPageSaysAnythingTwice) {
    for (const auto &name : pageNames()) {
        std::set<std::string> labels;
        for (const auto &item : itemsOf(name))
            if (!isGroup(item) && item.contains("label"))
                EXPECT_TRUE(labels.insert(text(item, "label")).second) << describe(name, item);
    }
}

} // namespace
