#include "SourceFixture.h"

namespace sources {
namespace {

using support::AddressBookBuilder;
using support::CallHistoryBuilder;
using testing::ElementsAre;
using testing::IsEmpty;

// A moment (seconds since 1970) as a formatter of its own writes it.
std::string shortDate(double moment) {
    NSDateFormatter *formatter = [[[NSDateFormatter alloc] init] autorelease];
    [formatter setDateStyle:NSDateFormatterShortStyle];
    [formatter setTimeStyle:NSDateFormatterNoStyle];
    return [[formatter stringFromDate:[NSDate dateWithTimeIntervalSince1970:moment]] UTF8String];
}

class RecentCallSource : public SourceTest {
protected:
    [[nodiscard]] CallHistoryBuilder older() const { return {m_callHistory, keyValue}; }
    [[nodiscard]] CallHistoryBuilder newer() const { return {m_callHistory, coreData}; }
};

TEST_F(RecentCallSource, GivesOneRecordANumberDatedByItsNewestCall) {
    newer()
        .call("555 010 7777", now - 72 * hour)
        .call("5550107777", now - 48 * hour)
        .call("555 010 7777", now - 96 * hour);
    EXPECT_THAT(recentCalls(coreData), ElementsAre("5550107777|-|" + shortDate(now - 48 * hour)));
}

TEST_F(RecentCallSource, ListsTheNumberCalledLastFirst) {
    newer()
        .call("555-0101", now - 72 * hour)
        .call("555-0102", now - 24 * hour)
        .call("555-0103", now - 48 * hour)
        .call("555-0101", now - 96 * hour);
    EXPECT_THAT(recentCalls(coreData), ElementsAre("5550102|-|" + shortDate(now - 24 * hour),
                                                   "5550103|-|" + shortDate(now - 48 * hour),
                                                   "5550101|-|" + shortDate(now - 72 * hour)));
}

TEST_F(RecentCallSource, ShowsACallOf23HoursAgoByTimeAndOneOf25HoursAgoByDateInTheOlderHistory) {
    older().call("555-0101", now - 23 * hour).call("555-0102", now - 25 * hour);
    EXPECT_THAT(recentCalls(keyValue),
                ElementsAre("5550101|-|13:00", "5550102|-|" + shortDate(now - 25 * hour)));
}

TEST_F(RecentCallSource, ShowsBothByDateInTheCoreDataStore) {
    newer().call("555-0101", now - 23 * hour).call("555-0102", now - 25 * hour);
    EXPECT_THAT(recentCalls(coreData), ElementsAre("5550101|-|" + shortDate(now - 23 * hour),
                                                   "5550102|-|" + shortDate(now - 25 * hour)));
}

TEST_F(RecentCallSource, CountsADayAs86400Seconds) {
    older().call("555-0101", now - 86399).call("555-0102", now - 86400);
    EXPECT_THAT(recentCalls(keyValue), ElementsAre("5550101|-|12:00", "5550102|-|" + shortDate(now - 86400)));
}

TEST_F(RecentCallSource, ShowsACallInTheFutureByTime) {
    older().call("555-0101", now + 100 * hour);
    EXPECT_THAT(recentCalls(keyValue), ElementsAre("5550101|-|16:00"));
}

TEST_F(RecentCallSource, ShowsTimesAndDatesOnTheLocalClock) {
    [NSTimeZone setDefaultTimeZone:[NSTimeZone timeZoneWithName:@"Asia/Kathmandu"]]; // 5:45 ahead
    older().call("555-0101", now - hour).call("555-0102", now - 41 * hour);
    EXPECT_THAT(recentCalls(keyValue),
                ElementsAre("5550101|-|16:45", "5550102|-|" + shortDate(now - 41 * hour)));
    EXPECT_EQ(shortDate(now - 41 * hour), shortDate(now - 36 * hour));
}

TEST_F(RecentCallSource, ReusesTheContactsRecordWithTheDateInPlaceOfTheLabel) {
    AddressBookBuilder(m_addressBook)
        .person("Robert", "Miller", "+1 (555) 010-9999")
        .person("Anna", "Other", "1");
    newer().call("+15550109999", now - 48 * hour).call("555-0101", now - 72 * hour);
    EXPECT_THAT(recentCalls(coreData), ElementsAre("+15550109999|Robert Miller|" + shortDate(now - 48 * hour),
                                                   "5550101|-|" + shortDate(now - 72 * hour)));
}

TEST_F(RecentCallSource, ReusesTheVeryDictionaryOfTheContact) {
    AddressBookBuilder(m_addressBook).person("Robert", "Miller", "555-0101");
    newer().call("555-0101", now);
    NSMutableArray *records = [NSMutableArray array];
    zv::appendContacts(m_addressBook.c_str(), byFirstName, records);
    id contact = [records objectAtIndex:0];
    zv::replaceWithRecentCalls(records, m_callHistory.c_str(), coreData, now);
    EXPECT_EQ([records objectAtIndex:0], contact);
}

TEST_F(RecentCallSource, GivesRecordsThatBelongToTheListAlone) {
    AddressBookBuilder(m_addressBook).person("Robert", "Miller", "+1 (555) 010-9999");
    newer().call("+15550109999", now).call("+1 (555) 010-1111", now - 48 * hour);
    NSMutableArray *records = [NSMutableArray array];
    @autoreleasepool {
        zv::appendContacts(m_addressBook.c_str(), byFirstName, records);
        zv::replaceWithRecentCalls(records, m_callHistory.c_str(), coreData, now);
    }
    ASSERT_EQ([records count], 2U);
    for (NSDictionary *record in records) {
        EXPECT_EQ([record retainCount], 1U);
        EXPECT_EQ([[record objectForKey:@"number"] retainCount], 1U);
    }
}

TEST_F(RecentCallSource, GivesANumberThatTwoContactsHaveToTheOneCreatedEarliest) {
    AddressBookBuilder(m_addressBook)
        .person("Anna", "Earliest", "555-0101")
        .person("Bert", "Latest", "5550101");
    newer().call("555-0101", now);
    EXPECT_THAT(recentCalls(coreData), ElementsAre("5550101|Anna Earliest|" + shortDate(now)));
}

TEST_F(RecentCallSource, IgnoresListEntriesWithoutNumber) {
    newer().call("555-0101", now);
    NSMutableArray *records = [NSMutableArray arrayWithObject:[NSMutableDictionary dictionary]];
    zv::replaceWithRecentCalls(records, m_callHistory.c_str(), coreData, now);
    EXPECT_EQ(recordTexts(records).size(), 1U);
}

TEST_F(RecentCallSource, LeavesOutCallsWithTheFlagOfValue16InTheOlderHistory) {
    CallHistoryBuilder history = older();
    history.call("555-0101", now - 48 * hour).faceTimeCall("555-0102", now - 49 * hour);
    for (int flags : {0, 1, 8, 9, 1114121, 16, 17, 31, 65552})
        history.sql().run("INSERT INTO call (address, date, flags) VALUES (?, ?, ?)",
                          {"*" + std::to_string(flags), now - 50 * hour - flags, std::int64_t(flags)});
    history.sql().run("INSERT INTO call (address, date, flags) VALUES ('*77', ?, NULL)", {now});
    Texts numbers;
    for (const std::string &record : recentCalls(keyValue))
        numbers.push_back(record.substr(0, record.find('|')));
    EXPECT_THAT(numbers, ElementsAre("5550101", "*0", "*1", "*8", "*9", "*1114121"));
}

TEST_F(RecentCallSource, ShowsFaceTimeCallsOfTheCoreDataStore) {
    newer().faceTimeCall("555-0102", now);
    EXPECT_THAT(recentCalls(coreData), ElementsAre("5550102|-|" + shortDate(now)));
}

TEST_F(RecentCallSource, SkipsCallsWithoutDialableNumber) {
    newer()
        .call(nullptr, now)
        .call("", now)
        .call("anonymous", now)
        .call("someone@example.com", now)
        .call("#31#", now);
    EXPECT_THAT(recentCalls(coreData), ElementsAre("#31#|-|" + shortDate(now)));
}

TEST_F(RecentCallSource, ReadsNumbersOfAnySqlType) {
    newer()
        .call(std::int64_t(5550101), now)
        .call(5550102.5, now - hour)
        .call(sim::Blob{"+1 555 0103"}, now - 2 * hour);
    std::string date = shortDate(now);
    EXPECT_THAT(recentCalls(coreData),
                ElementsAre("5550101|-|" + date, "55501025|-|" + date, "+15550103|-|" + date));
}

TEST_F(RecentCallSource, LeavesTheTypeAsItWasForACallWithoutDate) {
    AddressBookBuilder(m_addressBook).person("Robert", "Miller", "555-0101");
    newer().call("555-0101", now).call("555-0102", now).sql().script("UPDATE ZCALLRECORD SET ZDATE = NULL");
    EXPECT_THAT(recentCalls(coreData),
                testing::UnorderedElementsAre("5550101|Robert Miller|mobile", "5550102|-|-"));
}

TEST_F(RecentCallSource, ReadsADateThatIsNoNumberAsZero) {
    CallHistoryBuilder history = newer();
    history.call("555-0101", now);
    for (const char *date :
         {"yesterday", "", "inf", "-infinity", "nan", "--447292800", "٤٤٧٢٩٢٨٠٠", "\xFF"}) {
        history.sql().run("UPDATE ZCALLRECORD SET ZDATE = ?", {std::string(date)});
        EXPECT_THAT(recentCalls(coreData), ElementsAre("5550101|-|" + shortDate(NSTimeIntervalSince1970)))
            << date;
    }
}

TEST_F(RecentCallSource, ReadsADateThatIsNoNumberInTheOlderHistoryAs1970) {
    older().call("555-0101", now).sql().script("UPDATE call SET date = 'yesterday'");
    EXPECT_THAT(recentCalls(keyValue), ElementsAre("5550101|-|" + shortDate(0)));
}

TEST_F(RecentCallSource, ReadsTheNumberThatADateTextBeginsWith) {
    std::string stored = std::to_string(now - 48 * hour);
    older().call("555-0101", now).sql().script("UPDATE call SET date = ' " + stored + " or so'");
    EXPECT_THAT(recentCalls(keyValue), ElementsAre("5550101|-|" + shortDate(now - 48 * hour)));
}

TEST_F(RecentCallSource, ReadsADateThatIsABlob) {
    std::string stored = std::to_string(now - 48 * hour);
    older().call("555-0101", now).sql().run("UPDATE call SET date = ?", {sim::Blob{stored}});
    EXPECT_THAT(recentCalls(keyValue), ElementsAre("5550101|-|" + shortDate(now - 48 * hour)));
}

TEST_F(RecentCallSource, SurvivesDatesThatNoCalendarHas) {
    for (const char *date : {"1e300", "-1e300", "9e999", "-9e999", "9223372036854775807", "1e18"}) {
        std::filesystem::remove(m_callHistory);
        newer().call("555-0101", now).sql().script("UPDATE ZCALLRECORD SET ZDATE = " + std::string(date));
        EXPECT_EQ(recentCalls(coreData).size(), 1U) << date;
    }
}

TEST_F(RecentCallSource, WritesEveryMomentAsAFormatterOfItsOwnDoes) {
    CallHistoryBuilder history = newer();
    Texts expected;
    for (const char *zone : {"Europe/London", "America/St_Johns", "Pacific/Apia", "America/Sao_Paulo"}) {
        [NSTimeZone setDefaultTimeZone:[NSTimeZone timeZoneWithName:[NSString stringWithUTF8String:zone]]];
        history.sql().script("BEGIN; DELETE FROM ZCALLRECORD");
        expected.clear();
        for (int index = 0; index < 500; ++index) {
            double moment = now - index * 17.3 * hour;
            history.call(std::to_string(index), moment);
            expected.push_back(std::to_string(index) + "|-|" + shortDate(moment));
        }
        history.sql().script("COMMIT");
        EXPECT_EQ(recentCalls(coreData), expected) << zone;
    }
}

TEST_F(RecentCallSource, ShowsTheHistoryOfAPhoneThatHasMovedOnToALaterSystem) {
    CallHistoryBuilder history = older();
    history.sql().script(
        "INSERT INTO call VALUES (453, '0000000001', 1403915956, 0, 17, -1, '', '001', '01', 1, 0, x'0000', "
        "NULL, 1),"
        "(1470, '+261000000003', 1408452238, 47, 0, -1, '', '001', '01', 1, 0, NULL, '', 1),"
        "(1478, '906', 1408529786, 0, 9, -1, '', '001', '01', 1, 0, NULL, '', 1),"
        "(1489, '+261000000009', 1408634263, 0, 1114121, 104, '', '001', '01', 1, 0, NULL, '', 1),"
        "(1481, '906', 1408538016, 0, 9, -1, '', '001', '01', 1, 0, NULL, '', 1)");
    EXPECT_THAT(recentCalls(keyValue),
                ElementsAre("+261000000009|-|" + shortDate(1408634263), "906|-|" + shortDate(1408538016),
                            "+261000000003|-|" + shortDate(1408452238)));
}

TEST_F(RecentCallSource, ReadsTheAddressesOfALaterStoreThatAreBlobs) {
    sim::SqlFile(m_callHistory)
        .script(
            "CREATE TABLE ZCALLRECORD (Z_PK INTEGER PRIMARY KEY, ZCALL_CATEGORY INTEGER, ZDATE TIMESTAMP, "
            "ZLOCATION VARCHAR, ZADDRESS BLOB);"
            "INSERT INTO ZCALLRECORD VALUES (1, 1, 447292800.5, NULL, CAST('+1 555 0100' AS BLOB))");
    EXPECT_THAT(recentCalls(coreData), ElementsAre("+15550100|-|" + shortDate(447292800.5 + 978307200)));
}

TEST_F(RecentCallSource, IsEmptyWithoutCalls) {
    AddressBookBuilder(m_addressBook).person("Robert", "Miller", "555-0101");
    (void)newer();
    EXPECT_THAT(recentCalls(coreData), IsEmpty());
}

TEST_F(RecentCallSource, DoesNotChangeTheHistory) {
    newer().call("555-0101", now);
    std::string before = support::fileBytes(m_callHistory);
    EXPECT_EQ(recentCalls(coreData).size(), 1U);
    EXPECT_EQ(support::fileBytes(m_callHistory), before);
}

} // namespace
} // namespace sources
