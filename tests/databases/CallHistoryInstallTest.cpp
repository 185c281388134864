#include "CallHistoryFixture.h"

#include <gmock/gmock.h>

namespace calls {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CallHistoryInstall : public CallHistoryTest {
protected:
    const std::vector<std::string> all = {"trigger|ZVSAVEZCALLRECORD", "table|ZVZCALLDBPROPERTIES",
                                          "table|ZVZCALLRECORD"};
};

TEST_F(CallHistoryInstall, OnAFreshDatabaseMakesBothTablesAndTheTrigger) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    EXPECT_EQ(extension(), all);
}

TEST_F(CallHistoryInstall, StoresOneRowWithTheKeyAsTextAndTheLimitAsInteger) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    EXPECT_THAT(rows("SELECT Z_PK, Z_KEY, typeof(Z_KEY), Z_VALUE, typeof(Z_VALUE) FROM ZVZCALLDBPROPERTIES"),
                ElementsAre("1|call_history_limit|text|2000|integer"));
    EXPECT_EQ(history().limit(), 2000);
}

TEST_F(CallHistoryInstall, DeclaresTheColumnsInOrder) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    EXPECT_THAT(rows("SELECT name, type, pk FROM pragma_table_info('ZVZCALLDBPROPERTIES')"),
                ElementsAre("Z_PK|INTEGER|1", "Z_KEY|INTEGER|0", "Z_VALUE||0"));
    EXPECT_EQ(rows("SELECT name, type, pk FROM pragma_table_info('ZVZCALLRECORD')"),
              rows("SELECT name, type, pk FROM pragma_table_info('ZCALLRECORD')"));
}

TEST_F(CallHistoryInstall, OverAFirstOneRenewsTheLimitAndReturnsFalse) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    EXPECT_FALSE(history().install(3000));
    EXPECT_EQ(history().limit(), 3000);
    EXPECT_EQ(value("SELECT count() FROM ZVZCALLDBPROPERTIES"), "1");
    EXPECT_EQ(extension(), all);
}

TEST_F(CallHistoryInstall, LeavesPropertiesUnderOtherKeysAlone) {
    makeHistory();
    run("CREATE TABLE ZVZCALLDBPROPERTIES (Z_PK INTEGER PRIMARY KEY, Z_KEY INTEGER, Z_VALUE);"
        "INSERT INTO ZVZCALLDBPROPERTIES VALUES (1, 'other', 5), (2, 'call_history_limit', 200),"
        "(3, 'call_history_limit', 300)");
    EXPECT_TRUE(history().install(400));
    EXPECT_THAT(rows("SELECT Z_KEY, Z_VALUE FROM ZVZCALLDBPROPERTIES"),
                ElementsAre("other|5", "call_history_limit|400"));
}

TEST_F(CallHistoryInstall, KeepsTheCallsThatWereKeptBefore) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    run("DELETE FROM ZCALLRECORD WHERE Z_PK = 1");
    EXPECT_FALSE(history().install(3000));
    EXPECT_EQ(value("SELECT ZADDRESS FROM ZVZCALLRECORD"), "555-0101");
}

TEST_F(CallHistoryInstall, CopiesADeletedCallWithAllSeventeenColumns) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    run("UPDATE ZCALLRECORD SET Z_OPT = 4, ZDISCONNECTED_CAUSE = 6, ZFACE_TIME_DATA = 7, "
        "ZNUMBER_AVAILABILITY = 8,"
        "ZDATE = 447292800.25, ZDURATION = 61.5, ZDEVICE_ID = 'device', ZNAME = 'Ann' WHERE Z_PK = 2");
    std::string before = value("SELECT * FROM ZCALLRECORD WHERE Z_PK = 2");
    run("DELETE FROM ZCALLRECORD WHERE Z_PK = 2");
    EXPECT_EQ(rows("SELECT * FROM ZVZCALLRECORD"), std::vector{before});
    EXPECT_EQ(std::count(before.begin(), before.end(), '|'), 16);
    EXPECT_EQ(value("SELECT count() FROM ZCALLRECORD"), "2");
}

TEST_F(CallHistoryInstall, CopiesEveryCallOfADeletionOfMany) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    auto before = rows("SELECT * FROM ZCALLRECORD ORDER BY Z_PK");
    run("DELETE FROM ZCALLRECORD");
    EXPECT_EQ(rows("SELECT * FROM ZVZCALLRECORD ORDER BY Z_PK"), before);
}

TEST_F(CallHistoryInstall, ACallThatIsAlreadyKeptCannotBeDeletedByTheSystem) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    run("INSERT INTO ZVZCALLRECORD (Z_PK, ZADDRESS) VALUES (2, 'kept before')");
    EXPECT_THROW(run("DELETE FROM ZCALLRECORD WHERE Z_PK = 2"), sim::SqlError);
    EXPECT_EQ(value("SELECT ZADDRESS FROM ZCALLRECORD WHERE Z_PK = 2"), "555-0102");
    EXPECT_EQ(value("SELECT ZADDRESS FROM ZVZCALLRECORD"), "kept before");
}

