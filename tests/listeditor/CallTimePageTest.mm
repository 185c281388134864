// The page of the one value that lies in the call history.
#import "ListPageTest.h"

#import "listeditor/ZVSettingsCustomViewController.h"

#include "support/CallHistoryBuilder.h"
#include "support/LockHolder.h"

using support::text;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

namespace {

using Row = support::Row;

constexpr const char *storedata = "/var/mobile/Library/CallHistoryDB/CallHistory.storedata";
constexpr const char *callHistoryDb = "/var/wireless/Library/CallHistory/call_history.db";

class CallTimePage : public ListPageTest {
protected:
    void setLifetime(long seconds) {
        sim::SqlFile(device.path(storedata))
            .script("UPDATE ZCALLDBPROPERTIES SET ZTIMER_LIFETIME = " + std::to_string(seconds));
    }

    void openWith(long seconds) {
        support::CallHistoryBuilder(device.path(storedata), zv::CallHistorySchema::coreData);
        setLifetime(seconds);
        openList("Keep Calls");
    }

    [[nodiscard]] std::string shownFor(long seconds) {
        setLifetime(seconds);
        ZVSettingsCustomViewController *page = shownPage();
        [(UITableView *)[page view] reloadData];
        host::waitUntilIdle();
        return rows(actions).empty() ? "" : rows(actions).front().text;
    }

    static ZVSettingsCustomViewController *shownPage() {
        return (ZVSettingsCustomViewController *)[[rootPage() navigationController] topViewController];
    }

    [[nodiscard]] std::string stored() const {
        return sim::SqlFile(device.path(storedata))
            .value("SELECT CAST(ZTIMER_LIFETIME AS INTEGER) FROM ZCALLDBPROPERTIES");
    }

