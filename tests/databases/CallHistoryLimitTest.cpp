#include "CallHistoryFixture.h"

namespace calls {
namespace {

class CallHistoryLimit : public CallHistoryTest {
protected:
    // Puts an SQL value in the place of the stored limit.
    void store(const std::string &sqlValue) const {
        run("DELETE FROM ZVZCALLDBPROPERTIES; INSERT INTO ZVZCALLDBPROPERTIES (Z_KEY, Z_VALUE) "
            "VALUES ('call_history_limit', " +
            sqlValue + ")");
    }
};

TEST_F(CallHistoryLimit, OfADatabaseWithoutTheExtensionIs100) {
    makeHistory();
    EXPECT_EQ(history().limit(), 100);
}

TEST_F(CallHistoryLimit, IsTheStoredOneForEveryAllowedLimit) {
    makeHistory();
    for (int limit : {100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 2000, 3000, 4000, 5000, 10000}) {
        (void)history().install(limit);
        EXPECT_EQ(history().limit(), limit);
    }
}

TEST_F(CallHistoryLimit, ThatIsNotAllowedReadsAs100) {
    makeHistory();
    for (int limit : {1500, 0, -1, -100, 1, 99, 101, 150, 1100, 6000, 9999, 10001, 20000, 2147483647}) {
        (void)history().install(limit);
        EXPECT_EQ(value("SELECT Z_VALUE FROM ZVZCALLDBPROPERTIES"), std::to_string(limit));
        EXPECT_EQ(history().limit(), 100) << limit;
    }
}

TEST_F(CallHistoryLimit, OfAnyStoredTypeIsItsIntegerValue) {
    makeHistory();
    EXPECT_TRUE(history().install(100));
    const std::pair<const char *, int> cases[] = {
        {"'2000'", 2000}, {"2000.9", 2000},      {"'2000 calls'", 2000},       {"'many'", 100}, {"NULL", 100},
        {"''", 100},      {"x'32303030'", 2000}, {"9223372036854775807", 100}, {"1e300", 100}};
    for (auto [stored, limit] : cases) {
        store(stored);
        EXPECT_EQ(history().limit(), limit) << stored;
    }
}

TEST_F(CallHistoryLimit, OfAnEmptyPropertiesTableIs100) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    run("DELETE FROM ZVZCALLDBPROPERTIES");
    EXPECT_EQ(history().limit(), 100);
}

TEST_F(CallHistoryLimit, OfATableWithoutTheValueColumnIs100) {
    makeHistory();
    run("CREATE TABLE ZVZCALLDBPROPERTIES (Z_PK INTEGER PRIMARY KEY, Z_KEY INTEGER)");
    EXPECT_EQ(history().limit(), 100);
}

TEST_F(CallHistoryLimit, IsReadWithoutChangingTheDatabase) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    std::string before = support::fileBytes(m_path);
    EXPECT_EQ(history().limit(), 2000);
    EXPECT_EQ(support::fileBytes(m_path), before);
}

class OlderCallHistory : public CallHistoryTest {
protected:
    void SetUp() override { makeHistory(keyValue); }
    void store(const std::string &key, const std::string &sqlValue) const {
        run("INSERT OR REPLACE INTO _SqliteDatabaseProperties VALUES ('" + key + "', " + sqlValue + ")");
    }
};

TEST_F(OlderCallHistory, HasItsLimitInTheSystemsProperties) {
    EXPECT_EQ(history(keyValue).limit(), 100);
    store("call_history_limit", "'5000'");
    EXPECT_EQ(history(keyValue).limit(), 5000);
    store("call_history_limit", "300");
    EXPECT_EQ(history(keyValue).limit(), 300);
}

TEST_F(OlderCallHistory, WithALimitThatIsNotAllowedReadsAs100) {
    for (const char *stored : {"'1500'", "'0'", "'none'", "NULL"}) {
        store("call_history_limit", stored);
        EXPECT_EQ(history(keyValue).limit(), 100) << stored;
    }
}

TEST_F(OlderCallHistory, WithoutTheRowsHasTheNeutralValues) {
    run("DELETE FROM _SqliteDatabaseProperties");
    EXPECT_EQ(history(keyValue).limit(), 100);
    EXPECT_EQ(history(keyValue).lifetime(), 0);
}

TEST_F(OlderCallHistory, WithoutThePropertiesTableHasTheNeutralValues) {
    run("DROP TABLE _SqliteDatabaseProperties");
    EXPECT_EQ(history(keyValue).limit(), 100);
    EXPECT_EQ(history(keyValue).lifetime(), 0);
}

TEST_F(OlderCallHistory, HasItsLifetimeInTheSystemsProperties) {
    EXPECT_EQ(history(keyValue).lifetime(), 3 * 60);
    store("timer_lifetime", "'61920'");
    EXPECT_EQ(history(keyValue).lifetime(), 61920);
    store("timer_lifetime", "'429883381.894627'");
    EXPECT_EQ(history(keyValue).lifetime(), 429883381);
}

TEST_F(OlderCallHistory, OfAPhoneThatHasMovedOnToALaterSystemIsReadAllTheSame) {
    run("DELETE FROM _SqliteDatabaseProperties;"
        "INSERT INTO _SqliteDatabaseProperties VALUES ('call_history_limit', '100'), ('timer_lifetime', "
        "'61920'), "
        "('_UniqueIdentifier', 'D014451A'), ('timer_last_reset', '429883381.894627'), "
        "('__CPRecordSequenceNumber', '3529'), ('kCallDBHasMigratedToCoreDataProperty', '1')");
    EXPECT_EQ(history(keyValue).limit(), 100);
    EXPECT_EQ(history(keyValue).lifetime(), 61920);
}

TEST_F(OlderCallHistory, AskedWithTheOtherSchemasQueriesHasTheNeutralValues) {
    EXPECT_EQ(history(coreData).limit(), 100);
    EXPECT_EQ(history(coreData).lifetime(), 0);
}

TEST(CallHistorySchema, IsTheCoreDataStoreFromVersion8On) {
    EXPECT_EQ(zv::callHistorySchema(8.0F), coreData);
    EXPECT_EQ(zv::callHistorySchema(8.1F), coreData);
    EXPECT_EQ(zv::callHistorySchema(10.3F), coreData);
    EXPECT_EQ(zv::callHistorySchema(7.1F), keyValue);
    EXPECT_EQ(zv::callHistorySchema(7.99F), keyValue);
    EXPECT_EQ(zv::callHistorySchema(0.0F), keyValue);
}

} // namespace
} // namespace calls
