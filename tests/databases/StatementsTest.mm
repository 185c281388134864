// The statements of every operation, to the letter and in their order: one connection, no transaction,
// nothing besides. What the system's own processes meet in these databases is fixed by them.
#include "CallHistoryFixture.h"
#include "SourceFixture.h"
#include "support/StatementLog.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr const char *createProperties =
    "CREATE TABLE ZVZCALLDBPROPERTIES ( Z_PK INTEGER PRIMARY KEY, Z_KEY INTEGER, Z_VALUE )";
constexpr const char *deleteLimit = "DELETE FROM ZVZCALLDBPROPERTIES WHERE Z_KEY = 'call_history_limit'";
constexpr const char *insertLimit = "INSERT INTO ZVZCALLDBPROPERTIES (Z_KEY, Z_VALUE) VALUES (?, ?)";
constexpr const char *createRecords =
    "CREATE TABLE ZVZCALLRECORD ( Z_PK INTEGER PRIMARY KEY, Z_ENT INTEGER, Z_OPT INTEGER, ZANSWERED INTEGER, "
    "ZCALLTYPE INTEGER, ZDISCONNECTED_CAUSE INTEGER, ZFACE_TIME_DATA INTEGER, ZNUMBER_AVAILABILITY INTEGER, "
    "ZORIGINATED INTEGER, ZREAD INTEGER, ZDATE TIMESTAMP, ZDURATION FLOAT, ZADDRESS VARCHAR, "
    "ZDEVICE_ID VARCHAR, ZISO_COUNTRY_CODE VARCHAR, ZNAME VARCHAR, ZUNIQUE_ID VARCHAR )";
constexpr const char *createTrigger =
    "CREATE TRIGGER ZVSAVEZCALLRECORD BEFORE DELETE ON ZCALLRECORD FOR EACH ROW BEGIN INSERT INTO "
    "ZVZCALLRECORD SELECT Z_PK,Z_ENT,Z_OPT,ZANSWERED,ZCALLTYPE,ZDISCONNECTED_CAUSE,ZFACE_TIME_DATA,"
    "ZNUMBER_AVAILABILITY,ZORIGINATED,ZREAD,ZDATE,ZDURATION,ZADDRESS,ZDEVICE_ID,ZISO_COUNTRY_CODE,ZNAME,"
    "ZUNIQUE_ID FROM ZCALLRECORD WHERE ZCALLRECORD.Z_PK=OLD.Z_PK; END";

class CallHistoryStatements : public calls::CallHistoryTest {
protected:
    // What an operation asks of SQLite.
    template<typename Operation>
    std::vector<std::string> statementsOf(Operation operation) {
        support::StatementLog log;
        operation();
        return log.take();
    }
};

TEST_F(CallHistoryStatements, OfAnInstall) {
    makeHistory();
    EXPECT_THAT(statementsOf([&] { EXPECT_TRUE(history().install(2000)); }),
                ElementsAre("(open)", createProperties, deleteLimit, insertLimit, createRecords,
                            createTrigger, "(close)"));
}

TEST_F(CallHistoryStatements, OfAnInstallOverAFirstOneAreThoseThatCanBePrepared) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    EXPECT_THAT(statementsOf([&] { EXPECT_FALSE(history().install(3000)); }),
                ElementsAre("(open)", deleteLimit, insertLimit, "(close)"));
}

TEST_F(CallHistoryStatements, OfAnUninstall) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    EXPECT_THAT(statementsOf([&] { EXPECT_TRUE(history().uninstall()); }),
                ElementsAre("(open)", "DROP TRIGGER ZVSAVEZCALLRECORD", "DROP TABLE ZVZCALLRECORD",
                            "DROP TABLE ZVZCALLDBPROPERTIES", "(close)"));
}

TEST_F(CallHistoryStatements, OfAnUninstallWhereNothingWasInstalledAreNone) {
    makeHistory();
    EXPECT_THAT(statementsOf([&] { EXPECT_FALSE(history().uninstall()); }), ElementsAre("(open)", "(close)"));
}

