#include "simulator/demo/DemoDevice.h"

#include "databases/CallHistory.h"
#include "databases/ContactSource.h"
#include "databases/RecentCallSource.h"
#include "simulator/demo/DemoPeople.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

constexpr double now = 1425643200;
constexpr double month = 30 * 86400.0;

class DemoDevice : public testing::Test {
protected:
    void make(const sim::DemoOptions &options = {.now = now}) const {
        sim::makeDemoDevice(m_folder.path().string(), options);
    }

    [[nodiscard]] std::string addressBook() const {
        return m_folder.file("var/mobile/Library/AddressBook/AddressBook.sqlitedb");
    }
    [[nodiscard]] std::string coreData() const {
        return m_folder.file("var/mobile/Library/CallHistoryDB/CallHistory.storedata");
    }
    [[nodiscard]] std::string keyValue() const {
        return m_folder.file("var/wireless/Library/CallHistory/call_history.db");
    }
    [[nodiscard]] static std::string value(const std::string &path, const std::string &sql) {
        return sim::SqlFile(path).value(sql);
    }
    [[nodiscard]] static int number(const std::string &path, const std::string &sql) {
        return std::stoi(value(path, sql));
    }

    [[nodiscard]] NSArray *recentCalls(const std::string &path, zv::CallHistorySchema schema) const {
        NSMutableArray *records = [NSMutableArray array];
        const zv::ContactRules rules = {zv::NameOrder::firstNameFirst,
                                        [](NSString *label) -> NSString * { return [label copy]; }};
        zv::appendContacts(addressBook().c_str(), rules, records);
        m_contacts = [records count];
        zv::replaceWithRecentCalls(records, path.c_str(), schema, now);
        return records;
    }

    support::TemporaryFolder m_folder;
    mutable NSUInteger m_contacts = 0;
};

TEST_F(DemoDevice, HasPeopleOfManyKinds) {
    make();
    EXPECT_GE(number(addressBook(), "SELECT count() FROM ABPerson"), 60);
    const char *kinds[] = {
        "First IS NULL AND Last IS NOT NULL",
        "First IS NOT NULL AND Last IS NULL",
        "First IS NULL AND Last IS NULL AND Organization IS NOT NULL AND Kind = 1",
        "Last = '王'",
        "First = 'Peter' AND Last = '陈'",
        "First LIKE '%🚀%'",
        "ROWID NOT IN (SELECT record_id FROM ABMultiValue)",
        "ROWID IN (SELECT record_id FROM ABMultiValue GROUP BY record_id HAVING count() >= 4)",
        "ROWID IN (SELECT record_id FROM ABMultiValue WHERE label IS NULL)",
        "ROWID IN (SELECT record_id FROM ABMultiValue WHERE property = 4)",
        "ROWID IN (SELECT record_id FROM ABMultiValue WHERE value LIKE '%ext%')",
        "ROWID IN (SELECT record_id FROM ABMultiValue WHERE value LIKE '%,%')"};
    for (const char *kind : kinds)
        EXPECT_GE(number(addressBook(), std::string("SELECT count() FROM ABPerson WHERE ") + kind), 1)
            << kind;
}

TEST_F(DemoDevice, HasCallsOfTheLastMonthInBothForms) {
    make();
    EXPECT_EQ(value(coreData(), "SELECT count() FROM ZCALLRECORD"), "240");
    EXPECT_EQ(value(keyValue(), "SELECT count() FROM call"), "240");
    EXPECT_EQ(value(keyValue(), "SELECT count() FROM call WHERE date > " + std::to_string(now) +
                                    " OR date < " + std::to_string(now - month)),
              "0");
    EXPECT_EQ(number(coreData(), "SELECT round(min(ZDATE) + 978307200) FROM ZCALLRECORD"),
              number(keyValue(), "SELECT min(date) FROM call"));
    EXPECT_GT(number(keyValue(), "SELECT count() FROM call WHERE flags & 16"), 5);
}

TEST_F(DemoDevice, HasCallsThatFitThePeople) {
    make();
    NSArray *records = recentCalls(coreData(), zv::CallHistorySchema::coreData);
    int known = 0;
    for (NSDictionary *record in records)
        known += [record objectForKey:@"name"] ? 1 : 0;
    EXPECT_GT(m_contacts, 60U);
    EXPECT_GT(known, 10);
    EXPECT_GT([records count], NSUInteger(known));
    EXPECT_GT([recentCalls(keyValue(), zv::CallHistorySchema::keyValue) count], 10U);
}

