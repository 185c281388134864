#include "AddressBook/PersonNames.h"

#include <gtest/gtest.h>

namespace {

using host::compositeName;
using host::NameSettings;
using host::Person;
using host::sortName;

constexpr NameSettings kFirstFirst{.sortOrdering = 1, .nameFormat = 0};
constexpr NameSettings kLastFirst{.sortOrdering = 1, .nameFormat = 1};

Person named(std::optional<std::u16string> first, std::optional<std::u16string> last) {
    Person person;
    person.first = std::move(first);
    person.last = std::move(last);
    return person;
}

TEST(PersonNames, StandInTheOrderOfTheSetting) {
    const Person ann = named(u"Ann", u"Lee");
    EXPECT_EQ(compositeName(ann, kFirstFirst), u"Ann Lee");
    EXPECT_EQ(compositeName(ann, kLastFirst), u"Lee Ann");
}

TEST(PersonNames, AMissingOrEmptyNameLeavesNoGap) {
    EXPECT_EQ(compositeName(named(u"Ann", std::nullopt), kFirstFirst), u"Ann");
    EXPECT_EQ(compositeName(named(u"", u"Lee"), kLastFirst), u"Lee");
    EXPECT_EQ(compositeName(named(std::nullopt, std::nullopt), kFirstFirst), u"");
}

TEST(PersonNames, PrefixMiddleNameAndSuffixStandInTheirPlaces) {
    Person ann = named(u"Ann", u"Lee");
    ann.prefix = u"Dr.";
    ann.middle = u"B.";
    ann.suffix = u"Jr.";
    EXPECT_EQ(compositeName(ann, kFirstFirst), u"Dr. Ann B. Lee Jr.");
    EXPECT_EQ(compositeName(ann, kLastFirst), u"Dr. Lee Ann B. Jr.");
}

TEST(PersonNames, EastAsianNamesHaveTheLastNameFirstAndNoSpace) {
    for (const auto &person : {named(u"小明", u"王"), named(u"太郎", u"山田"), named(u"철수", u"김")}) {
        EXPECT_EQ(compositeName(person, kFirstFirst), *person.last + *person.first);
        EXPECT_EQ(host::nameFormat(person, kFirstFirst), 1);
        EXPECT_EQ(host::nameDelimiter(person), u"");
    }
    EXPECT_EQ(host::nameFormat(named(u"Ann", u"Lee"), kFirstFirst), 0);
    EXPECT_EQ(host::nameDelimiter(named(u"Ann", u"Lee")), u" ");
}

TEST(PersonNames, ACompanyIsShownByItsName) {
    Person company = named(u"Ann", u"Lee");
    company.organization = u"Example Ltd.";
    EXPECT_EQ(compositeName(company, kFirstFirst), u"Ann Lee");
    company.company = true;
    EXPECT_EQ(compositeName(company, kFirstFirst), u"Example Ltd.");
    EXPECT_EQ(sortName(company, kFirstFirst), u"Example Ltd.");
}

TEST(PersonNames, SomebodyWithoutNamesIsShownByTheOrganization) {
    Person person = named(std::nullopt, u"");
    person.organization = u"Example Ltd.";
    EXPECT_EQ(compositeName(person, kFirstFirst), u"Example Ltd.");
}

TEST(PersonNames, AreSortedByTheNameOfTheSetting) {
    const Person ann = named(u"Ann", u"Lee");
    EXPECT_EQ(sortName(ann, {.sortOrdering = 1}), u"Lee Ann");
    EXPECT_EQ(sortName(ann, {.sortOrdering = 0}), u"Ann Lee");
    EXPECT_EQ(sortName(named(u"Ann", std::nullopt), {.sortOrdering = 1}), u"Ann");
}

} // namespace
