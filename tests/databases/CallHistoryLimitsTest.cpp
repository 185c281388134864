#include "databases/CallHistoryLimits.h"

#include <gtest/gtest.h>
#include <set>

namespace {

const std::set<int> allowed = {100, 200,  300,  400,  500,  600,  700,  800,
                               900, 1000, 2000, 3000, 4000, 5000, 10000};

TEST(CallHistoryLimits, TheAllowedOnesAreTakenAndEveryOtherNumberIsTheDefault) {
    for (int limit = -100; limit <= 20000; ++limit)
        EXPECT_EQ(zv::allowedCallHistoryLimit(limit), allowed.count(limit) ? limit : 100) << limit;
}

TEST(CallHistoryLimits, NumbersAtTheEndsOfTheRangeAreTheDefault) {
    EXPECT_EQ(zv::allowedCallHistoryLimit(2147483647), 100);
    EXPECT_EQ(zv::allowedCallHistoryLimit(-2147483647 - 1), 100);
}

TEST(CallHistoryLimits, TheHistoryIsExtendedFrom101On) {
    EXPECT_FALSE(zv::extendsCallHistory(-1));
    EXPECT_FALSE(zv::extendsCallHistory(0));
    EXPECT_FALSE(zv::extendsCallHistory(100));
    EXPECT_TRUE(zv::extendsCallHistory(101));
    EXPECT_TRUE(zv::extendsCallHistory(10000));
}

} // namespace
