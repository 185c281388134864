#include "AddressBookUI/PeopleIndex.h"

#include "Book.h"
#include "host/Text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class PeopleIndex : public testing::Test {
protected:
    using Names = std::vector<std::string>;

    /// Letters and names under them.
    Names listed(host::NameSettings settings = {}) {
        read();
        Names names;
        for (const host::PeopleSection &section : host::peopleByLetter(people->people, settings)) {
            names.push_back("[" + host::utf8(host::string(section.letter)) + "]");
            for (const host::PersonRecord &record : section.people)
                names.push_back(name(record, settings));
        }
        return names;
    }
    Names found(NSString *query) {
        read();
        const host::NameSettings settings;
        Names names;
        for (const auto &record :
             host::peopleNamed(query, host::peopleByLetter(people->people, settings), settings))
            names.push_back(name(record, settings));
        return names;
    }

    book::DeviceWithBook phone;

private:
    void read() { people = [[HostABAddressBook new] autorelease]; }
    static std::string name(const host::PersonRecord &record, const host::NameSettings &settings) {
        return host::utf8(host::string(host::shownName(*record.get()->person, settings)));
    }
    HostABAddressBook *people = nil;
};

TEST_F(PeopleIndex, NobodyHasNoLetters) {
    EXPECT_THAT(listed(), IsEmpty());
}

TEST_F(PeopleIndex, PeopleStandUnderTheirLastNameOrFirstName) {
    phone.people.person("Bob", "Adams", std::nullopt).person("Ann", "Zimmer", std::nullopt);
    EXPECT_THAT(listed({.sortOrdering = 1}), ElementsAre("[A]", "Bob Adams", "[Z]", "Ann Zimmer"));
    EXPECT_THAT(listed({.sortOrdering = 0}), ElementsAre("[A]", "Ann Zimmer", "[B]", "Bob Adams"));
}

TEST_F(PeopleIndex, AccentsAndCaseDoNotMatter) {
    phone.people.person("Zoe", "Öhm", std::nullopt)
        .person("Ann", "olsen", std::nullopt)
        .person("Bob", "Oak", std::nullopt);
    EXPECT_THAT(listed(), ElementsAre("[O]", "Bob Oak", "Zoe Öhm", "Ann olsen"));
}

TEST_F(PeopleIndex, WhatHasNoLetterComesLast) {
    phone.people.person("007", std::nullopt, std::nullopt)
        .person("小明", "王", std::nullopt)
        .person(std::nullopt, std::nullopt, "555-0100")
        .person("Zoe", std::nullopt, std::nullopt);
    EXPECT_THAT(listed(), ElementsAre("[Z]", "Zoe", "[#]", "007", "王小明", "555-0100"));
}

TEST_F(PeopleIndex, GreekAndCyrillicNamesHaveTheirOwnLetters) {
    phone.people.person("Анна", "Иванова", std::nullopt).person("Nikos", "Άλφα", std::nullopt);
    EXPECT_THAT(listed(), ElementsAre("[Α]", "Nikos Άλφα", "[И]", "Анна Иванова"));
}

TEST_F(PeopleIndex, CompaniesStandUnderTheirName) {
    phone.people.company("Example Ltd.", "555-0100");
    EXPECT_THAT(listed(), ElementsAre("[E]", "Example Ltd."));
}

TEST_F(PeopleIndex, SearchFindsBeginningsOfWords) {
    phone.people.person("Ann", "Lee", std::nullopt).person("Joanna", "Leeson", std::nullopt);
    EXPECT_THAT(found(@"lee"), ElementsAre("Ann Lee", "Joanna Leeson"));
    EXPECT_THAT(found(@"ann"), ElementsAre("Ann Lee"));
    EXPECT_THAT(found(@"LEES jo"), ElementsAre("Joanna Leeson"));
    EXPECT_THAT(found(@"x"), IsEmpty());
    EXPECT_THAT(found(@"  "), ElementsAre("Ann Lee", "Joanna Leeson"));
}

TEST_F(PeopleIndex, SearchDoesNotMindAccents) {
    phone.people.person("Jörg", "Müller", std::nullopt);
    EXPECT_THAT(found(@"muller"), ElementsAre("Jörg Müller"));
    EXPECT_THAT(found(@"JÖ"), ElementsAre("Jörg Müller"));
}

} // namespace
