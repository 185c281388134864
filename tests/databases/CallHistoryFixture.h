// Call histories to work on, and what can be seen in them afterwards.
#pragma once

#include "databases/CallHistory.h"
#include "support/CallHistoryBuilder.h"
#include "support/FaultVfs.h"
#include "support/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace calls {

constexpr auto coreData = zv::CallHistorySchema::coreData;
constexpr auto keyValue = zv::CallHistorySchema::keyValue;
constexpr double someMoment = 1425600000; // 6 March 2015, 00:00 UTC

/// A folder with the path of one history, of which nothing exists yet.
class CallHistoryTest : public testing::Test {
protected:
    [[nodiscard]] zv::CallHistory history(zv::CallHistorySchema schema = coreData) const {
        return {m_path.c_str(), schema};
    }

    /// A new history with three calls, whose Z_PK or ROWID are 1, 2 and 3.
    void makeHistory(zv::CallHistorySchema schema = coreData) const {
        support::CallHistoryBuilder(m_path, schema)
            .call("555-0101", someMoment)
            .call("555-0102", someMoment + 60)
            .call("555-0103", someMoment + 120);
    }

    /// Runs a script on the history, as the system would.
    void run(const std::string &sql) const { sim::SqlFile(m_path).script(sql); }
    [[nodiscard]] std::string value(const std::string &sql) const { return sim::SqlFile(m_path).value(sql); }
    [[nodiscard]] std::vector<std::string> rows(const std::string &sql) const {
        return sim::SqlFile(m_path).rows(sql);
    }

    /// What the extension has made in the history: types and names, sorted.
    [[nodiscard]] std::vector<std::string> extension() const {
        return rows("SELECT type, name FROM sqlite_master WHERE name LIKE 'ZV%' ORDER BY name");
    }
    [[nodiscard]] bool hasTrigger() const {
        return value("SELECT count() FROM sqlite_master WHERE type = 'trigger'") == "1";
    }

    support::FaultVfs m_disk;
    support::TemporaryFolder m_folder;
    std::string m_path = m_folder.file("CallHistory.storedata");
};

} // namespace calls
