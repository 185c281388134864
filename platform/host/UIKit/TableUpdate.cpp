#include "UIKit/TableUpdate.h"

#include <algorithm>

namespace host {
namespace {

std::string name(RowPlace place) {
    return "row " + std::to_string(place.row) + " of section " + std::to_string(place.section);
}

std::string name(long section) {
    return "section " + std::to_string(section);
}

long countIn(const std::set<RowPlace> &places, long section) {
    return static_cast<long>(std::count_if(places.begin(), places.end(),
                                           [section](RowPlace place) { return place.section == section; }));
}

bool isIn(const std::vector<long> &rows, RowPlace place) {
    return place.section >= 0 && place.section < static_cast<long>(rows.size()) && place.row >= 0 &&
           place.row < rows[static_cast<std::size_t>(place.section)];
}

/// The place that the `ordinal`th row not among the sorted `taken` ones has.
long placeBetween(long ordinal, const std::vector<long> &taken) {
    for (const long row : taken) {
        if (row > ordinal)
            break;
        ++ordinal;
    }
    return ordinal;
}

} // namespace

void TableUpdate::noteTwice(bool added, const std::string &what) {
    if (!added && m_askedTwice.empty())
        m_askedTwice = "Invalid update: " + what + " is asked for more than once.";
}

void TableUpdate::insertRow(RowPlace place) {
    noteTwice(m_insertedRows.insert(place).second, "the insertion of " + name(place));
}

void TableUpdate::deleteRow(RowPlace place) {
    noteTwice(m_deletedRows.insert(place).second, "the deletion of " + name(place));
}

void TableUpdate::moveRow(RowPlace from, RowPlace to) {
    noteTwice(m_movedRows.emplace(from, to).second, "the move of " + name(from));
    noteTwice(m_moveTargets.insert(to).second, "the move to " + name(to));
}

void TableUpdate::insertSection(long section) {
    noteTwice(m_insertedSections.insert(section).second, "the insertion of " + name(section));
}

void TableUpdate::deleteSection(long section) {
    noteTwice(m_deletedSections.insert(section).second, "the deletion of " + name(section));
}

bool TableUpdate::empty() const {
    return m_insertedRows.empty() && m_deletedRows.empty() && m_reloadedRows.empty() && m_movedRows.empty() &&
           m_insertedSections.empty() && m_deletedSections.empty() && m_reloadedSections.empty();
}

std::string TableUpdate::resolve(const std::vector<long> &before, const std::vector<long> &after) {
    std::string wrong = m_askedTwice;
    if (wrong.empty())
        wrong = checkSections(static_cast<long>(before.size()), static_cast<long>(after.size()));
    if (wrong.empty())
        wrong = checkRowsBefore(before);
    if (wrong.empty())
        wrong = checkRowsAfter(after);
    if (!wrong.empty())
        return wrong;
    mapSections(static_cast<long>(before.size()));
    mapRows();
    return checkCounts(before, after);
}

std::string TableUpdate::checkSections(long before, long after) const {
    for (const auto *sections : {&m_deletedSections, &m_reloadedSections}) {
        for (const long section : *sections) {
            if (section < 0 || section >= before)
                return "Invalid update: " + name(section) +
                       " cannot be deleted or reloaded, there are only " + std::to_string(before) +
                       " sections before the update.";
        }
    }
    for (const long section : m_insertedSections) {
        if (section < 0 || section >= after)
            return "Invalid update: " + name(section) + " cannot be inserted, there are only " +
                   std::to_string(after) + " sections after the update.";
    }
    const auto inserted = static_cast<long>(m_insertedSections.size());
    const auto deleted = static_cast<long>(m_deletedSections.size());
    if (after == before + inserted - deleted)
        return {};
    return "Invalid update: invalid number of sections. The data source has " + std::to_string(after) +
           " sections after the update; it had " + std::to_string(before) + " before, " +
           std::to_string(inserted) + " were inserted and " + std::to_string(deleted) + " deleted.";
}

std::string TableUpdate::checkRowsBefore(const std::vector<long> &before) const {
    const auto missing = [&](RowPlace place) {
        return "Invalid update: " + name(place) + " is not there before the update.";
    };
    for (const RowPlace place : m_deletedRows) {
        if (!isIn(before, place))
            return missing(place);
        if (m_reloadedRows.contains(place) || m_movedRows.contains(place))
            return "Invalid update: " + name(place) + " is both deleted and reloaded or moved.";
    }
    for (const RowPlace place : m_reloadedRows) {
        if (!isIn(before, place))
            return missing(place);
        if (m_movedRows.contains(place))
            return "Invalid update: " + name(place) + " is both reloaded and moved.";
    }
    for (const auto &[from, to] : m_movedRows) {
        if (!isIn(before, from))
            return missing(from);
    }
    return {};
}

std::string TableUpdate::checkRowsAfter(const std::vector<long> &after) const {
    for (const auto *places : {&m_insertedRows, &m_moveTargets}) {
        for (const RowPlace place : *places) {
            if (!isIn(after, place))
                return "Invalid update: " + name(place) +
                       " cannot be inserted, it is not there after the update.";
        }
    }
    for (const RowPlace place : m_moveTargets) {
        if (m_insertedRows.contains(place))
            return "Invalid update: " + name(place) + " is both inserted and moved to.";
    }
    return {};
}

void TableUpdate::mapSections(long before) {
    const std::vector<long> inserted(m_insertedSections.begin(), m_insertedSections.end());
    long ordinal = 0;
    for (long section = 0; section < before; ++section) {
        if (m_deletedSections.contains(section))
            continue;
        m_sections[section] = placeBetween(ordinal++, inserted);
    }
}

void TableUpdate::mapRows() {
    std::set<RowPlace> left = m_deletedRows, come = m_insertedRows;
    for (const auto &[from, to] : m_movedRows)
        left.insert(from);
    come.insert(m_moveTargets.begin(), m_moveTargets.end());
    for (const RowPlace place : left)
        m_left[place.section].push_back(place.row);
    for (const RowPlace place : come)
        m_come[place.section].push_back(place.row);
}

std::string TableUpdate::checkCounts(const std::vector<long> &before, const std::vector<long> &after) const {
    for (const auto &[old, now] : m_sections) {
        if (m_reloadedSections.contains(old))
            continue;
        const long had = before[static_cast<std::size_t>(old)], has = after[static_cast<std::size_t>(now)];
        const auto left = m_left.find(old);
        const auto come = m_come.find(now);
        const long out = left == m_left.end() ? 0 : static_cast<long>(left->second.size());
        const long in = come == m_come.end() ? 0 : static_cast<long>(come->second.size());
        if (has == had + in - out)
            continue;
        const long inserted = countIn(m_insertedRows, now), deleted = countIn(m_deletedRows, old);
        return "Invalid update: invalid number of rows in " + name(now) + ". The data source has " +
               std::to_string(has) + " rows after the update; it had " + std::to_string(had) + " before, " +
               std::to_string(inserted) + " were inserted, " + std::to_string(deleted) + " deleted, " +
               std::to_string(in - inserted) + " moved in and " + std::to_string(out - deleted) +
               " moved out.";
    }
    return {};
}

std::optional<long> TableUpdate::newSection(long before) const {
    const auto found = m_sections.find(before);
    if (found == m_sections.end() || m_reloadedSections.contains(before))
        return std::nullopt;
    return found->second;
}

std::optional<RowPlace> TableUpdate::newPlace(RowPlace before) const {
    if (const auto moved = m_movedRows.find(before); moved != m_movedRows.end())
        return moved->second;
    const auto section = newSection(before.section);
    if (!section || m_deletedRows.contains(before))
        return std::nullopt;
    long ordinal = before.row;
    if (const auto left = m_left.find(before.section); left != m_left.end())
        ordinal -=
            std::lower_bound(left->second.begin(), left->second.end(), before.row) - left->second.begin();
    const auto come = m_come.find(*section);
    return RowPlace{*section, come == m_come.end() ? ordinal : placeBetween(ordinal, come->second)};
}

} // namespace host