// Which of the three objects stand already: trigger, kept calls, properties.
class CallHistoryPartlyExtended : public CallHistoryTest, public testing::WithParamInterface<int> {
protected:
    void SetUp() override {
        makeHistory();
        EXPECT_TRUE(history().install(2000));
        if (!triggerStands())
            run("DROP TRIGGER ZVSAVEZCALLRECORD");
        if (!(GetParam() & 2))
            run("DROP TABLE ZVZCALLRECORD");
        if (!(GetParam() & 4))
            run("DROP TABLE ZVZCALLDBPROPERTIES");
    }
    [[nodiscard]] bool triggerStands() const { return (GetParam() & 1) != 0; }
};

TEST_P(CallHistoryPartlyExtended, IsCompletedByAnInstallWhichSaysWhetherItMadeTheTrigger) {
    EXPECT_EQ(history().install(500), !triggerStands());
    EXPECT_EQ(extension().size(), 3U);
    EXPECT_EQ(history().limit(), 500);
    run("DELETE FROM ZCALLRECORD");
    EXPECT_EQ(value("SELECT count() FROM ZVZCALLRECORD"), "3");
}

TEST_P(CallHistoryPartlyExtended, IsClearedByAnUninstallWhichSaysWhetherItDroppedTheTrigger) {
    EXPECT_EQ(history().uninstall(), triggerStands());
    EXPECT_THAT(extension(), IsEmpty());
    EXPECT_EQ(history().limit(), 100);
    EXPECT_EQ(value("SELECT count() FROM ZCALLRECORD"), "3");
}

INSTANTIATE_TEST_SUITE_P(EverySubset, CallHistoryPartlyExtended, testing::Range(0, 8));

class CallHistoryUninstall : public CallHistoryTest {};

TEST_F(CallHistoryUninstall, DropsTheTriggerAndBothTablesWithTheKeptCalls) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    run("DELETE FROM ZCALLRECORD WHERE Z_PK = 1");
    EXPECT_TRUE(history().uninstall());
    EXPECT_THAT(extension(), IsEmpty());
    run("DELETE FROM ZCALLRECORD WHERE Z_PK = 2");
    EXPECT_THAT(rows("SELECT Z_PK FROM ZCALLRECORD"), ElementsAre("3"));
}

TEST_F(CallHistoryUninstall, WhereNothingWasInstalledReturnsFalseAndChangesNothing) {
    makeHistory();
    std::string before = support::fileBytes(m_path);
    EXPECT_FALSE(history().uninstall());
    EXPECT_EQ(support::fileBytes(m_path), before);
}

TEST_F(CallHistoryUninstall, AndInstallAgainStartsWithNoKeptCalls) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    run("DELETE FROM ZCALLRECORD WHERE Z_PK = 1");
    EXPECT_TRUE(history().uninstall());
    EXPECT_TRUE(history().install(200));
    EXPECT_EQ(value("SELECT count() FROM ZVZCALLRECORD"), "0");
    EXPECT_EQ(history().limit(), 200);
}

// A later store has the older columns in other places, of other types, and more of them.
struct LaterSystem {
    const char *name;
    const char *columns; ///< those of its ZCALLRECORD
};

void PrintTo(const LaterSystem &system, std::ostream *stream) {
    *stream << system.name;
}

constexpr LaterSystem laterSystems[] = {
    {"iOS9",
     "Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, Z_OPT INTEGER, ZANSWERED INTEGER, ZCALL_CATEGORY INTEGER, "
     "ZCALLTYPE INTEGER, ZDISCONNECTED_CAUSE INTEGER, ZFACE_TIME_DATA INTEGER, ZNUMBER_AVAILABILITY INTEGER, "
     "ZORIGINATED INTEGER, ZREAD INTEGER, ZDATE TIMESTAMP, ZDURATION FLOAT, ZADDRESS VARCHAR, ZDEVICE_ID "
     "VARCHAR, ZISO_COUNTRY_CODE VARCHAR, ZLOCATION VARCHAR, ZNAME VARCHAR, ZUNIQUE_ID VARCHAR"},
    {"iOS10",
     "Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, Z_OPT INTEGER, ZANSWERED INTEGER, ZCALL_CATEGORY INTEGER, "
     "ZCALLTYPE INTEGER, ZDISCONNECTED_CAUSE INTEGER, ZFACE_TIME_DATA INTEGER, ZHANDLE_TYPE INTEGER, "
     "ZNUMBER_AVAILABILITY INTEGER, ZORIGINATED INTEGER, ZREAD INTEGER, ZDATE TIMESTAMP, ZDURATION FLOAT, "
     "ZDEVICE_ID VARCHAR, ZISO_COUNTRY_CODE VARCHAR, ZLOCATION VARCHAR, ZNAME VARCHAR, ZSERVICE_PROVIDER "
     "VARCHAR, ZUNIQUE_ID VARCHAR, ZADDRESS BLOB"},
    {"iOS11",
     "Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, Z_OPT INTEGER, ZANSWERED INTEGER, ZCALL_CATEGORY INTEGER, "
     "ZCALLTYPE INTEGER, ZDISCONNECTED_CAUSE INTEGER, ZFILTERED_OUT_REASON INTEGER, ZHANDLE_TYPE INTEGER, "
     "ZNUMBER_AVAILABILITY INTEGER, ZORIGINATED INTEGER, ZREAD INTEGER, ZDATE TIMESTAMP, ZDURATION FLOAT, "
     "ZFACE_TIME_DATA FLOAT, ZDEVICE_ID VARCHAR, ZISO_COUNTRY_CODE VARCHAR, ZLOCATION VARCHAR, ZNAME "
     "VARCHAR, "
     "ZSERVICE_PROVIDER VARCHAR, ZUNIQUE_ID VARCHAR, ZADDRESS BLOB, ZLOCALPARTICIPANTUUID BLOB, "
     "ZOUTGOINGLOCALPARTICIPANTUUID BLOB"},
};

