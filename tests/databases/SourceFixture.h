// Address books and call histories to load, and the records that come of them as text.
#pragma once

#include "databases/ContactSource.h"
#include "databases/RecentCallSource.h"
#include "support/AddressBookBuilder.h"
#include "support/CallHistoryBuilder.h"
#include "support/FaultVfs.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sources {

using Texts = std::vector<std::string>;

/// A record as "number|name|type"; "-" stands for a key that is missing.
[[nodiscard]] std::string recordText(NSDictionary *record);
[[nodiscard]] Texts recordTexts(NSArray *records);

/// Strips the marks of the labels that the phone knows, as the address-book framework does in English; a
/// label "none" cannot be localized.
[[nodiscard]] NSString *copyPlainLabel(NSString *label);

constexpr zv::ContactRules byFirstName = {zv::NameOrder::firstNameFirst, copyPlainLabel};
constexpr zv::ContactRules byLastName = {zv::NameOrder::lastNameFirst, copyPlainLabel};

/// A folder with the paths of one address book and one call history, of which nothing exists yet. The time
/// zone is UTC; `now` is 6 March 2015, 12:00.
class SourceTest : public testing::Test {
protected:
    SourceTest();

    /// The records of the address book.
    [[nodiscard]] Texts contacts(const zv::ContactRules &rules = byFirstName) const;

    /// The records of the call history, with those of the address book known.
    [[nodiscard]] Texts recentCalls(zv::CallHistorySchema schema) const;

    static constexpr auto coreData = zv::CallHistorySchema::coreData;
    static constexpr auto keyValue = zv::CallHistorySchema::keyValue;
    static constexpr double now = 1425643200;
    static constexpr double hour = 3600;

    support::FaultVfs m_disk;
    support::TemporaryFolder m_folder;
    std::string m_addressBook = m_folder.file("AddressBook.sqlitedb");
    std::string m_callHistory = m_folder.file("calls");
};

} // namespace sources
