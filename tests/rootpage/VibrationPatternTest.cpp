#include "rootpage/VibrationPattern.h"

#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <utility>
#include <vector>

namespace {

/// The patterns of a phone with words of one size.
template<typename Integer>
class VibrationPatterns : public testing::Test {
protected:
    using Phases = std::vector<std::pair<bool, Integer>>;
    static constexpr Integer lowest = std::numeric_limits<Integer>::min();
    static constexpr Integer highest = std::numeric_limits<Integer>::max();

    static Phases pattern(Integer total, Integer on, Integer off) {
        Phases phases;
        for (const auto &phase : zv::VibrationPattern<Integer>(total, on, off))
            phases.emplace_back(phase.on, phase.milliseconds);
        return phases;
    }

    static Phases cycles(int count, Integer on, Integer off) {
        Phases phases;
        for (int cycle = 0; cycle < count; ++cycle) {
            phases.emplace_back(true, on);
            phases.emplace_back(false, off);
        }
        return phases;
    }
};

using Words = testing::Types<std::int32_t, std::int64_t>;
TYPED_TEST_SUITE(VibrationPatterns, Words);

#define EXPECT_PATTERN(total, on, off, ...)                                                                  \
    EXPECT_EQ(this->pattern(total, on, off), (typename TestFixture::Phases __VA_ARGS__))

TYPED_TEST(VibrationPatterns, TheDefaultsAreOneVibration) {
    EXPECT_PATTERN(500, 500, 0, {{true, 500}});
}

TYPED_TEST(VibrationPatterns, ARestThatFitsInThePauseIsDropped) {
    EXPECT_PATTERN(1000, 200, 300, {{true, 200}, {false, 300}, {true, 200}});
    EXPECT_PATTERN(1000, 300, 200, {{true, 300}, {false, 200}, {true, 300}});
    EXPECT_PATTERN(1000, 500, 500, {{true, 500}});
}

TYPED_TEST(VibrationPatterns, ARestThatFitsInOneVibrationIsPlayed) {
    EXPECT_PATTERN(1200, 300, 200, {{true, 300}, {false, 200}, {true, 300}, {false, 200}, {true, 200}});
    EXPECT_PATTERN(1100, 500, 500, {{true, 500}, {false, 500}, {true, 100}});
}

TYPED_TEST(VibrationPatterns, WithoutPausesVibrationsFollowEachOther) {
    auto expected = this->cycles(4, 200, 0);
    expected.emplace_back(true, 200);
    EXPECT_EQ(this->pattern(1000, 200, 0), expected);
}

TYPED_TEST(VibrationPatterns, ThereAreAtMostTenCycles) {
    EXPECT_EQ(this->pattern(100000, 100, 100), this->cycles(10, 100, 100));
}

TYPED_TEST(VibrationPatterns, ATotalOfOneVibrationIsPlayedWhole) {
    EXPECT_PATTERN(400, 400, 100, {{true, 400}});
}

TYPED_TEST(VibrationPatterns, ATotalShorterThanOneVibrationIsPlayedWhole) {
    EXPECT_PATTERN(150, 400, 100, {{true, 150}});
    EXPECT_PATTERN(1, 400, 100, {{true, 1}});
}

TYPED_TEST(VibrationPatterns, NoTotalIsAnEmptyPattern) {
    EXPECT_PATTERN(0, 500, 0, {});
    EXPECT_PATTERN(0, 0, 0, {});
    EXPECT_PATTERN(-5, 500, 100, {});
}

TYPED_TEST(VibrationPatterns, ANegativePauseEndsOnlyAfterTenCycles) {
    EXPECT_EQ(this->pattern(100, 50, -50), this->cycles(10, 50, -50));
}

TYPED_TEST(VibrationPatterns, ANegativeVibrationIsUsedAsItIs) {
    EXPECT_PATTERN(-10, -20, 30, {{true, -20}});
    EXPECT_EQ(this->pattern(100, -50, 20), this->cycles(10, -50, 20));
}

TYPED_TEST(VibrationPatterns, ExtremeDurationsWrapAround) {
    EXPECT_PATTERN(this->highest, this->lowest, this->highest, {{true, this->highest}});
    EXPECT_PATTERN(this->lowest, this->highest, 0, {{true, this->highest}, {false, 0}, {true, 1}});
}

TYPED_TEST(VibrationPatterns, SecondsAreCutToMilliseconds) {
    EXPECT_EQ(zv::milliseconds<TypeParam>(1.25F), 1250);
    EXPECT_EQ(zv::milliseconds<TypeParam>(0.0005F), 0);
    EXPECT_EQ(zv::milliseconds<TypeParam>(-0.0019F), -1);
    EXPECT_EQ(zv::milliseconds<TypeParam>(0.3F), 300);
}

TYPED_TEST(VibrationPatterns, SecondsThatDoNotFitBecomeTheNearestThatDo) {
    EXPECT_EQ(zv::milliseconds<TypeParam>(HUGE_VALF), this->highest);
    EXPECT_EQ(zv::milliseconds<TypeParam>(-HUGE_VALF), this->lowest);
    EXPECT_EQ(zv::milliseconds<TypeParam>(1e30F), this->highest);
    EXPECT_EQ(zv::milliseconds<TypeParam>(-1e30F), this->lowest);
    EXPECT_EQ(zv::milliseconds<TypeParam>(std::nanf("")), 0);
}

TEST(VibrationSeconds, TheWordSizeDecidesWhatFits) {
    EXPECT_EQ(zv::milliseconds<std::int32_t>(3000000.0F), 2147483647);
    EXPECT_EQ(zv::milliseconds<std::int64_t>(3000000.0F), 3000000000);
}

} // namespace