constexpr const char *keptColumns =
    "Z_PK, Z_ENT, Z_OPT, ZANSWERED, ZCALLTYPE, ZDISCONNECTED_CAUSE, ZFACE_TIME_DATA, ZNUMBER_AVAILABILITY, "
    "ZORIGINATED, ZREAD, ZDATE, ZDURATION, quote(ZADDRESS), ZDEVICE_ID, ZISO_COUNTRY_CODE, ZNAME, ZUNIQUE_ID";

class CallHistoryOfLaterSystem : public CallHistoryTest, public testing::WithParamInterface<LaterSystem> {
protected:
    void SetUp() override {
        run("CREATE TABLE ZCALLDBPROPERTIES (Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, Z_OPT INTEGER, "
            "ZTIMER_ALL FLOAT, ZTIMER_INCOMING FLOAT, ZTIMER_LAST FLOAT, ZTIMER_LIFETIME FLOAT, "
            "ZTIMER_OUTGOING FLOAT);"
            "INSERT INTO ZCALLDBPROPERTIES (Z_PK, ZTIMER_LIFETIME) VALUES (1, 600.0);"
            "CREATE TABLE ZCALLRECORD (" +
            std::string(GetParam().columns) +
            ");"
            "INSERT INTO ZCALLRECORD (Z_PK, Z_ENT, Z_OPT, ZANSWERED, ZCALL_CATEGORY, ZCALLTYPE, "
            "ZDISCONNECTED_CAUSE, ZFACE_TIME_DATA, ZNUMBER_AVAILABILITY, ZORIGINATED, ZREAD, ZDATE, "
            "ZDURATION, "
            "ZADDRESS, ZDEVICE_ID, ZISO_COUNTRY_CODE, ZLOCATION, ZNAME, ZUNIQUE_ID) VALUES "
            "(7, 2, 3, 1, 99, 8, 6, 10.5, 11, 0, 1, 447292800.5, 61.25, CAST('+15550100' AS BLOB), 'device', "
            "'us', 'Springfield', 'Ann', 'ID')");
    }
};

TEST_P(CallHistoryOfLaterSystem, KeepsTheSeventeenColumnsByName) {
    EXPECT_TRUE(history().install(1000));
    const std::string before = value(std::string("SELECT ") + keptColumns + " FROM ZCALLRECORD");
    EXPECT_THAT(before, testing::HasSubstr("447292800.5|61.25|X'2B3135353530313030'|device|us|Ann|ID"));
    run("DELETE FROM ZCALLRECORD");
    EXPECT_EQ(value(std::string("SELECT ") + keptColumns + " FROM ZVZCALLRECORD"), before);
    EXPECT_EQ(value("SELECT count() FROM pragma_table_info('ZVZCALLRECORD')"), "17");
    EXPECT_TRUE(history().uninstall());
}

TEST_P(CallHistoryOfLaterSystem, HasALifetimeThatCanBeReadAndSet) {
    EXPECT_EQ(history().lifetime(), 600);
    history().setLifetime(300);
    EXPECT_EQ(history().lifetime(), 300);
}

INSTANTIATE_TEST_SUITE_P(Every, CallHistoryOfLaterSystem, testing::ValuesIn(laterSystems),
                         [](const auto &info) { return info.param.name; });

// SQLite looks at a trigger's columns only when it runs.
TEST_F(CallHistoryInstall, InATableThatLacksAColumnKeepsTheSystemFromDeleting) {
    run("CREATE TABLE ZCALLRECORD (Z_PK INTEGER PRIMARY KEY, ZADDRESS VARCHAR, ZDATE TIMESTAMP);"
        "INSERT INTO ZCALLRECORD VALUES (1, '555-0101', 0)");
    EXPECT_TRUE(history().install(2000));
    EXPECT_THROW(run("DELETE FROM ZCALLRECORD"), sim::SqlError);
    EXPECT_EQ(value("SELECT ZADDRESS FROM ZCALLRECORD"), "555-0101");
    EXPECT_TRUE(history().uninstall());
    run("DELETE FROM ZCALLRECORD");
}

} // namespace
} // namespace calls
