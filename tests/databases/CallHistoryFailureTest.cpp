// Histories that cannot be opened, read or written: every operation has its neutral result and does no harm.
#include "CallHistoryFixture.h"
#include "support/LockHolder.h"
#include "support/OrdinaryUser.h"

#include <gmock/gmock.h>

namespace calls {
namespace {

class CallHistoryFailure : public CallHistoryTest {
protected:
    // Every operation of both schemas has its neutral result.
    void expectNeutralResults() const {
        expectNothingCanBeChanged();
        for (auto schema : {coreData, keyValue}) {
            EXPECT_EQ(history(schema).limit(), 100);
            EXPECT_EQ(history(schema).lifetime(), 0);
        }
    }

    void expectNothingCanBeChanged() const {
        EXPECT_FALSE(history().install(2000));
        EXPECT_FALSE(history().uninstall());
        history().setLifetime(300);
    }

    void expectNeutralResultsAndTheSameBytes() const {
        std::string before = support::fileBytes(m_path);
        expectNeutralResults();
        EXPECT_EQ(support::fileBytes(m_path), before);
    }
};

TEST_F(CallHistoryFailure, AFolderThatIsMissingGivesNeutralResults) {
    m_path = m_folder.file("missing/CallHistory.storedata");
    expectNeutralResults();
    EXPECT_FALSE(std::filesystem::exists(m_folder.path() / "missing"));
}

TEST_F(CallHistoryFailure, AFolderInPlaceOfTheFileGivesNeutralResults) {
    std::filesystem::create_directory(m_path);
    expectNeutralResults();
}

TEST_F(CallHistoryFailure, AMissingFileIsMadeEmptyByReadingAndReadsAsNeutral) {
    EXPECT_EQ(history().limit(), 100);
    EXPECT_TRUE(std::filesystem::exists(m_path));
    EXPECT_EQ(std::filesystem::file_size(m_path), 0U);
    EXPECT_EQ(history().lifetime(), 0);
    history().setLifetime(300);
    EXPECT_FALSE(history().uninstall());
    EXPECT_EQ(std::filesystem::file_size(m_path), 0U);
}

TEST_F(CallHistoryFailure, AnInstallWithoutTheSystemsTableMakesTheTablesButReturnsFalse) {
    EXPECT_FALSE(history().install(2000));
    EXPECT_THAT(extension(), testing::ElementsAre("table|ZVZCALLDBPROPERTIES", "table|ZVZCALLRECORD"));
    EXPECT_EQ(history().limit(), 2000);
    EXPECT_FALSE(history().uninstall());
    EXPECT_THAT(extension(), testing::IsEmpty());
}

TEST_F(CallHistoryFailure, AFileThatIsNoDatabaseGivesNeutralResultsAndKeepsItsBytes) {
    support::writeFile(m_path, std::string(5000, 'x'));
    expectNeutralResultsAndTheSameBytes();
}

TEST_F(CallHistoryFailure, ADatabaseCutInItsFirstPageGivesNeutralResultsAndKeepsItsBytes) {
    makeHistory();
    std::filesystem::resize_file(m_path, 1000);
    expectNeutralResultsAndTheSameBytes();
}

TEST_F(CallHistoryFailure, ADatabaseCutAtEveryPageNeitherCrashesNorAnswersAnythingElse) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    std::string whole = support::fileBytes(m_path);
    for (size_t length = 4096; length < whole.size(); length += 4096) {
        support::writeFile(m_path, whole.substr(0, length));
        EXPECT_THAT(history().limit(), testing::AnyOf(100, 2000)) << length;
        EXPECT_THAT(history().lifetime(), testing::AnyOf(0, 180)) << length;
        (void)history().install(3000);
        history().setLifetime(300);
        (void)history().uninstall();
    }
}

TEST_F(CallHistoryFailure, ADamagedSchemaGivesNeutralResultsAndKeepsItsBytes) {
    makeHistory();
    std::string bytes = support::fileBytes(m_path);
    std::fill(bytes.begin() + 100, bytes.begin() + 4096, '\xFF');
    support::writeFile(m_path, bytes);
    expectNeutralResultsAndTheSameBytes();
}

TEST_F(CallHistoryFailure, DamageAnywhereNeverCrashes) {
    makeHistory();
    EXPECT_TRUE(history().install(2000));
    std::string whole = support::fileBytes(m_path);
    for (size_t place = 0; place < whole.size(); place += 97) {
        std::string damaged = whole;
        damaged[place] = static_cast<char>(~damaged[place]);
        support::writeFile(m_path, damaged);
        (void)history().limit();
        (void)history().lifetime();
        (void)history().install(3000);
        history().setLifetime(300);
        (void)history().uninstall();
    }
}

class LockedCallHistory : public CallHistoryFailure {
protected:
    void SetUp() override {
        makeHistory();
        EXPECT_TRUE(history().install(2000));
    }

