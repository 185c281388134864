#include "CallHistoryFixture.h"

#include <gmock/gmock.h>

namespace calls {
namespace {

class CallLifetime : public CallHistoryTest {
protected:
    void SetUp() override { makeHistory(); }
    void store(const std::string &sqlValue) const {
        run("UPDATE ZCALLDBPROPERTIES SET ZTIMER_LIFETIME = " + sqlValue);
    }
};

TEST_F(CallLifetime, IsReadInSeconds) {
    EXPECT_EQ(history().lifetime(), 180);
    store("0");
    EXPECT_EQ(history().lifetime(), 0);
    store("61");
    EXPECT_EQ(history().lifetime(), 61);
}

TEST_F(CallLifetime, OfAnyStoredTypeIsItsIntegerValue) {
    const std::pair<const char *, int> cases[] = {
        {"300.9", 300}, {"'300'", 300}, {"NULL", 0}, {"'soon'", 0}, {"x'333030'", 300}};
    for (auto [stored, lifetime] : cases) {
        store(stored);
        EXPECT_EQ(history().lifetime(), lifetime) << stored;
    }
}

TEST_F(CallLifetime, ThatIsSetIsStoredAsTheColumnsFloat) {
    history().setLifetime(300);
    EXPECT_EQ(value("SELECT ZTIMER_LIFETIME, typeof(ZTIMER_LIFETIME) FROM ZCALLDBPROPERTIES"), "300.0|real");
    EXPECT_EQ(history().lifetime(), 300);
}

TEST_F(CallLifetime, CanBeSetToAnyInteger) {
    for (int seconds : {0, 60, -60, 2147483647, -2147483647 - 1}) {
        history().setLifetime(seconds);
        EXPECT_EQ(history().lifetime(), seconds);
    }
}

TEST_F(CallLifetime, LeavesTheOtherTimersAlone) {
    const char *others =
        "SELECT Z_PK, Z_ENT, Z_OPT, ZTIMER_ALL, ZTIMER_INCOMING, ZTIMER_LAST, ZTIMER_OUTGOING "
        "FROM ZCALLDBPROPERTIES";
    std::string before = value(others);
    history().setLifetime(300);
    EXPECT_EQ(value(others), before);
}

TEST_F(CallLifetime, IsSetInTheRowWithTheLowestKeyOnly) {
    run("DELETE FROM ZCALLDBPROPERTIES; INSERT INTO ZCALLDBPROPERTIES (Z_PK, ZTIMER_LIFETIME) "
        "VALUES (9, 900), (4, 400)");
    history().setLifetime(300);
    EXPECT_THAT(rows("SELECT Z_PK, ZTIMER_LIFETIME FROM ZCALLDBPROPERTIES ORDER BY Z_PK"),
                testing::ElementsAre("4|300.0", "9|900.0"));
}

TEST_F(CallLifetime, IsReadFromTheFirstRowThatTheTableYields) {
    run("DROP TABLE ZCALLDBPROPERTIES; CREATE TABLE ZCALLDBPROPERTIES (Z_PK INTEGER, ZTIMER_LIFETIME FLOAT);"
        "INSERT INTO ZCALLDBPROPERTIES VALUES (9, 900), (4, 400)");
    EXPECT_EQ(history().lifetime(), 900);
    history().setLifetime(300);
    EXPECT_EQ(history().lifetime(), 900);
    EXPECT_EQ(value("SELECT ZTIMER_LIFETIME FROM ZCALLDBPROPERTIES WHERE Z_PK = 4"), "300.0");
}

TEST_F(CallLifetime, OfAnEmptyTableIs0AndCannotBeSet) {
    run("DELETE FROM ZCALLDBPROPERTIES");
    history().setLifetime(300);
    EXPECT_EQ(history().lifetime(), 0);
    EXPECT_EQ(value("SELECT count() FROM ZCALLDBPROPERTIES"), "0");
}

TEST_F(CallLifetime, WithoutTheTableIs0AndCannotBeSet) {
    run("DROP TABLE ZCALLDBPROPERTIES");
    history().setLifetime(300);
    EXPECT_EQ(history().lifetime(), 0);
}

TEST_F(CallLifetime, WithoutTheColumnIs0AndCannotBeSet) {
    run("DROP TABLE ZCALLDBPROPERTIES; CREATE TABLE ZCALLDBPROPERTIES (Z_PK INTEGER PRIMARY KEY, Z_ENT "
        "INTEGER);"
        "INSERT INTO ZCALLDBPROPERTIES VALUES (1, 1)");
    std::string before = support::fileBytes(m_path);
    history().setLifetime(300);
    EXPECT_EQ(history().lifetime(), 0);
    EXPECT_EQ(support::fileBytes(m_path), before);
}

} // namespace
} // namespace calls
