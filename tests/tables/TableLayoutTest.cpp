#include "UIKit/TableLayout.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using host::RowPlace;
using host::SectionShape;
using host::TableLayout;

TableLayout twoSections() {
    TableLayout layout;
    layout.begin(10);
    layout.add({.header = 35, .footer = 17.5, .rows = 3, .rowHeight = 44});
    layout.add({.header = 17.5, .footer = 17.5, .rows = 2, .heights = {50, 60}});
    return layout;
}

TEST(TableLayout, WithoutSectionsItEndsWhereItBegins) {
    TableLayout layout;
    layout.begin(10);
    EXPECT_EQ(layout.bottom(), 10);
    EXPECT_TRUE(layout.rowsIn({0, 1000}).empty());
    EXPECT_FALSE(layout.rowAt(10));
}

TEST(TableLayout, SectionsFollowOneAnother) {
    const TableLayout layout = twoSections();
    EXPECT_EQ(layout.section(0).top, 10);
    EXPECT_EQ(layout.header(0).bottom, 45);
    EXPECT_EQ(layout.row({0, 2}).top, 45 + 88);
    EXPECT_EQ(layout.footer(0).top, 45 + 132);
    EXPECT_EQ(layout.section(1).top, layout.section(0).bottom);
    EXPECT_EQ(layout.row({1, 1}).top, layout.header(1).bottom + 50);
    EXPECT_EQ(layout.row({1, 1}).height(), 60);
    EXPECT_EQ(layout.bottom(), layout.row({1, 1}).bottom + 17.5);
}

TEST(TableLayout, FindsTheRowAtAHeight) {
    const TableLayout layout = twoSections();
    EXPECT_FALSE(layout.rowAt(44.9));
    EXPECT_EQ(layout.rowAt(45), (RowPlace{0, 0}));
    EXPECT_EQ(layout.rowAt(45 + 43.9), (RowPlace{0, 0}));
    EXPECT_EQ(layout.rowAt(45 + 44), (RowPlace{0, 1}));
    EXPECT_FALSE(layout.rowAt(45 + 132));
    EXPECT_EQ(layout.rowAt(layout.row({1, 1}).top), (RowPlace{1, 1}));
    EXPECT_FALSE(layout.rowAt(-1));
    EXPECT_FALSE(layout.rowAt(1e9));
}

TEST(TableLayout, FindsTheRowsThatAStretchMeets) {
    const TableLayout layout = twoSections();
    const auto rows = layout.rowsIn({45 + 100, layout.row({1, 0}).top + 1});
    EXPECT_EQ(rows, (std::vector<RowPlace>{{0, 2}, {1, 0}}));
}

TEST(TableLayout, KnowsWhichRowsThereAre) {
    const TableLayout layout = twoSections();
    EXPECT_TRUE(layout.has({1, 1}));
    EXPECT_FALSE(layout.has({1, 2}));
    EXPECT_FALSE(layout.has({2, 0}));
    EXPECT_FALSE(layout.has({0, -1}));
    EXPECT_FALSE(layout.has({-1, 0}));
    EXPECT_EQ(layout.rows(7), 0);
}

TEST(TableLayout, AnEndlessUniformSectionCostsNothing) {
    TableLayout layout;
    layout.begin(0);
    layout.add({.rows = std::numeric_limits<long>::max(), .rowHeight = 44});
    EXPECT_EQ(layout.rowsIn({44e9, 44e9 + 88}).size(), 2u);
    EXPECT_EQ(layout.rowAt(44e9), (RowPlace{0, 1'000'000'000}));
}

TEST(TableLayout, RowsWithoutHeightAreNeverShown) {
    TableLayout layout;
    layout.begin(0);
    layout.add({.rows = 1'000'000'000, .rowHeight = 0});
    layout.add({.rows = 3, .heights = {44, 0, 44}});
    EXPECT_EQ(layout.rowsIn({0, 1000}), (std::vector<RowPlace>{{1, 0}, {1, 2}}));
}

TEST(TableLayout, ASectionWithoutRowsStillHasItsHeaderAndFooter) {
    TableLayout layout;
    layout.begin(0);
    layout.add({.header = 35, .footer = 40});
    EXPECT_EQ(layout.bottom(), 75);
    EXPECT_EQ(layout.footer(0).top, 35);
    EXPECT_EQ(layout.sectionsIn({0, 1}), (std::pair<long, long>{0, 1}));
}

} // namespace