    // Runs an operation while another process holds the database, then lets that process finish its work.
    template<typename Operation>
    void whileLocked(Operation operation) const {
        support::LockHolder holder(m_path, "UPDATE ZCALLRECORD SET ZNAME = 'written by the other'");
        ASSERT_TRUE(holder.isHolding());
        operation();
        EXPECT_TRUE(holder.release());
        EXPECT_EQ(value("SELECT group_concat(DISTINCT ZNAME) FROM ZCALLRECORD"), "written by the other");
        EXPECT_EQ(value("PRAGMA integrity_check"), "ok");
    }
};

TEST_F(LockedCallHistory, CannotBeInstalledOver) {
    run("DROP TRIGGER ZVSAVEZCALLRECORD");
    whileLocked([&] { EXPECT_FALSE(history().install(3000)); });
    EXPECT_EQ(history().limit(), 2000);
    EXPECT_FALSE(hasTrigger());
}

TEST_F(LockedCallHistory, CannotBeUninstalled) {
    whileLocked([&] { EXPECT_FALSE(history().uninstall()); });
    EXPECT_TRUE(hasTrigger());
    EXPECT_EQ(history().limit(), 2000);
}

TEST_F(LockedCallHistory, HasTheDefaultLimitUntilItIsFree) {
    whileLocked([&] { EXPECT_EQ(history().limit(), 100); });
    EXPECT_EQ(history().limit(), 2000);
}

TEST_F(LockedCallHistory, HasNoLifetimeUntilItIsFree) {
    whileLocked([&] { EXPECT_EQ(history().lifetime(), 0); });
    EXPECT_EQ(history().lifetime(), 180);
}

TEST_F(LockedCallHistory, KeepsItsLifetime) {
    whileLocked([&] { history().setLifetime(300); });
    EXPECT_EQ(history().lifetime(), 180);
}

TEST_F(LockedCallHistory, OfTheOlderFormHasTheNeutralValuesUntilItIsFree) {
    std::string older = m_folder.file("call_history.db");
    support::CallHistoryBuilder(older, keyValue).call("555-0101", someMoment);
    zv::CallHistory calls(older.c_str(), keyValue);
    support::LockHolder holder(older, "UPDATE _SqliteDatabaseProperties SET value = '500' "
                                      "WHERE key = 'call_history_limit'");
    ASSERT_TRUE(holder.isHolding());
    EXPECT_EQ(calls.limit(), 100);
    EXPECT_EQ(calls.lifetime(), 0);
    EXPECT_TRUE(holder.release());
    EXPECT_EQ(calls.limit(), 500);
    EXPECT_EQ(calls.lifetime(), 60);
}

// The system's own store keeps a write-ahead log: a writer at work then keeps nobody from reading.
TEST_F(LockedCallHistory, WithAWriteAheadLogCanBeReadButNotChanged) {
    run("PRAGMA journal_mode = WAL");
    whileLocked([&] {
        EXPECT_EQ(history().limit(), 2000);
        EXPECT_EQ(history().lifetime(), 180);
        EXPECT_FALSE(history().uninstall());
        EXPECT_FALSE(history().install(3000));
        history().setLifetime(300);
    });
    EXPECT_EQ(history().limit(), 2000);
    EXPECT_EQ(history().lifetime(), 180);
}

TEST_F(CallHistoryFailure, AWriteAheadLogInUseIsNoHindrance) {
    makeHistory();
    sim::SqlFile system(m_path);
    system.script("PRAGMA journal_mode = WAL");
    EXPECT_TRUE(history().install(2000));
    system.script("DELETE FROM ZCALLRECORD WHERE Z_PK = 1");
    EXPECT_EQ(system.value("SELECT ZADDRESS FROM ZVZCALLRECORD"), "555-0101");
    EXPECT_EQ(history().limit(), 2000);
    EXPECT_TRUE(history().uninstall());
}

class ProtectedCallHistory : public CallHistoryFailure {
protected:
    void SetUp() override {
        makeHistory();
        EXPECT_TRUE(history().install(2000));
    }

    void protect(std::filesystem::perms permissions) {
        std::filesystem::permissions(m_folder.path(), std::filesystem::perms(0755));
        std::filesystem::permissions(m_path, permissions);
        m_bytes = support::fileBytes(m_path);
    }

    void TearDown() override { EXPECT_EQ(support::fileBytes(m_path), m_bytes); }

    std::string m_bytes;
};

TEST_F(ProtectedCallHistory, ThatIsReadOnlyCanBeReadButNotChanged) {
    protect(std::filesystem::perms(0444));
    support::OrdinaryUser user;
    EXPECT_FALSE(history().install(3000));
    EXPECT_FALSE(history().uninstall());
    history().setLifetime(300);
    EXPECT_EQ(history().limit(), 2000);
    EXPECT_EQ(history().lifetime(), 180);
}

TEST_F(ProtectedCallHistory, ThatCannotBeReadGivesNeutralResults) {
    protect(std::filesystem::perms(0000));
    support::OrdinaryUser user;
    expectNeutralResults();
}

TEST_F(ProtectedCallHistory, InAFolderThatCannotBeWrittenKeepsItsContents) {
    protect(std::filesystem::perms(0666));
    support::OrdinaryUser user;
    expectNothingCanBeChanged();
    EXPECT_EQ(history().limit(), 2000);
    EXPECT_EQ(history().lifetime(), 180);
}

} // namespace
} // namespace calls
