// How work grows with the databases, told by the file operations and by the processor's time that it takes.
#include "support/Growth.h"
#include "CallHistoryFixture.h"
#include "SourceFixture.h"

namespace {

constexpr int few = 2000;
constexpr int many = 10 * few;
constexpr double mostGrowth = 12;

class SourceGrowth : public sources::SourceTest {
protected:
    void makeBoth(int count) {
        std::filesystem::remove(m_addressBook);
        std::filesystem::remove(m_callHistory);
        support::AddressBookBuilder book(m_addressBook);
        support::CallHistoryBuilder history(m_callHistory, coreData);
        sim::SqlTransaction people(book.sql());
        sim::SqlTransaction calls(history.sql());
        for (int index = 0; index < count; ++index) {
            book.person("Robert", "Miller " + std::to_string(index), std::to_string(10000000 + index));
            history.call(std::to_string(10000000 + index), now - index);
        }
        people.commit();
        calls.commit();
    }

    // File reads of a load of so many rows.
    template<typename Load>
    double readsOf(int count, Load load) {
        makeBoth(count);
        m_disk.heal();
        EXPECT_EQ(load().size(), std::size_t(count));
        return double(m_disk.reads());
    }
};

TEST_F(SourceGrowth, TenTimesTheContactsTakeAtMostTwelveTimesTheReads) {
    auto load = [this] { return contacts(); };
    EXPECT_LE(readsOf(many, load), mostGrowth * readsOf(few, load));
}

TEST_F(SourceGrowth, TenTimesTheCallsTakeAtMostTwelveTimesTheReads) {
    auto load = [this] { return recentCalls(coreData); };
    EXPECT_LE(readsOf(many, load), mostGrowth * readsOf(few, load));
}

class SourceTimeGrowth : public sources::SourceTest {
protected:
    static constexpr int little = 1000, much = 10 * little;

    /// A folder's databases with so many people and a call with each, every one on another day.
    class Phone {
    public:
        explicit Phone(int count) {
            support::AddressBookBuilder book(m_addressBook);
            support::CallHistoryBuilder history(m_callHistory, coreData);
            sim::SqlTransaction people(book.sql());
            sim::SqlTransaction calls(history.sql());
            for (int index = 0; index < count; ++index) {
                book.person("Robert", "Miller " + std::to_string(index), std::to_string(10000000 + index));
                history.call(std::to_string(10000000 + index * 2), now - index * 24 * hour);
            }
            people.commit();
            calls.commit();
        }

        void loadContacts(NSMutableArray *records) const {
            zv::appendContacts(m_addressBook.c_str(), sources::byFirstName, records);
        }

        void loadRecentCalls(NSMutableArray *records) const {
            loadContacts(records);
            zv::replaceWithRecentCalls(records, m_callHistory.c_str(), coreData, now);
        }

    private:
        support::TemporaryFolder m_folder;
        std::string m_addressBook = m_folder.file("AddressBook.sqlitedb");
        std::string m_callHistory = m_folder.file("calls");
    };

    const Phone m_little{little}, m_much{much};
};

TEST_F(SourceTimeGrowth, TenTimesTheContactsTakeAtMostTwelveTimesTheTime) {
    EXPECT_TRUE(support::growsAtMost(
        mostGrowth, [this] { m_little.loadContacts([NSMutableArray array]); },
        [this] { m_much.loadContacts([NSMutableArray array]); }));
}

TEST_F(SourceTimeGrowth, TenTimesTheCallsTakeAtMostTwelveTimesTheTime) {
    EXPECT_TRUE(support::growsAtMost(
        mostGrowth, [this] { m_little.loadRecentCalls([NSMutableArray array]); },
        [this] { m_much.loadRecentCalls([NSMutableArray array]); }));
}

class CallHistoryGrowth : public calls::CallHistoryTest {
protected:
    void makeCalls(int count) {
        std::filesystem::remove(m_path);
        support::CallHistoryBuilder history(m_path, calls::coreData);
        sim::SqlTransaction transaction(history.sql());
        for (int index = 0; index < count; ++index)
            history.call("555-0101", calls::someMoment + index);
        transaction.commit();
    }

    // File reads of every operation of the control on a history of so many calls.
    long readsWith(int count) {
        makeCalls(count);
        m_disk.heal();
        EXPECT_TRUE(history().install(2000));
        EXPECT_EQ(history().limit(), 2000);
        history().setLifetime(300);
        EXPECT_EQ(history().lifetime(), 300);
        EXPECT_TRUE(history().uninstall());
        return m_disk.reads();
    }
};

TEST_F(CallHistoryGrowth, TheControlReadsNoMoreOfALargeHistoryThanOfASmallOne) {
    EXPECT_EQ(readsWith(many), readsWith(few));
}

} // namespace
