#include "AddressBook/AddressBookFile.h"

#include "Book.h"
#include "host/EventLog.h"
#include "support/LockHolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using host::AddressBookState;
using host::readAddressBook;

TEST(AddressBookFile, GivesPeopleInTheOrderOfTheFile) {
    book::DeviceWithBook phone;
    phone.people.person("Ann", "Lee", "555-0100").person("Bob", std::nullopt, std::nullopt);
    const auto content = readAddressBook();
    EXPECT_EQ(content.state, AddressBookState::read);
    ASSERT_EQ(content.people.size(), 2u);
    EXPECT_EQ(content.people[0].id, 1);
    EXPECT_EQ(content.people[0].first, u"Ann");
    EXPECT_EQ(content.people[0].last, u"Lee");
    EXPECT_EQ(content.people[1].last, std::nullopt);
    EXPECT_TRUE(content.people[1].values.empty());
}

TEST(AddressBookFile, GivesNumbersWithTheirLabels) {
    book::DeviceWithBook phone;
    phone.people.person("Ann", "Lee", "555-0100").number("555-0101", "boat").number("555-0102", std::nullopt);
    const auto content = readAddressBook();
    const auto &numbers = content.people.at(0).values.at(3);
    ASSERT_EQ(numbers.size(), 3u);
    EXPECT_EQ(numbers[0].value, u"555-0100");
    EXPECT_EQ(numbers[0].label, u"_$!<Mobile>!$_");
    EXPECT_EQ(numbers[1].label, u"boat");
    EXPECT_EQ(numbers[2].label, std::nullopt);
}

TEST(AddressBookFile, ANumberWithoutAValueIsNone) {
    book::DeviceWithBook phone;
    phone.people.person("Ann", "Lee", std::nullopt).number(nullptr);
    EXPECT_TRUE(readAddressBook().people.at(0).values.empty());
}

TEST(AddressBookFile, ANumberOfNobodyIsLeftOut) {
    book::DeviceWithBook phone;
    phone.people.person("Ann", "Lee", "555-0100");
    phone.people.sql().run("UPDATE ABMultiValue SET record_id = 99");
    EXPECT_TRUE(readAddressBook().people.at(0).values.empty());
}

TEST(AddressBookFile, AnEmptyBookHasNoPeople) {
    const book::DeviceWithBook phone;
    const auto content = readAddressBook();
    EXPECT_EQ(content.state, AddressBookState::read);
    EXPECT_TRUE(content.people.empty());
}

TEST(AddressBookFile, AMissingFileIsAnEmptyBookAndNoEvent) {
    const support::TestDevice device;
    host::forgetEvents();
    EXPECT_EQ(readAddressBook().state, AddressBookState::missing);
    EXPECT_FALSE(device.exists(book::kPath));
    EXPECT_TRUE(host::events().empty());
}

TEST(AddressBookFile, AFileThatIsNoDatabaseIsDamaged) {
    const support::TestDevice device;
    device.write(book::kPath,
                 "This is no database, and long enough not to be taken for an empty one. It goes on.");
    host::forgetEvents();
    const auto content = readAddressBook();
    EXPECT_EQ(content.state, AddressBookState::damaged);
    EXPECT_THAT(content.reason, testing::HasSubstr("not a database"));
    EXPECT_THAT(host::eventTexts(host::EventKind::log),
                testing::ElementsAre(testing::HasSubstr("The address book cannot be read")));
}

TEST(AddressBookFile, ADatabaseWithoutPeopleIsDamaged) {
    book::DeviceWithBook phone;
    phone.people.sql().run("DROP TABLE ABPerson");
    EXPECT_EQ(readAddressBook().state, AddressBookState::damaged);
}

TEST(AddressBookFile, ADatabaseWithoutNumbersIsDamaged) {
    book::DeviceWithBook phone;
    phone.people.person("Ann", "Lee", "555-0100");
    phone.people.sql().run("DROP TABLE ABMultiValue");
    const auto content = readAddressBook();
    EXPECT_EQ(content.state, AddressBookState::damaged);
    EXPECT_TRUE(content.people.empty());
}

TEST(AddressBookFile, AFileOfNothingIsDamaged) {
    const support::TestDevice device;
    device.write(book::kPath, "");
    EXPECT_EQ(readAddressBook().state, AddressBookState::damaged);
}

TEST(AddressBookFile, AFolderInItsPlaceIsDamaged) {
    const support::TestDevice device;
    device.makeFolder(book::kPath);
    EXPECT_EQ(readAddressBook().state, AddressBookState::damaged);
}

TEST(AddressBookFile, ALockedFileIsLeftToItsHolder) {
    book::DeviceWithBook phone;
    phone.people.person("Ann", "Lee", "555-0100");
    support::LockHolder holder(phone.device.path(book::kPath), "UPDATE ABPerson SET First = 'Eve'");
    ASSERT_TRUE(holder.isHolding());
    EXPECT_EQ(readAddressBook().state, AddressBookState::locked);
    EXPECT_TRUE(holder.release());
    EXPECT_EQ(readAddressBook().people.at(0).first, u"Eve");
}

TEST(AddressBookFile, TextBeyondTheBasicPlaneAndIllFormedTextAreRead) {
    book::DeviceWithBook phone;
    phone.people.person("\U0001F600", "\xFF\xFE", std::nullopt);
    const auto content = readAddressBook();
    EXPECT_EQ(content.people.at(0).first, u"\U0001F600");
    EXPECT_TRUE(content.people.at(0).last.has_value());
}

TEST(AddressBookFile, ReadingChangesNothing) {
    book::DeviceWithBook phone;
    phone.people.person("Ann", "Lee", "555-0100");
    const std::string before = phone.device.read(book::kPath);
    (void)readAddressBook();
    EXPECT_EQ(phone.device.read(book::kPath), before);
}

} // namespace
