#include "UIKit/TableLayout.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>

namespace host {
namespace {

bool allEqual(const std::vector<double> &values) {
    return std::adjacent_find(values.begin(), values.end(), std::not_equal_to<>()) == values.end();
}

} // namespace

void TableLayout::begin(double top) {
    m_top = top;
    m_sections.clear();
}

void TableLayout::add(SectionShape shape) {
    Section section;
    section.top = bottom();
    section.header = shape.header;
    section.footer = shape.footer;
    section.rows = shape.rows;
    section.rowHeight = shape.heights.empty() ? shape.rowHeight : shape.heights.front();
    if (!allEqual(shape.heights)) {
        std::partial_sum(shape.heights.begin(), shape.heights.end(), shape.heights.begin());
        section.bottoms = std::move(shape.heights);
    }
    const double rows = section.bottoms.empty() ? section.rowHeight * static_cast<double>(section.rows)
                                                : section.bottoms.back();
    section.bottom = section.rowsTop() + rows + section.footer;
    m_sections.push_back(std::move(section));
}

long TableLayout::rows(long section) const {
    return section < 0 || section >= sections() ? 0 : m_sections[static_cast<std::size_t>(section)].rows;
}

bool TableLayout::has(RowPlace place) const {
    return place.row >= 0 && place.row < rows(place.section);
}

double TableLayout::bottom() const {
    return m_sections.empty() ? m_top : m_sections.back().bottom;
}

Span TableLayout::section(long section) const {
    const Section &found = m_sections[static_cast<std::size_t>(section)];
    return {found.top, found.bottom};
}

Span TableLayout::header(long section) const {
    const Section &found = m_sections[static_cast<std::size_t>(section)];
    return {found.top, found.rowsTop()};
}

Span TableLayout::footer(long section) const {
    const Section &found = m_sections[static_cast<std::size_t>(section)];
    return {found.bottom - found.footer, found.bottom};
}

Span TableLayout::row(RowPlace place) const {
    return m_sections[static_cast<std::size_t>(place.section)].row(place.row);
}

Span TableLayout::Section::row(long row) const {
    const auto index = static_cast<std::size_t>(row);
    if (bottoms.empty()) {
        const double rowTop = rowsTop() + rowHeight * static_cast<double>(row);
        return {rowTop, rowTop + rowHeight};
    }
    return {rowsTop() + (index == 0 ? 0 : bottoms[index - 1]), rowsTop() + bottoms[index]};
}

long TableLayout::Section::firstRowEndingBelow(double y) const {
    const double inRows = y - rowsTop();
    if (!bottoms.empty())
        return std::upper_bound(bottoms.begin(), bottoms.end(), inRows) - bottoms.begin();
    if (inRows < 0)
        return 0;
    const double row = rowHeight > 0 ? std::floor(inRows / rowHeight) : static_cast<double>(rows);
    return row < static_cast<double>(rows) ? static_cast<long>(row) : rows;
}

std::optional<RowPlace> TableLayout::rowAt(double y) const {
    const auto found = rowsIn({y, std::nextafter(y, INFINITY)});
    return found.empty() ? std::nullopt : std::optional(found.front());
}

std::vector<RowPlace> TableLayout::rowsIn(Span span) const {
    std::vector<RowPlace> found;
    const auto [first, end] = sectionsIn(span);
    for (long s = first; s < end; ++s) {
        const Section &section = m_sections[static_cast<std::size_t>(s)];
        if (section.bottoms.empty() && section.rowHeight < kThinnest)
            continue;
        for (long r = section.firstRowEndingBelow(span.top); r < section.rows; ++r) {
            const Span row = section.row(r);
            if (row.top >= span.bottom)
                break;
            if (row.height() >= kThinnest)
                found.push_back({s, r});
        }
    }
    return found;
}

std::pair<long, long> TableLayout::sectionsIn(Span span) const {
    const auto first =
        std::partition_point(m_sections.begin(), m_sections.end(),
                             [&](const Section &section) { return section.bottom <= span.top; });
    const auto end = std::partition_point(first, m_sections.end(),
                                          [&](const Section &section) { return section.top < span.bottom; });
    return {first - m_sections.begin(), end - m_sections.begin()};
}

} // namespace host
