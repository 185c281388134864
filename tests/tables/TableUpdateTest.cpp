#include "UIKit/TableUpdate.h"

#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace {

using host::RowPlace;
using host::TableUpdate;
using testing::HasSubstr;

TEST(TableUpdate, AnInsertionMovesTheRowsBelowIt) {
    TableUpdate update;
    update.insertRow({0, 1});
    ASSERT_EQ(update.resolve({3}, {4}), "");
    EXPECT_EQ(update.newPlace({0, 0}), (RowPlace{0, 0}));
    EXPECT_EQ(update.newPlace({0, 1}), (RowPlace{0, 2}));
    EXPECT_EQ(update.newPlace({0, 2}), (RowPlace{0, 3}));
}

TEST(TableUpdate, ADeletionTakesItsRowAwayAndMovesTheOthersUp) {
    TableUpdate update;
    update.deleteRow({1, 0});
    ASSERT_EQ(update.resolve({1, 3}, {1, 2}), "");
    EXPECT_EQ(update.newPlace({1, 0}), std::nullopt);
    EXPECT_EQ(update.newPlace({1, 2}), (RowPlace{1, 1}));
    EXPECT_EQ(update.newPlace({0, 0}), (RowPlace{0, 0}));
}

TEST(TableUpdate, DeletionsNamePlacesBeforeAndInsertionsPlacesAfter) {
    TableUpdate update;
    update.insertRow({0, 2});
    update.deleteRow({0, 0});
    update.deleteRow({0, 1});
    ASSERT_EQ(update.resolve({4}, {3}), "");
    EXPECT_EQ(update.newPlace({0, 2}), (RowPlace{0, 0}));
    EXPECT_EQ(update.newPlace({0, 3}), (RowPlace{0, 1}));
}

TEST(TableUpdate, AReloadedRowKeepsItsPlaceAmongTheOthers) {
    TableUpdate update;
    update.reloadRow({0, 1});
    update.insertRow({0, 0});
    ASSERT_EQ(update.resolve({2}, {3}), "");
    EXPECT_TRUE(update.reloads({0, 1}));
    EXPECT_EQ(update.newPlace({0, 1}), (RowPlace{0, 2}));
}

TEST(TableUpdate, RowsFollowTheirSection) {
    TableUpdate update;
    update.insertSection(0);
    update.deleteSection(1);
    ASSERT_EQ(update.resolve({1, 2, 3}, {5, 1, 3}), "");
    EXPECT_EQ(update.newPlace({0, 0}), (RowPlace{1, 0}));
    EXPECT_EQ(update.newPlace({1, 0}), std::nullopt);
    EXPECT_EQ(update.newPlace({2, 2}), (RowPlace{2, 2}));
}

TEST(TableUpdate, AReloadedSectionMayHaveAnyNumberOfRows) {
    TableUpdate update;
    update.reloadSection(0);
    ASSERT_EQ(update.resolve({1, 2}, {7, 2}), "");
    EXPECT_EQ(update.newPlace({0, 0}), std::nullopt);
    EXPECT_EQ(update.newPlace({1, 1}), (RowPlace{1, 1}));
}

TEST(TableUpdate, AMovedRowCanChangeItsSection) {
    TableUpdate update;
    update.moveRow({0, 0}, {1, 1});
    ASSERT_EQ(update.resolve({2, 2}, {1, 3}), "");
    EXPECT_EQ(update.newPlace({0, 0}), (RowPlace{1, 1}));
    EXPECT_EQ(update.newPlace({0, 1}), (RowPlace{0, 0}));
    EXPECT_EQ(update.newPlace({1, 1}), (RowPlace{1, 2}));
}

TEST(TableUpdate, ACountThatDoesNotFitIsNamed) {
    TableUpdate update;
    update.insertRow({0, 0});
    EXPECT_THAT(update.resolve({3}, {3}),
                HasSubstr("section 0. The data source has 3 rows after the update; it had 3 before, 1 were "
                          "inserted, 0 deleted"));
}

TEST(TableUpdate, ACountThatChangedWithoutAChangeIsWrongToo) {
    TableUpdate update;
    update.reloadRow({0, 0});
    EXPECT_THAT(update.resolve({3}, {2}), HasSubstr("invalid number of rows in section 0"));
}

