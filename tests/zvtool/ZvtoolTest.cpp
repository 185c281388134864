#include "databases/CallHistory.h"
#include "host/EventLog.h"
#include "support/CallHistoryBuilder.h"
#include "support/LockHolder.h"
#include "support/TemporaryFolder.h"
#include "support/TestDevice.h"

#include <cstdlib>
#include <gtest/gtest.h>

namespace {

constexpr const char *callHistoryPath = "/var/wireless/Library/CallHistory/call_history.db";
constexpr const char *toolPath = "/Library/Zelvora/zvtool";
constexpr int done = 0, failed = 1, usageError = 2;

// A phone of the older system with the tool at its place, reached as the settings reach it: by a command
// line.
class Zvtool : public testing::Test {
protected:
    Zvtool() : m_device({.systemVersion = "7.1.2"}) {
        std::filesystem::copy_file(ZV_TOOL, m_device.path(toolPath));
    }

    void makeHistory() const {
        support::CallHistoryBuilder(m_device.path(callHistoryPath), zv::CallHistorySchema::keyValue)
            .call("555-0101", 1425600000);
    }

    static int run(const std::string &arguments) {
        int status = std::system((std::string(toolPath) + " " + arguments).c_str());
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    [[nodiscard]] std::string property(const std::string &key) const {
        return sim::SqlFile(m_device.path(callHistoryPath))
            .value("SELECT value FROM _SqliteDatabaseProperties WHERE key = '" + key + "'");
    }
    [[nodiscard]] zv::CallHistory history() const {
        return {m_path.c_str(), zv::CallHistorySchema::keyValue};
    }

    support::TestDevice m_device;
    std::string m_path = m_device.path(callHistoryPath);
};

TEST_F(Zvtool, RaisesTheLimit) {
    makeHistory();
    EXPECT_EQ(run("-i 2000"), done);
    EXPECT_EQ(property("call_history_limit"), "2000");
    EXPECT_EQ(history().limit(), 2000);
}

TEST_F(Zvtool, BringsTheLimitBackToTheDefault) {
    makeHistory();
    EXPECT_EQ(run("-i 2000"), done);
    EXPECT_EQ(run("-u"), done);
    EXPECT_EQ(property("call_history_limit"), "100");
    EXPECT_EQ(history().limit(), 100);
}

TEST_F(Zvtool, SetsTheLifetimeInSeconds) {
    makeHistory();
    EXPECT_EQ(run("-l 300"), done);
    EXPECT_EQ(property("timer_lifetime"), "300");
    EXPECT_EQ(history().lifetime(), 300);
    EXPECT_EQ(property("call_history_limit"), "100");
}

TEST_F(Zvtool, AddsAPropertyThatIsMissing) {
    makeHistory();
    sim::SqlFile(m_path).script("DELETE FROM _SqliteDatabaseProperties");
    EXPECT_EQ(run("-i 500"), done);
    EXPECT_EQ(run("-l 60"), done);
    EXPECT_EQ(history().limit(), 500);
    EXPECT_EQ(history().lifetime(), 60);
}

TEST_F(Zvtool, LeavesTheCallsAndOtherPropertiesAlone) {
    makeHistory();
    std::vector<std::string> before = sim::SqlFile(m_path).rows(
        "SELECT key, value FROM _SqliteDatabaseProperties WHERE key != 'call_history_limit' ORDER BY key");
    EXPECT_EQ(run("-i 2000"), done);
    EXPECT_EQ(sim::SqlFile(m_path).rows("SELECT key, value FROM _SqliteDatabaseProperties WHERE key != "
                                        "'call_history_limit' ORDER BY key"),
              before);
    EXPECT_EQ(sim::SqlFile(m_path).value("SELECT count() FROM call"), "1");
}

TEST_F(Zvtool, FailsWithoutDoingAnythingWhereItIsTold) {
    makeHistory();
    m_device.write("/Library/Zelvora/zvtool.fail", "");
    EXPECT_EQ(run("-i 2000"), failed);
    EXPECT_EQ(run("-l 300"), failed);
    EXPECT_EQ(run("-u"), failed);
    EXPECT_EQ(history().limit(), 100);
    EXPECT_EQ(history().lifetime(), 60);
}

TEST_F(Zvtool, FailsWithoutACallHistoryAndMakesNone) {
    EXPECT_EQ(run("-i 2000"), failed);
    EXPECT_FALSE(m_device.exists(callHistoryPath));
}

TEST_F(Zvtool, FailsOnAFileThatIsNoCallHistory) {
    m_device.write(callHistoryPath, "no database");
    EXPECT_EQ(run("-i 2000"), failed);
    EXPECT_EQ(m_device.read(callHistoryPath), "no database");
}

TEST_F(Zvtool, FailsOnAHistoryThatAnotherProcessHolds) {
    makeHistory();
    support::LockHolder holder(m_path, "DELETE FROM call");
    ASSERT_TRUE(holder.isHolding());
    EXPECT_EQ(run("-i 2000"), failed);
    EXPECT_TRUE(holder.release());
    EXPECT_EQ(property("call_history_limit"), "100");
}

TEST_F(Zvtool, RefusesArgumentsThatMeanNothing) {
    makeHistory();
    for (const char *arguments :
         {"", "-i", "-i many", "-i 20x", "-i 2000 3000", "-u 1", "-l", "-x 1", "2000"})
        EXPECT_EQ(run(arguments), usageError) << arguments;
    EXPECT_EQ(history().limit(), 100);
}

TEST_F(Zvtool, FindsItsDeviceByItsOwnPlaceWithoutBeingTold) {
    support::TemporaryFolder other;
    std::filesystem::create_directories(other.path() / "Library/Zelvora");
    std::filesystem::copy_file(ZV_TOOL, other.path() / "Library/Zelvora/zvtool");
    std::string path = other.file("var/wireless/Library/CallHistory/call_history.db");
    support::CallHistoryBuilder(path, zv::CallHistorySchema::keyValue).call("555-0101", 1425600000);
    FILE *tool = popen(("env -u DEVICE " + other.file("Library/Zelvora/zvtool") + " -i 700").c_str(), "r");
    EXPECT_EQ(pclose(tool), done);
    EXPECT_EQ(zv::CallHistory(path.c_str(), zv::CallHistorySchema::keyValue).limit(), 700);
}

} // namespace