    /// Puts `minutes` into the editor, whose only field has no name.
    void save(const std::string &minutes) {
        tapRow(actions, 0);
        const auto field = person.focusedField();
        (void)host::perform({.kind = host::GestureKind::replace, .number = field.number, .text = minutes});
        person.tap("Save");
    }
};

TEST_F(CallTimePage, HasOneRowAndNoEditButton) {
    openWith(90061);
    EXPECT_EQ(person.title(), "Keep Calls");
    EXPECT_THAT(rows(actions), ElementsAre(Row{"1 days 1 hours 2 minutes", ""}));
    EXPECT_THAT(person.buttons(), Not(Contains("Edit")));
    EXPECT_EQ([shownPage() numberOfSectionsInTableView:nil], 1);
}

TEST_F(CallTimePage, ShowsAllOfTheTimeInWords) {
    openWith(0);
    EXPECT_EQ(shownFor(0), "0 hours 0 minutes");
    EXPECT_EQ(shownFor(61), "0 hours 2 minutes");
    EXPECT_EQ(shownFor(3600), "1 hours 0 minutes");
    EXPECT_EQ(shownFor(86399), "1 days 0 hours 0 minutes");
    EXPECT_EQ(shownFor(90061), "1 days 1 hours 2 minutes");
    EXPECT_EQ(shownFor(2147483647), "-24855 days -3 hours -13 minutes");
}

TEST_F(CallTimePage, PrefillsTheMinutesAndStoresTheirSeconds) {
    openWith(90061);
    tapRow(actions, 0);
    EXPECT_EQ(person.title(), "Unit: Minutes");
    EXPECT_EQ(person.focusedField().value, "1502");
    EXPECT_EQ(person.focusedField().amount("keyboard"), 4);
    EXPECT_EQ(host::screen().all("TextField").size(), 1U);
    person.tap("Save");
    EXPECT_EQ(stored(), "90120");
    EXPECT_THAT(rows(actions), ElementsAre(Row{"1 days 1 hours 2 minutes", ""}));
}

TEST_F(CallTimePage, StoresFiveMinutesAsThreeHundredSeconds) {
    openWith(0);
    save("5");
    EXPECT_EQ(stored(), "300");
    EXPECT_THAT(rows(actions), ElementsAre(Row{"0 hours 5 minutes", ""}));
}

TEST_F(CallTimePage, ReadsAsMuchOfTheTextAsIsANumber) {
    openWith(0);
    save(" 7x9");
    EXPECT_EQ(stored(), "420");
    save("-3");
    EXPECT_EQ(stored(), "-180");
    save("none");
    EXPECT_EQ(stored(), "0");
}

TEST_F(CallTimePage, KeepsTheLower32BitsOfTheSeconds) {
    openWith(0);
    save("35791395");
    EXPECT_EQ(stored(), "-2147483596");
}

TEST_F(CallTimePage, ReadsAllOfALongText) {
    openWith(0);
    save("                          5");
    EXPECT_EQ(stored(), "300");
}

TEST_F(CallTimePage, IgnoresAnEmptyText) {
    openWith(90061);
    save("");
    EXPECT_EQ(stored(), "90061");
}

TEST_F(CallTimePage, ShowsWhatTheHistoryHoldsAfterAStoreThatFailed) {
    openList("Keep Calls");
    EXPECT_THAT(rows(actions), ElementsAre(Row{"0 hours 0 minutes", ""}));
    save("5");
    EXPECT_THAT(rows(actions), ElementsAre(Row{"0 hours 0 minutes", ""}));
    EXPECT_EQ(person.question().type, "");
}

TEST_F(CallTimePage, ShowsNothingOfAHistoryThatAnotherProcessHoldsAndKeepsIt) {
    openWith(3600);
    support::LockHolder holder(device.path(storedata), "UPDATE ZCALLRECORD SET ZNAME = NULL");
    ASSERT_TRUE(holder.isHolding());
    save("5");
    EXPECT_THAT(rows(actions), ElementsAre(Row{"0 hours 0 minutes", ""}));
    EXPECT_TRUE(holder.release());
    EXPECT_EQ(stored(), "3600");
}

TEST_F(CallTimePage, ReadsAndStoresInTheHistoryOfTheSystemThatRuns) {
    openWith(3600);
    EXPECT_EQ([shownPage() getCallLifetime], 3600);
    host::setSystemVersion("7.1.2");
    EXPECT_EQ([shownPage() getCallLifetime], 0);
    [shownPage() setCallLifetime:-60];
    EXPECT_THAT(commands(), ElementsAre("/Library/Zelvora/zvtool -l -60"));
    EXPECT_EQ(stored(), "3600");
    host::setSystemVersion("8.0");
    [shownPage() setCallLifetime:-60];
    EXPECT_EQ(stored(), "-60");
    EXPECT_EQ(commands().size(), 1U);
}

TEST_F(CallTimePage, LeavesTheStoringToTheToolOnOlderSystems) {
    host::setSystemVersion("7.1.2");
    support::CallHistoryBuilder(device.path(callHistoryDb), zv::CallHistorySchema::keyValue)
        .sql()
        .script("INSERT OR REPLACE INTO _SqliteDatabaseProperties VALUES ('timer_lifetime', '3600')");
    openList("Keep Calls");
    EXPECT_THAT(rows(actions), ElementsAre(Row{"1 hours 0 minutes", ""}));
    save("5");
    EXPECT_THAT(commands(), ElementsAre("/Library/Zelvora/zvtool -l 300"));
    EXPECT_THAT(rows(actions), ElementsAre(Row{"1 hours 0 minutes", ""})) << "there is no tool on this phone";
}

TEST_F(CallTimePage, IsAnnouncedToNobody) {
    openWith(0);
    save("5");
    host::advance(10);
    EXPECT_THAT(notifications(), IsEmpty());
}

TEST_F(CallTimePage, HasNoDocument) {
    openWith(0);
    save("5");
    EXPECT_FALSE(device.exists(userFile("calltime")));
    EXPECT_EQ([[shownPage() getPlistDictionary] count], 0U);
}

} // namespace
