// One batch of row and section changes of a table: checks it against the data source's counts and says where
// every old row went. Follows "Batch Insertion, Deletion, and Reloading of Rows and Sections" of Apple's
// Table View Programming Guide: deletions and reloads name places before the batch, insertions places after
// it.
#pragma once

#include "UIKit/TableLayout.h"

#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace host {

class TableUpdate {
public:
    void insertRow(RowPlace place);
    void deleteRow(RowPlace place);
    void reloadRow(RowPlace place) { m_reloadedRows.insert(place); }
    void moveRow(RowPlace from, RowPlace to);
    void insertSection(long section);
    void deleteSection(long section);
    void reloadSection(long section) { m_reloadedSections.insert(section); }

    [[nodiscard]] bool empty() const;

    /// Checks the batch against the rows of each section before and after it. Returns what is wrong with it,
    /// for a developer to read; an empty string when it fits.
    [[nodiscard]] std::string resolve(const std::vector<long> &before, const std::vector<long> &after);

    // After resolve() found nothing wrong.

    /// Where a section is now; none when it was deleted or reloaded.
    [[nodiscard]] std::optional<long> newSection(long before) const;
    /// Where a row is now, a reloaded one too; none when it was deleted or its section is not what it was.
    [[nodiscard]] std::optional<RowPlace> newPlace(RowPlace before) const;
    [[nodiscard]] bool reloads(RowPlace before) const { return m_reloadedRows.contains(before); }

private:
    void noteTwice(bool added, const std::string &what);
    [[nodiscard]] std::string checkSections(long before, long after) const;
    [[nodiscard]] std::string checkRowsBefore(const std::vector<long> &before) const;
    [[nodiscard]] std::string checkRowsAfter(const std::vector<long> &after) const;
    [[nodiscard]] std::string checkCounts(const std::vector<long> &before,
                                          const std::vector<long> &after) const;
    void mapSections(long before);
    void mapRows();

    std::set<RowPlace> m_insertedRows, m_deletedRows, m_reloadedRows;
    std::map<RowPlace, RowPlace> m_movedRows;
    std::set<RowPlace> m_moveTargets;
    std::set<long> m_insertedSections, m_deletedSections, m_reloadedSections;
    std::string m_askedTwice;
    std::map<long, long> m_sections;          ///< surviving sections, before to after
    std::map<long, std::vector<long>> m_left; ///< rows taken out of each surviving section, in order
    std::map<long, std::vector<long>> m_come; ///< rows put into each section after the batch, in order
};

} // namespace host
