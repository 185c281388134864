// A disk that fails at the first file operation, then at the second, and so on until an operation of the call
// history needs no more: after each the database is whole and nothing stays open.
#include "CallHistoryFixture.h"

#include <functional>
#include <gmock/gmock.h>

namespace calls {
namespace {

using support::Fault;
using support::FaultSpan;

class CallHistoryFault : public CallHistoryTest,
                         public testing::WithParamInterface<std::tuple<Fault, FaultSpan>> {
protected:
    void SetUp() override {
        makeHistory();
        m_fresh = support::fileBytes(m_path);
        EXPECT_TRUE(history().install(2000));
        run("DELETE FROM ZCALLRECORD WHERE Z_PK = 1");
        m_extended = support::fileBytes(m_path);
    }

    // Lets each file operation of `act` fail in turn. `act` starts from a database of these bytes each time;
    // `check` sees what it left, on a disk in order.
    void failEach(const std::string &bytes, const std::function<void()> &act,
                  const std::function<void()> &check) {
        auto [fault, span] = GetParam();
        int number = 1;
        for (bool failed = true; failed; ++number) {
            restore(bytes);
            sqlite3_int64 memory = sqlite3_memory_used();
            m_disk.failOperation(number, fault, span);
            act();
            failed = m_disk.hasFailed();
            m_disk.heal();
            EXPECT_EQ(m_disk.openFiles(), 0);
            EXPECT_EQ(sqlite3_memory_used(), memory);
            EXPECT_EQ(value("PRAGMA integrity_check"), "ok") << "after operation " << number;
            check();
            ASSERT_FALSE(HasFailure()) << "operation " << number << " failed";
        }
        EXPECT_GT(number, 2) << "no file operation could fail";
    }

    void restore(const std::string &bytes) const {
        std::filesystem::remove(m_path + "-journal");
        support::writeFile(m_path, bytes);
    }

    // The system's own calls, whatever became of the extension.
    [[nodiscard]] std::string calls() const { return value("SELECT group_concat(Z_PK) FROM ZCALLRECORD"); }

    std::string m_fresh;
    std::string m_extended;
};

TEST_P(CallHistoryFault, DuringAnInstallIsToldByTheResult) {
    bool installed = false;
    failEach(
        m_fresh, [&] { installed = history().install(3000); },
        [&] {
            EXPECT_EQ(hasTrigger(), installed);
            EXPECT_THAT(history().limit(), testing::AnyOf(100, 3000));
            EXPECT_EQ(calls(), "1,2,3");
        });
    EXPECT_TRUE(installed);
    EXPECT_EQ(history().limit(), 3000);
}

TEST_P(CallHistoryFault, DuringARaiseLosesNoKeptCall) {
    failEach(
        m_extended, [&] { EXPECT_FALSE(history().install(3000)); },
        [&] {
            EXPECT_TRUE(hasTrigger());
            EXPECT_THAT(history().limit(), testing::AnyOf(100, 2000, 3000));
            EXPECT_EQ(value("SELECT group_concat(Z_PK) FROM ZVZCALLRECORD"), "1");
            EXPECT_EQ(calls(), "2,3");
        });
    EXPECT_EQ(history().limit(), 3000);
}

TEST_P(CallHistoryFault, DuringALoweringIsToldByTheResult) {
    bool dropped = false;
    failEach(
        m_extended, [&] { dropped = history().uninstall(); },
        [&] {
            EXPECT_EQ(hasTrigger(), !dropped);
            EXPECT_THAT(history().limit(), testing::AnyOf(100, 2000));
            EXPECT_EQ(calls(), "2,3");
        });
    EXPECT_TRUE(dropped);
    EXPECT_THAT(extension(), testing::IsEmpty());
}

TEST_P(CallHistoryFault, WhileTheLimitIsReadGivesTheDefault) {
    int limit = 0;
    failEach(
        m_extended, [&] { limit = history().limit(); },
        [&] {
            EXPECT_THAT(limit, testing::AnyOf(100, 2000));
            EXPECT_EQ(support::fileBytes(m_path), m_extended);
        });
    EXPECT_EQ(limit, 2000);
}

TEST_P(CallHistoryFault, WhileTheLifetimeIsReadGivesZero) {
    int lifetime = -1;
    failEach(
        m_extended, [&] { lifetime = history().lifetime(); },
        [&] {
            EXPECT_THAT(lifetime, testing::AnyOf(0, 180));
            EXPECT_EQ(support::fileBytes(m_path), m_extended);
        });
    EXPECT_EQ(lifetime, 180);
}

TEST_P(CallHistoryFault, WhileTheLifetimeIsSetLeavesTheOldOrTheNewOne) {
    failEach(
        m_extended, [&] { history().setLifetime(300); },
        [&] {
            EXPECT_THAT(history().lifetime(), testing::AnyOf(180, 300));
            EXPECT_EQ(calls(), "2,3");
        });
    EXPECT_EQ(history().lifetime(), 300);
}

std::string faultName(const testing::TestParamInfo<std::tuple<Fault, FaultSpan>> &info) {
    auto [fault, span] = info.param;
    std::string name = fault == Fault::ioError ? "IoError" : fault == Fault::fullDisk ? "FullDisk" : "Busy";
    return name + (span == FaultSpan::once ? "Once" : "FromThenOn");
}

INSTANTIATE_TEST_SUITE_P(Disk, CallHistoryFault,
                         testing::Combine(testing::Values(Fault::ioError, Fault::fullDisk, Fault::busy),
                                          testing::Values(FaultSpan::once, FaultSpan::fromThenOn)),
                         faultName);

class CallHistoryConnection : public CallHistoryTest {
protected:
    template<typename Operation>
    int connectionsOf(Operation operation) {
        m_disk.heal();
        operation();
        EXPECT_EQ(m_disk.openFiles(), 0);
        return m_disk.databasesOpened();
    }
};

TEST_F(CallHistoryConnection, IsOneForEachOperationAndClosedAfterIt) {
    makeHistory();
    EXPECT_EQ(connectionsOf([&] { (void)history().install(2000); }), 1);
    EXPECT_EQ(connectionsOf([&] { (void)history().limit(); }), 1);
    EXPECT_EQ(connectionsOf([&] { (void)history().lifetime(); }), 1);
    EXPECT_EQ(connectionsOf([&] { history().setLifetime(300); }), 1);
    EXPECT_EQ(connectionsOf([&] { (void)history().uninstall(); }), 1);
}

class HeldCallHistory : public CallHistoryTest {
protected:
    // How often an operation asks for a lock while every one is refused.
    template<typename Operation>
    int attemptsOf(Operation operation) {
        m_disk.failOperation(1, Fault::busy, FaultSpan::fromThenOn);
        operation();
        return m_disk.attempts();
    }
};

// A busy time-out would ask again and again, and keep the page from answering. SQLite itself may ask
// twice for a statement.
TEST_F(HeldCallHistory, IsNotWaitedFor) {
    makeHistory();
    EXPECT_LE(attemptsOf([&] { EXPECT_FALSE(history().install(2000)); }), 5 * 2);
    EXPECT_LE(attemptsOf([&] { EXPECT_FALSE(history().uninstall()); }), 3 * 2);
    EXPECT_LE(attemptsOf([&] { EXPECT_EQ(history().limit(), 100); }), 2);
    EXPECT_LE(attemptsOf([&] { EXPECT_EQ(history().lifetime(), 0); }), 2);
    EXPECT_LE(attemptsOf([&] { history().setLifetime(300); }), 2);
}

} // namespace
} // namespace calls
