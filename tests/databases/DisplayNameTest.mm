#include "databases/DisplayName.h"

#include <gtest/gtest.h>
#include <string>

namespace {

constexpr auto firstFirst = zv::NameOrder::firstNameFirst;
constexpr auto lastFirst = zv::NameOrder::lastNameFirst;

std::string name(const char *first, const char *last, zv::NameOrder order = firstFirst) {
    NSString *made = [zv::DisplayNames(order).copyName(first, last) autorelease];
    return made ? [made UTF8String] : "(none)";
}

TEST(DisplayName, HasASpaceFromFiveUnitsOn) {
    EXPECT_EQ(name("Li", "Na"), "LiNa");
    EXPECT_EQ(name("Li", "Ann"), "Li Ann");
    EXPECT_EQ(name("A", "Lee"), "ALee");
    EXPECT_EQ(name("A", "Leed"), "A Leed");
    EXPECT_EQ(name("Li", "Ming"), "Li Ming");
}

TEST(DisplayName, LeadsWithTheLastNameWhereTheUserSortsByIt) {
    EXPECT_EQ(name("Li", "Na", lastFirst), "NaLi");
    EXPECT_EQ(name("Robert", "Miller", lastFirst), "Miller Robert");
}

TEST(DisplayName, CountsUtf16UnitsNotBytesOrCharacters) {
    EXPECT_EQ(name("小明", "欧阳"), "小明欧阳");      // 4 units in 12 bytes
    EXPECT_EQ(name("小明明", "欧阳"), "小明明 欧阳"); // 5 units
    EXPECT_EQ(name("😀", "😀"), "😀😀");                  // 2 characters of 2 units
    EXPECT_EQ(name("😀", "😀a"), "😀 😀a");               // 5 units in 3 characters
    EXPECT_EQ(name("éé", "éé"), "éééé");              // 4 units in 8 bytes
}

TEST(DisplayName, OfOnePartIsThatPart) {
    EXPECT_EQ(name("Robert", nullptr), "Robert");
    EXPECT_EQ(name(nullptr, "Miller"), "Miller");
    EXPECT_EQ(name(nullptr, "Miller", lastFirst), "Miller");
    EXPECT_EQ(name(nullptr, nullptr), "(none)");
}

TEST(DisplayName, TakesAnEmptyPartAsPresent) {
    EXPECT_EQ(name("", ""), "");
    EXPECT_EQ(name("", nullptr), "");
    EXPECT_EQ(name("", "Anna"), "Anna");
    EXPECT_EQ(name("", "Bettina"), " Bettina");
    EXPECT_EQ(name("Bettina", ""), "Bettina ");
}

TEST(DisplayName, TakesAPartThatIsNotUtf8AsAbsent) {
    EXPECT_EQ(name("\xFF", "Miller"), "Miller");
    EXPECT_EQ(name("Robert", "\xC3"), "Robert");
    EXPECT_EQ(name("\xFF", "\xFF"), "(none)");
}

TEST(DisplayName, OfManyNamesIsNotMixedUp) {
    zv::DisplayNames names(firstFirst);
    NSString *longName = [names.copyName(std::string(1000, 'a').c_str(), "Miller") autorelease];
    NSString *shortName = [names.copyName("Bob", "Brown") autorelease];
    EXPECT_EQ([longName length], 1007U);
    EXPECT_STREQ([shortName UTF8String], "Bob Brown");
}

TEST(NameOrder, IsByFirstNameForOrdering0AndByLastNameForAnyOther) {
    EXPECT_EQ(zv::nameOrder(0), firstFirst);
    EXPECT_EQ(zv::nameOrder(1), lastFirst);
    EXPECT_EQ(zv::nameOrder(7), lastFirst);
}

} // namespace