TEST_F(CallHistoryStatements, OfTheLimitOfEitherForm) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    EXPECT_THAT(statementsOf([&] { EXPECT_EQ(history().limit(), 2000); }),
                ElementsAre("(open)",
                            "SELECT Z_VALUE FROM ZVZCALLDBPROPERTIES WHERE Z_KEY='call_history_limit'",
                            "(close)"));
    m_path = m_folder.file("call_history.db");
    makeHistory(calls::keyValue);
    EXPECT_THAT(statementsOf([&] { EXPECT_EQ(history(calls::keyValue).limit(), 100); }),
                ElementsAre("(open)",
                            "SELECT value FROM _SqliteDatabaseProperties WHERE key='call_history_limit'",
                            "(close)"));
}

TEST_F(CallHistoryStatements, OfTheLifetimeOfEitherForm) {
    makeHistory();
    EXPECT_THAT(statementsOf([&] { EXPECT_EQ(history().lifetime(), 180); }),
                ElementsAre("(open)", "SELECT ZTIMER_LIFETIME FROM ZCALLDBPROPERTIES", "(close)"));
    m_path = m_folder.file("call_history.db");
    makeHistory(calls::keyValue);
    EXPECT_THAT(statementsOf([&] { EXPECT_EQ(history(calls::keyValue).lifetime(), 180); }),
                ElementsAre("(open)",
                            "SELECT value FROM _SqliteDatabaseProperties WHERE key='timer_lifetime'",
                            "(close)"));
}

TEST_F(CallHistoryStatements, OfSettingTheLifetime) {
    makeHistory();
    EXPECT_THAT(statementsOf([&] { history().setLifetime(300); }),
                ElementsAre("(open)",
                            "UPDATE ZCALLDBPROPERTIES SET ZTIMER_LIFETIME = ? WHERE Z_PK = (SELECT Z_PK FROM "
                            "ZCALLDBPROPERTIES ORDER BY Z_PK ASC LIMIT 1)",
                            "(close)"));
}

constexpr const char *phoneNumbers =
    "SELECT ABMultiValue.Value,ABPerson.First,ABPerson.Last,ABMultiValueLabel.value FROM "
    "ABPerson,ABMultiValue,ABMultiValueLabel WHERE ABPerson.ROWID=ABMultiValue.record_id AND "
    "ABMultiValue.label=ABMultiValueLabel.ROWID AND property=3 ORDER BY ABMultiValue.record_id DESC";

class SourceStatements : public sources::SourceTest {};

TEST_F(SourceStatements, OfTheContacts) {
    support::AddressBookBuilder(m_addressBook).person("Anna", "First", "555-0101");
    support::StatementLog log;
    EXPECT_EQ(contacts().size(), 1U);
    EXPECT_THAT(log.take(), ElementsAre("(open)", phoneNumbers, "(close)"));
}

TEST_F(SourceStatements, OfTheRecentCallsFollowThoseOfTheContacts) {
    support::AddressBookBuilder(m_addressBook).person("Anna", "First", "555-0101");
    support::CallHistoryBuilder(m_callHistory, coreData).call("555-0101", now);
    support::StatementLog log;
    EXPECT_EQ(recentCalls(coreData).size(), 1U);
    EXPECT_THAT(log.take(),
                ElementsAre("(open)", phoneNumbers, "(close)", "(open)",
                            "SELECT ZADDRESS,ZDATE FROM ZCALLRECORD ORDER BY ZDATE DESC", "(close)"));
}

TEST_F(SourceStatements, OfTheRecentCallsOfTheOlderForm) {
    support::AddressBookBuilder(m_addressBook).person("Anna", "First", "555-0101");
    support::CallHistoryBuilder(m_callHistory, keyValue).call("555-0101", now);
    support::StatementLog log;
    EXPECT_EQ(recentCalls(keyValue).size(), 1U);
    EXPECT_THAT(log.take(),
                ElementsAre("(open)", phoneNumbers, "(close)", "(open)",
                            "SELECT address,date FROM call WHERE (flags & (1 << 4) == 0) ORDER BY date DESC",
                            "(close)"));
}

} // namespace
