#include "simulator/demo/FictionNumbers.h"

#include "simulator/demo/DemoPeople.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>

namespace {

std::string digitsOf(const std::string &number) {
    std::string digits;
    std::copy_if(number.begin(), number.end(), std::back_inserter(digits),
                 [](char c) { return isdigit(c) != 0; });
    return digits;
}

TEST(FictionNumbers, AreAllDifferent) {
    std::set<std::string> seen;
    for (std::size_t index = 0; index < sim::fictionNumberCount(); ++index)
        seen.insert(digitsOf(sim::fictionNumber(index)));
    EXPECT_EQ(seen.size(), sim::fictionNumberCount());
}

TEST(FictionNumbers, AreEnoughForALargeDevice) {
    EXPECT_GT(sim::fictionNumberCount(), 100000U);
}

TEST(FictionNumbers, StartOverAtTheEnd) {
    EXPECT_EQ(sim::fictionNumber(sim::fictionNumberCount()), sim::fictionNumber(0));
    EXPECT_EQ(sim::fictionNumber(0), "+44 7700 900000");
    EXPECT_EQ(sim::fictionNumber(1), "+1 (212) 555-0100");
}

// The digits with which every number kept for fiction begins that the invented people may have, national
// forms too.
bool isKeptForFiction(const std::string &number) {
    static const std::vector<std::string> beginnings = {
        "12125550",  "14155550",  "16045550",  "12065550",  "13125550",  "16175550",  "14165550", "2125550",
        "6045550",   "447700900", "442079460", "02079460",  "441314960", "441614960", "01614960", "01414960",
        "441414960", "441214960", "441174960", "01174960",  "01632960",  "3319900",   "33639980", "3363998",
        "3326191",   "3346571",   "3353649",   "61255504",  "61270104",  "61355500",  "61370102", "61755500",
        "61770100",  "61855507",  "493023125", "498999998", "494066969", "496990009", "492214710"};
    std::string digits = digitsOf(number);
    return std::any_of(beginnings.begin(), beginnings.end(),
                       [&](const std::string &beginning) { return digits.starts_with(beginning); });
}

TEST(FictionNumbers, AreAllThatTheInventedPeopleHave) {
    for (const sim::Person &person : sim::inventedPeople()) {
        for (const sim::LabelledValue &value : person.values) {
            bool isCode = value.value == "*99#";
            EXPECT_TRUE(value.property != sim::phoneProperty || isCode || isKeptForFiction(value.value))
                << value.value;
        }
    }
}

} // namespace