TEST_F(DemoDevice, HasTheSystemsOwnLimitAndALifetime) {
    make();
    for (auto schema : {zv::CallHistorySchema::coreData, zv::CallHistorySchema::keyValue}) {
        std::string path = schema == zv::CallHistorySchema::coreData ? coreData() : keyValue();
        EXPECT_EQ(zv::CallHistory(path.c_str(), schema).limit(), 100);
        EXPECT_GT(zv::CallHistory(path.c_str(), schema).lifetime(), 3600);
    }
    EXPECT_EQ(number(coreData(), "SELECT ZTIMER_LIFETIME FROM ZCALLDBPROPERTIES"),
              number(keyValue(), "SELECT value FROM _SqliteDatabaseProperties WHERE key = 'timer_lifetime'"));
}

TEST_F(DemoDevice, KeepsTheSchemasTriggersContent) {
    make();
    EXPECT_EQ(value(addressBook(), "PRAGMA integrity_check"), "ok");
    EXPECT_EQ(value(addressBook(), "SELECT sum(number) FROM FirstSortSectionCount"),
              value(addressBook(), "SELECT count() FROM ABPerson"));
    EXPECT_EQ(value(addressBook(), "SELECT count() FROM ABPerson WHERE length(guid) = 36"),
              value(addressBook(), "SELECT count() FROM ABPerson"));
    EXPECT_EQ(value(coreData(), "SELECT Z_MAX FROM Z_PRIMARYKEY WHERE Z_NAME = 'CallRecord'"), "240");
}

TEST_F(DemoDevice, HasCatalogsToChooseFrom) {
    make();
    EXPECT_TRUE(std::filesystem::exists(m_folder.path() / "Library/Zelvora/Area/United Kingdom"));
    EXPECT_TRUE(std::filesystem::exists(m_folder.path() / "Library/Zelvora/Table/Stroke.txt"));
    EXPECT_TRUE(std::filesystem::exists(m_folder.path() / "Library/Zelvora/Table/Zhuyin.txt"));
    EXPECT_TRUE(std::filesystem::exists(m_folder.path() / "Library/Zelvora/T9/Pinyin.plist"));
}

TEST_F(DemoDevice, IsTheSameEachTimeItIsMade) {
    make();
    support::TemporaryFolder second;
    sim::makeDemoDevice(second.path().string(), {.now = now});
    for (const char *file : {"var/mobile/Library/AddressBook/AddressBook.sqlitedb",
                             "var/mobile/Library/CallHistoryDB/CallHistory.storedata",
                             "var/wireless/Library/CallHistory/call_history.db"})
        EXPECT_TRUE(support::fileBytes(m_folder.file(file)) == support::fileBytes(second.file(file))) << file;
}

TEST_F(DemoDevice, LeavesWhatIsThereAsItIs) {
    make();
    sim::SqlFile(addressBook()).script("DELETE FROM ABPerson");
    std::filesystem::remove(keyValue());
    support::writeFile(m_folder.file("Library/Zelvora/Area/China"), "mine");
    make();
    EXPECT_EQ(value(addressBook(), "SELECT count() FROM ABPerson"), "0");
    EXPECT_EQ(value(keyValue(), "SELECT count() FROM call"), "240");
    EXPECT_EQ(support::fileBytes(m_folder.file("Library/Zelvora/Area/China")), "mine");
}

TEST_F(DemoDevice, CanBeAsSmallOrLargeAsWanted) {
    make({.contacts = 3000, .calls = 2000, .now = now});
    EXPECT_EQ(value(addressBook(), "SELECT count() FROM ABPerson"), "3000");
    EXPECT_EQ(value(addressBook(), "SELECT min(First) FROM ABPerson WHERE ROWID = 1"), "Amelia");
    EXPECT_EQ(value(coreData(), "SELECT count() FROM ZCALLRECORD"), "2000");
    support::TemporaryFolder empty;
    sim::makeDemoDevice(empty.path().string(), {.contacts = 0, .calls = 5, .now = now});
    EXPECT_EQ(value(empty.file("var/mobile/Library/AddressBook/AddressBook.sqlitedb"),
                    "SELECT count() FROM ABPerson"),
              "0");
    EXPECT_EQ(
        value(empty.file("var/wireless/Library/CallHistory/call_history.db"), "SELECT count() FROM call"),
        "5");
}

TEST_F(DemoDevice, TakesTheToolInPlaceOfAnOlderOne) {
    support::writeFile(m_folder.file("program"), "older tool");
    sim::installTool(m_folder.path().string(), m_folder.file("program"));
    support::writeFile(m_folder.file("program"), "tool");
    sim::installTool(m_folder.path().string(), m_folder.file("program"));
    EXPECT_EQ(support::fileBytes(m_folder.file("Library/Zelvora/zvtool")), "tool");
}

} // namespace
