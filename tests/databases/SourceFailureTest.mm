// Address books and call histories that cannot be read: the list stays as far as it was filled.
#include "SourceFixture.h"
#include "support/LockHolder.h"
#include "support/OrdinaryUser.h"

namespace sources {
namespace {

using support::AddressBookBuilder;
using support::CallHistoryBuilder;
using testing::ElementsAre;
using testing::IsEmpty;

class SourceFailure : public SourceTest {
protected:
    void makeBoth(int count = 1) const {
        AddressBookBuilder book(m_addressBook);
        CallHistoryBuilder history(m_callHistory, coreData);
        sim::SqlTransaction people(book.sql());
        sim::SqlTransaction calls(history.sql());
        for (int index = 0; index < count; ++index) {
            book.person("Robert", "Miller", std::to_string(1000 + index));
            history.call(std::to_string(1000 + index), now - index);
        }
        people.commit();
        calls.commit();
    }

    void expectNothingFromEither() const {
        EXPECT_THAT(contacts(), IsEmpty());
        EXPECT_THAT(recentCalls(coreData), IsEmpty());
        EXPECT_THAT(recentCalls(keyValue), IsEmpty());
    }
};

TEST_F(SourceFailure, FilesThatAreMissingGiveNothingAndAreMadeEmpty) {
    expectNothingFromEither();
    EXPECT_EQ(std::filesystem::file_size(m_addressBook), 0U);
    EXPECT_EQ(std::filesystem::file_size(m_callHistory), 0U);
}

TEST_F(SourceFailure, FoldersThatAreMissingGiveNothing) {
    m_addressBook = m_folder.file("missing/a");
    m_callHistory = m_folder.file("missing/c");
    expectNothingFromEither();
}

TEST_F(SourceFailure, FilesThatAreNoDatabasesGiveNothingAndKeepTheirBytes) {
    support::writeFile(m_addressBook, std::string(5000, 'x'));
    support::writeFile(m_callHistory, "short");
    expectNothingFromEither();
    EXPECT_EQ(support::fileBytes(m_addressBook), std::string(5000, 'x'));
    EXPECT_EQ(support::fileBytes(m_callHistory), "short");
}

TEST_F(SourceFailure, AContactListStaysAsItWas) {
    NSMutableArray *records = [NSMutableArray arrayWithObject:[NSMutableDictionary dictionary]];
    zv::appendContacts(m_folder.file("missing/a").c_str(), byFirstName, records);
    EXPECT_EQ([records count], 1U);
}

TEST_F(SourceFailure, ACallHistoryThatCannotBeOpenedLeavesNoContactsInTheList) {
    makeBoth();
    m_callHistory = m_folder.file("missing/c");
    EXPECT_THAT(recentCalls(coreData), IsEmpty());
}

TEST_F(SourceFailure, AnAddressBookThatCannotBeOpenedLeavesTheCallsWithoutNames) {
    makeBoth();
    m_addressBook = m_folder.file("missing/a");
    EXPECT_THAT(recentCalls(coreData), ElementsAre(testing::StartsWith("1000|-|")));
}

TEST_F(SourceFailure, TablesThatAreMissingGiveNothing) {
    makeBoth();
    sim::SqlFile(m_addressBook).script("DROP TABLE ABMultiValueLabel");
    sim::SqlFile(m_callHistory).script("DROP TABLE ZCALLRECORD");
    expectNothingFromEither();
}

TEST_F(SourceFailure, ColumnsThatAreMissingGiveNothing) {
    makeBoth();
    sim::SqlFile(m_addressBook)
        .script("DROP TABLE ABMultiValueLabel; CREATE TABLE ABMultiValueLabel (text); "
                "INSERT INTO ABMultiValueLabel VALUES ('x')");
    sim::SqlFile(m_callHistory).script("DROP TABLE ZCALLRECORD; CREATE TABLE ZCALLRECORD (ZDATE)");
    expectNothingFromEither();
}

TEST_F(SourceFailure, DatabasesThatAnotherProcessHoldsGiveNothingUntilTheyAreFree) {
    makeBoth();
    {
        support::LockHolder book(m_addressBook, "UPDATE ABPerson SET First = 'Bob'");
        support::LockHolder history(m_callHistory, "UPDATE ZCALLRECORD SET ZNAME = 'Bob'");
        ASSERT_TRUE(book.isHolding() && history.isHolding());
        expectNothingFromEither();
        EXPECT_TRUE(book.release());
        EXPECT_TRUE(history.release());
    }
    EXPECT_THAT(contacts(), ElementsAre("1000|Bob Miller|mobile"));
    EXPECT_EQ(recentCalls(coreData).size(), 1U);
}

TEST_F(SourceFailure, FilesThatMayNotBeReadGiveNothing) {
    makeBoth();
    std::filesystem::permissions(m_folder.path(), std::filesystem::perms(0755));
    std::filesystem::permissions(m_addressBook, std::filesystem::perms(0));
    std::filesystem::permissions(m_callHistory, std::filesystem::perms(0));
    support::OrdinaryUser user;
    expectNothingFromEither();
}

TEST_F(SourceFailure, FilesThatMayOnlyBeReadAreEnough) {
    makeBoth();
    std::filesystem::permissions(m_folder.path(), std::filesystem::perms(0555));
    std::filesystem::permissions(m_addressBook, std::filesystem::perms(0444));
    std::filesystem::permissions(m_callHistory, std::filesystem::perms(0444));
    support::OrdinaryUser user;
    EXPECT_THAT(contacts(), ElementsAre("1000|Robert Miller|mobile"));
    EXPECT_EQ(recentCalls(coreData).size(), 1U);
}

// Turns every so many bytes of a file in turn into others, then puts the file back.
template<typename Look>
void damageEach(const std::string &path, std::size_t step, Look look) {
    const std::string whole = support::fileBytes(path);
    for (std::size_t place = 0; place < whole.size(); place += step) {
        std::string damaged = whole;
        damaged[place] = static_cast<char>(~damaged[place]);
        support::writeFile(path, damaged);
        look();
    }
    support::writeFile(path, whole);
}

TEST_F(SourceFailure, DamageAnywhereNeverCrashes) {
    makeBoth(50);
    damageEach(m_callHistory, 61, [&] { EXPECT_LE(recentCalls(coreData).size(), 100U); });
    damageEach(m_addressBook, 331, [&] { EXPECT_LE(contacts().size(), 5000U); });
    EXPECT_EQ(recentCalls(coreData).size(), 50U);
}

TEST_F(SourceFailure, FilesCutAtAnyPageGiveTheRowsThatAreLeft) {
    makeBoth(300);
    const std::string book = support::fileBytes(m_addressBook), history = support::fileBytes(m_callHistory);
    const Texts all = contacts();
    for (std::size_t length = 0; length < book.size(); length += 4096) {
        support::writeFile(m_addressBook, book.substr(0, length));
        const Texts some = contacts();
        EXPECT_EQ(some, Texts(all.begin(), all.begin() + static_cast<long>(some.size()))) << length;
    }
    for (std::size_t length = 0; length < history.size(); length += 4096) {
        support::writeFile(m_callHistory, history.substr(0, length));
        EXPECT_LE(recentCalls(coreData).size(), 300U) << length;
    }
}

class SourceFault : public SourceFailure,
                    public testing::WithParamInterface<std::tuple<support::Fault, support::FaultSpan>> {};

TEST_P(SourceFault, LeavesTheListAsFarAsItWasFilledAndNothingOpen) {
    auto [fault, span] = GetParam();
    makeBoth(300);
    Texts all = contacts();
    bool failed = true;
    for (int number = 1; failed; ++number) {
        sqlite3_int64 memory = sqlite3_memory_used();
        m_disk.failOperation(number, fault, span);
        Texts some = contacts();
        bool firstFailed = m_disk.hasFailed();
        EXPECT_LE(recentCalls(coreData).size(), 300U);
        failed = m_disk.hasFailed();
        m_disk.heal();
        EXPECT_EQ(m_disk.openFiles(), 0);
        EXPECT_EQ(sqlite3_memory_used(), memory);
        EXPECT_EQ(some, Texts(all.begin(), all.begin() + static_cast<long>(some.size())));
        EXPECT_TRUE(firstFailed || some == all);
    }
    EXPECT_EQ(recentCalls(coreData).size(), 300U);
}

std::string faultName(const testing::TestParamInfo<std::tuple<support::Fault, support::FaultSpan>> &info) {
    return std::string(std::get<0>(info.param) == support::Fault::ioError ? "IoError" : "Busy") +
           (std::get<1>(info.param) == support::FaultSpan::once ? "Once" : "FromThenOn");
}

INSTANTIATE_TEST_SUITE_P(Disk, SourceFault,
                         testing::Combine(testing::Values(support::Fault::ioError, support::Fault::busy),
                                          testing::Values(support::FaultSpan::once,
                                                          support::FaultSpan::fromThenOn)),
                         faultName);

TEST_F(SourceFailure, ADatabaseThatIsHeldIsNotWaitedFor) {
    makeBoth();
    m_disk.failOperation(1, support::Fault::busy, support::FaultSpan::fromThenOn);
    EXPECT_THAT(contacts(), IsEmpty());
    EXPECT_LE(m_disk.attempts(), 2);
    EXPECT_THAT(recentCalls(coreData), IsEmpty());
    EXPECT_LE(m_disk.attempts(), 6);
}

TEST_F(SourceFailure, EachLoadOpensItsDatabaseOnceAndClosesIt) {
    makeBoth();
    m_disk.heal();
    EXPECT_EQ(contacts().size(), 1U);
    EXPECT_EQ(m_disk.databasesOpened(), 1);
    EXPECT_EQ(m_disk.openFiles(), 0);
    m_disk.heal();
    EXPECT_EQ(recentCalls(coreData).size(), 1U);
    EXPECT_EQ(m_disk.databasesOpened(), 2);
    EXPECT_EQ(m_disk.openFiles(), 0);
}

} // namespace
} // namespace sources
