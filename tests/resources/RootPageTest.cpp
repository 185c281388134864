// The controls of the root page that its code relies on.
#include "Resources.h"

#include "databases/CallHistoryLimits.h"

#include <gtest/gtest.h>
#include <map>

namespace {

using namespace resources;

Json itemWithKey(const std::string &key) {
    for (const auto &item : itemsOf("Zelvora"))
        if (text(item, "key") == key)
            return item;
    return Json::object();
}

Json itemWithAction(const std::string &action) {
    for (const auto &item : itemsOf("Zelvora"))
        if (text(item, "action") == action)
            return item;
    return Json::object();
}

TEST(RootPage, LinksAllSixListsAndTheCallTime) {
    std::map<std::string, Json> links;
    for (const auto &item : itemsOf("Zelvora"))
        if (item.contains("_custom"))
            links[text(item, "_custom")] = item;
    ASSERT_EQ(links.size(), 7u);
    for (const char *list : {"area", "t9", "black", "white", "priority", "exclude", "calltime"}) {
        ASSERT_TRUE(links.contains(list)) << list;
        EXPECT_EQ(text(links[list], "detail"), "ZVSettingsCustomViewController") << list;
    }
}

TEST(RootPage, ShowsTheNumberOfEntriesOfEachListButNotOfTheCallTime) {
    for (const auto &item : itemsOf("Zelvora")) {
        if (!item.contains("_custom"))
            continue;
        const auto getter = text(item, "_custom") == "calltime" ? "" : "getCustomCount:";
        EXPECT_EQ(text(item, "get"), getter) << describe("Zelvora", item);
    }
}

TEST(RootPage, OffersExactlyTheAllowedHistoryLimits) {
    const auto offered = itemWithKey("CallHistoryLimit")["validValues"].get<std::vector<int>>();
    EXPECT_EQ(offered, std::vector<int>(std::begin(zv::callHistoryLimits), std::end(zv::callHistoryLimits)));
}

TEST(RootPage, TheHistoryLimitIsReadAndSetInTheDatabase) {
    const auto limit = itemWithKey("CallHistoryLimit");
    EXPECT_EQ(text(limit, "get"), "getCallHistoryLimit:");
    EXPECT_EQ(text(limit, "set"), "setCallHistoryLimit:forSpecifier:");
    EXPECT_EQ(limit["default"], 100);
}

TEST(RootPage, TheCatalogsSupplyTheirChoices) {
    const auto area = itemWithKey("AreaDatabase"), table = itemWithKey("T9Database");
    EXPECT_EQ(text(area, "valuesDataSource"), "areaValues:");
    EXPECT_EQ(text(area, "titlesDataSource"), "areaTitles:");
    EXPECT_EQ(text(area, "set"), "");
    EXPECT_EQ(text(table, "valuesDataSource"), "t9Values:");
    EXPECT_EQ(text(table, "titlesDataSource"), "t9Titles:");
    EXPECT_EQ(text(table, "set"), "setT9Database:forSpecifier:");
}

TEST(RootPage, WithoutAChoiceTheCatalogsStandOnNone) {
    for (const char *key : {"AreaDatabase", "T9Database"})
        EXPECT_EQ(itemWithKey(key)["default"], "") << key;
}

TEST(RootPage, MyInfoShowsANameAndOpensNoPageOfItsOwn) {
    const auto info = itemWithAction("myInfoAction:");
    EXPECT_EQ(text(info, "get"), "getMyInfo:");
    EXPECT_FALSE(info.contains("detail"));
}

TEST(RootPage, TheVibrationStartsAsTheTestPlaysIt) {
    EXPECT_EQ(itemWithKey("ConnectedVibrateIntensity")["default"], 0.3);
    EXPECT_EQ(itemWithKey("ConnectedVibrateTotalDuration")["default"], 0.5);
    EXPECT_EQ(itemWithKey("ConnectedVibrateOnDuration")["default"], 0.5);
    EXPECT_EQ(itemWithKey("ConnectedVibrateOffDuration")["default"], 0.0);
}

TEST(RootPage, TheStrengthGoesFromNoneToFull) {
    EXPECT_EQ(itemWithKey("ConnectedVibrateIntensity")["min"], 0.0);
    EXPECT_EQ(itemWithKey("ConnectedVibrateIntensity")["max"], 1.0);
}

TEST(RootPage, EveryButtonOfTheCodeIsThere) {
    for (const char *action : {"vibrateTestAction:", "emailAction:", "weiboAction:", "alipayAction:",
                               "paypalAction:", "resetAllSettingsAction:", "clearDataAction:"})
        EXPECT_EQ(text(itemWithAction(action), "cell"), "PSButtonCell") << action;
}

TEST(RootPage, OnlyTheButtonsThatRemoveSomethingAreRed) {
    for (const auto &item : itemsOf("Zelvora")) {
        const auto action = text(item, "action");
        const bool removes = action == "resetAllSettingsAction:" || action == "clearDataAction:";
        EXPECT_EQ(item.contains("isDestructive"), removes) << describe("Zelvora", item);
    }
}

} // namespace
