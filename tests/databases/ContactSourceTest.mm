#include "SourceFixture.h"

namespace sources {
namespace {

using support::AddressBookBuilder;
using testing::ElementsAre;
using testing::IsEmpty;

class ContactSource : public SourceTest {};

TEST_F(ContactSource, GivesEachNumberInDialableFormWithNameAndLabel) {
    AddressBookBuilder(m_addressBook).person("Robert", "Miller", "+1 (555) 010-9999");
    EXPECT_THAT(contacts(), ElementsAre("+15550109999|Robert Miller|mobile"));
}

TEST_F(ContactSource, ListsTheContactsCreatedLastFirst) {
    AddressBookBuilder(m_addressBook)
        .person("Anna", "First", "555-0101")
        .person("Bert", "Second", "555-0102")
        .person("Carl", "Third", "555-0103");
    EXPECT_THAT(contacts(), ElementsAre("5550103|Carl Third|mobile", "5550102|Bert Second|mobile",
                                        "5550101|Anna First|mobile"));
}

TEST_F(ContactSource, KeepsTheNumbersOfAContactTogether) {
    AddressBookBuilder(m_addressBook)
        .person("Anna", "First", "555-0101")
        .number("555-0109", sim::label::home)
        .number("555-0105", sim::label::work)
        .person("Bert", "Second", "555-0102");
    Texts all = contacts();
    ASSERT_EQ(all.size(), 4U);
    EXPECT_EQ(all.front(), "5550102|Bert Second|mobile");
    EXPECT_THAT(all, testing::UnorderedElementsAre("5550102|Bert Second|mobile", "5550101|Anna First|mobile",
                                                   "5550109|Anna First|home", "5550105|Anna First|work"));
}

TEST_F(ContactSource, DoesNotMergeEqualNumbers) {
    AddressBookBuilder(m_addressBook)
        .person("Anna", "First", "555-0101")
        .number("5550101", sim::label::home)
        .person("Bert", "Second", "555 0101");
    EXPECT_THAT(contacts(),
                testing::UnorderedElementsAre("5550101|Bert Second|mobile", "5550101|Anna First|mobile",
                                              "5550101|Anna First|home"));
}

TEST_F(ContactSource, SkipsANumberWithoutDialableCharacter) {
    AddressBookBuilder(m_addressBook)
        .person("Only", "Text", "ext.")
        .person("No", "Characters", "")
        .person("With", "Number", "ext. 12");
    EXPECT_THAT(contacts(), ElementsAre("12|With Number|mobile"));
}

TEST_F(ContactSource, SkipsANumberThatIsNull) {
    AddressBookBuilder(m_addressBook).person("No", "Number", {}).number(nullptr).number("555-0101");
    EXPECT_THAT(contacts(), ElementsAre("5550101|No Number|mobile"));
}

TEST_F(ContactSource, LeavesOutNumbersWithoutLabel) {
    AddressBookBuilder(m_addressBook)
        .person("Without", "Label", "555-0101", std::nullopt)
        .person("With", "Label", "555-0102", sim::label::home);
    EXPECT_THAT(contacts(), ElementsAre("5550102|With Label|home"));
}

TEST_F(ContactSource, LeavesOutWhatIsNoPhoneNumber) {
    AddressBookBuilder book(m_addressBook);
    book.person("Anna", "First", "555-0101");
    book.sql().run("INSERT INTO ABMultiValue (record_id, property, label, value, guid) "
                   "VALUES (1, 4, 1, '123@example.com', 'x'), (1, 5, 1, '456', 'y'), (99, 3, 1, '789', 'z')");
    EXPECT_THAT(contacts(), ElementsAre("5550101|Anna First|mobile"));
}

TEST_F(ContactSource, SkipsCompaniesNamesButNotTheirNumbers) {
    AddressBookBuilder(m_addressBook).company("Example Ltd", "020 7946 0001");
    EXPECT_THAT(contacts(), ElementsAre("02079460001|-|main"));
}

TEST_F(ContactSource, NamesAContactByThePartsThatItHas) {
    AddressBookBuilder(m_addressBook)
        .person({}, {}, "555-0101")
        .person({}, "Miller", "555-0102")
        .person("Robert", {}, "555-0103");
    Texts expected = {"5550103|Robert|mobile", "5550102|Miller|mobile", "5550101|-|mobile"};
    EXPECT_EQ(contacts(byFirstName), expected);
    EXPECT_EQ(contacts(byLastName), expected);
}

TEST_F(ContactSource, JoinsShortNamesWithoutASpaceInTheUsersOrder) {
    AddressBookBuilder(m_addressBook)
        .person("Li", "Na", "555-0101")
        .person("Li", "Ming", "555-0102")
        .person("芳", "王", "555-0103");
    EXPECT_THAT(contacts(byFirstName),
                ElementsAre("5550103|芳王|mobile", "5550102|Li Ming|mobile", "5550101|LiNa|mobile"));
    EXPECT_THAT(contacts(byLastName),
                ElementsAre("5550103|王芳|mobile", "5550102|Ming Li|mobile", "5550101|NaLi|mobile"));
}

TEST_F(ContactSource, ShowsALabelOfTheUsersOwnAsItIsAndNoneWhereItCannotBeLocalized) {
    AddressBookBuilder(m_addressBook)
        .person("Anna", "First", "555-0101", "Boat")
        .person("Bert", "Second", "555-0102", "none")
        .person("Carl", "Third", "555-0103", "");
    EXPECT_THAT(contacts(),
                ElementsAre("5550103|Carl Third|", "5550102|Bert Second|-", "5550101|Anna First|Boat"));
}

TEST_F(ContactSource, HasNoTypeForALabelWithoutText) {
    AddressBookBuilder book(m_addressBook);
    book.person("Anna", "First", "555-0101");
    book.sql().script("UPDATE ABMultiValueLabel SET value = NULL");
    EXPECT_THAT(contacts(), ElementsAre("5550101|Anna First|-"));
}

TEST_F(ContactSource, ReadsNumbersOfAnySqlType) {
    AddressBookBuilder(m_addressBook)
        .person("Integer", "Number", {})
        .number(std::int64_t(5550101))
        .person("Real", "Number", {})
        .number(5550102.5)
        .person("Blob", "Number", {})
        .number(sim::Blob{"+1 555 0103"});
    EXPECT_THAT(contacts(), ElementsAre("+15550103|Blob Number|mobile", "55501025|Real Number|mobile",
                                        "5550101|Integer Number|mobile"));
}

TEST_F(ContactSource, ReadsNamesAndLabelsOfAnySqlType) {
    sim::SqlFile(m_addressBook)
        .script("CREATE TABLE ABPerson (First, Last);"
                "CREATE TABLE ABMultiValue (record_id, property, label, value);"
                "CREATE TABLE ABMultiValueLabel (value);"
                "INSERT INTO ABPerson VALUES (12345, x'426F62'), (1.5, NULL);"
                "INSERT INTO ABMultiValue VALUES (1, 3, 1, '555-0101'), (2, 3, 2, '555-0102');"
                "INSERT INTO ABMultiValueLabel VALUES (7.5), (x'426F6174')");
    EXPECT_THAT(contacts(), ElementsAre("5550102|1.5|Boat", "5550101|12345 Bob|7.5"));
}

TEST_F(ContactSource, ReadsADatabaseThatIsWrittenInUtf16) {
    sim::SqlFile(m_addressBook)
        .script("PRAGMA encoding = 'UTF-16';"
                "CREATE TABLE ABPerson (First, Last);"
                "CREATE TABLE ABMultiValue (record_id, property, label, value);"
                "CREATE TABLE ABMultiValueLabel (value);"
                "INSERT INTO ABPerson VALUES ('Zoë 🚀', '王');"
                "INSERT INTO ABMultiValue VALUES (1, 3, 1, '电 555-0101');"
                "INSERT INTO ABMultiValueLabel VALUES ('Böot')");
    EXPECT_THAT(contacts(), ElementsAre("5550101|Zoë 🚀 王|Böot"));
}

TEST_F(ContactSource, TakesAPartThatIsNotValidUtf8AsAbsent) {
    AddressBookBuilder(m_addressBook)
        .person("Anna", "\xFF\xFE", "555-0101")
        .person("\xC3", "Second", "555-0102")
        .person("\xED\xA0\x80", "\x80", "555-0103")
        .person("Carl", "Third", "555-0104", "\xC0\xAF");
    EXPECT_THAT(contacts(), ElementsAre("5550104|Carl Third|-", "5550103|-|mobile", "5550102|Second|mobile",
                                        "5550101|Anna|mobile"));
}

TEST_F(ContactSource, CutsANumberAt255BytesAlsoInsideACharacter) {
    AddressBookBuilder(m_addressBook)
        .person("Long", "Digits", std::string(300, '7'))
        .person("Cut", "Character", std::string(254, '1') + "电2");
    EXPECT_THAT(contacts(), ElementsAre(std::string(254, '1') + "|Cut Character|mobile",
                                        std::string(255, '7') + "|Long Digits|mobile"));
}

TEST_F(ContactSource, KeepsNamesOfAnyLengthWhole) {
    std::string first(5000, 'a');
    std::string last(3000, 'b');
    AddressBookBuilder(m_addressBook).person(first, last, "555-0101").person("Short", "Name", "555-0102");
    EXPECT_THAT(contacts(),
                ElementsAre("5550102|Short Name|mobile", "5550101|" + first + " " + last + "|mobile"));
}

TEST_F(ContactSource, KeepsEmojiInNames) {
    AddressBookBuilder(m_addressBook).person("Zoë 🚀", "O’Neil", "555-0101");
    EXPECT_THAT(contacts(), ElementsAre("5550101|Zoë 🚀 O’Neil|mobile"));
}

TEST_F(ContactSource, LocalizesEachOfVeryManyLabels) {
    AddressBookBuilder book(m_addressBook);
    book.sql().script("BEGIN");
    for (int index = 0; index < 500; ++index)
        book.person("Anna", "First", "555-0101", "label " + std::to_string(index % 250));
    book.sql().script("COMMIT");
    Texts all = contacts();
    for (int index = 0; index < 500; ++index)
        EXPECT_EQ(all[499 - index], "5550101|Anna First|label " + std::to_string(index % 250));
}

TEST_F(ContactSource, AppendsToWhatTheListHolds) {
    AddressBookBuilder(m_addressBook).person("Anna", "First", "555-0101");
    NSMutableDictionary *before = [NSMutableDictionary dictionaryWithObject:@"1" forKey:@"number"];
    NSMutableArray *records = [NSMutableArray arrayWithObject:before];
    zv::appendContacts(m_addressBook.c_str(), byFirstName, records);
    EXPECT_THAT(recordTexts(records), ElementsAre("1|-|-", "5550101|Anna First|mobile"));
}

TEST_F(ContactSource, MakesRecordsThatCanBeChanged) {
    AddressBookBuilder(m_addressBook).person("Anna", "First", "555-0101");
    NSMutableArray *records = [NSMutableArray array];
    zv::appendContacts(m_addressBook.c_str(), byFirstName, records);
    NSMutableDictionary *record = [records objectAtIndex:0];
    ASSERT_TRUE([record isKindOfClass:[NSMutableDictionary class]]);
    [record setObject:@"3/6/15" forKey:@"type"];
    EXPECT_EQ(recordText(record), "5550101|Anna First|3/6/15");
}

TEST_F(ContactSource, GivesRecordsThatBelongToTheListAlone) {
    AddressBookBuilder(m_addressBook)
        .person("A long first name", "and a last one", "+1 (555) 010-9999", "A long label");
    NSMutableArray *records = [NSMutableArray array];
    @autoreleasepool {
        zv::appendContacts(m_addressBook.c_str(), byFirstName, records);
    }
    NSDictionary *record = [records objectAtIndex:0];
    EXPECT_EQ([record retainCount], 1U);
    for (NSString *key in @[ @"number", @"name", @"type" ])
        EXPECT_EQ([[record objectForKey:key] retainCount], 1U) << [key UTF8String];
}

TEST_F(ContactSource, GivesNothingForAnEmptyAddressBook) {
    AddressBookBuilder book(m_addressBook);
    EXPECT_THAT(contacts(), IsEmpty());
}

TEST_F(ContactSource, DoesNotChangeTheAddressBook) {
    AddressBookBuilder(m_addressBook).person("Anna", "First", "555-0101");
    std::string before = support::fileBytes(m_addressBook);
    EXPECT_EQ(contacts().size(), 1U);
    EXPECT_EQ(support::fileBytes(m_addressBook), before);
}

} // namespace
} // namespace sources