TEST(TableUpdate, ANumberOfSectionsThatDoesNotFitIsNamed) {
    TableUpdate update;
    update.deleteSection(0);
    EXPECT_THAT(update.resolve({1, 1}, {1, 1}), HasSubstr("invalid number of sections"));
}

TEST(TableUpdate, PlacesThatAreNotThereAreNamed) {
    const std::vector<long> rows{2};
    TableUpdate deletion, insertion, reload, section;
    deletion.deleteRow({0, 2});
    EXPECT_THAT(deletion.resolve(rows, {1}), HasSubstr("row 2 of section 0 is not there before"));
    insertion.insertRow({0, 3});
    EXPECT_THAT(insertion.resolve(rows, {3}), HasSubstr("row 3 of section 0 cannot be inserted"));
    reload.reloadRow({0, -1});
    EXPECT_THAT(reload.resolve(rows, rows), HasSubstr("row -1 of section 0 is not there before"));
    section.deleteSection(4);
    EXPECT_THAT(section.resolve(rows, rows), HasSubstr("section 4 cannot be deleted"));
}

TEST(TableUpdate, TheSameRowCannotBeDeletedTwice) {
    TableUpdate update;
    update.deleteRow({0, 0});
    update.deleteRow({0, 0});
    EXPECT_THAT(update.resolve({2}, {1}), HasSubstr("more than once"));
}

TEST(TableUpdate, ARowCannotBeDeletedAndReloaded) {
    TableUpdate update;
    update.deleteRow({0, 0});
    update.reloadRow({0, 0});
    EXPECT_THAT(update.resolve({2}, {1}), HasSubstr("both deleted and reloaded"));
}

TEST(TableUpdate, RowsDeletedTogetherWithTheirSectionAreNoMistake) {
    TableUpdate update;
    update.deleteSection(0);
    update.deleteRow({0, 0});
    EXPECT_EQ(update.resolve({1, 1}, {1}), "");
}

/// Rows with names of their own, changed at random together with a batch that says so.
class RandomTable {
public:
    explicit RandomTable(unsigned seed) : m_random(seed) {
        for (int section = 0; section < 3; ++section) {
            m_before.emplace_back();
            for (int row = below(6); row > 0; --row)
                m_before.back().push_back(m_next++);
        }
    }

    /// Deletes, then inserts, as a data source does before it tells its table.
    void change(TableUpdate &update) {
        m_after = m_before;
        for (long section = 0; section < 3; ++section) {
            auto &rows = m_after[std::size_t(section)];
            for (long row = long(rows.size()) - 1; row >= 0; --row) {
                if (below(3) != 0)
                    continue;
                update.deleteRow({section, row});
                rows.erase(rows.begin() + row);
            }
            for (long row = 0; row <= long(rows.size()); ++row) {
                if (below(3) != 0)
                    continue;
                rows.insert(rows.begin() + row, m_next++);
                update.insertRow({section, row});
            }
        }
    }

    /// Where each old row is now, found by its name.
    void expectFollowed(const TableUpdate &update) const {
        for (long section = 0; section < 3; ++section) {
            const auto &was = m_before[std::size_t(section)], &is = m_after[std::size_t(section)];
            for (long row = 0; row < long(was.size()); ++row) {
                const auto found = std::find(is.begin(), is.end(), was[std::size_t(row)]);
                const auto now = update.newPlace({section, row});
                ASSERT_EQ(now.has_value(), found != is.end());
                if (now)
                    EXPECT_EQ(*now, (RowPlace{section, found - is.begin()}));
            }
        }
    }

    static std::vector<long> counts(const std::vector<std::vector<int>> &sections) {
        std::vector<long> counts;
        for (const auto &rows : sections)
            counts.push_back(long(rows.size()));
        return counts;
    }
    [[nodiscard]] std::vector<long> before() const { return counts(m_before); }
    [[nodiscard]] std::vector<long> after() const { return counts(m_after); }

private:
    int below(int limit) { return int(m_random() % unsigned(limit)); }

    std::mt19937 m_random;
    int m_next = 0;
    std::vector<std::vector<int>> m_before, m_after;
};

TEST(TableUpdate, EveryRowIsFollowedThroughAnyBatch) {
    for (unsigned seed = 0; seed < 500; ++seed) {
        RandomTable table(seed);
        TableUpdate update;
        table.change(update);
        ASSERT_EQ(update.resolve(table.before(), table.after()), "") << "seed " << seed;
        table.expectFollowed(update);
    }
}

} // namespace
