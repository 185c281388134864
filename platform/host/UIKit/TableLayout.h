// Where the rows, headers and footers of a table lie. Knows heights only: no views, no data source.
#pragma once

#include <optional>
#include <tuple>
#include <utility>
#include <vector>

namespace host {

/// A row of a table; the order is that of the rows on the screen.
struct RowPlace {
    long section = 0;
    long row = 0;
    bool operator==(const RowPlace &) const = default;
    bool operator<(const RowPlace &other) const {
        return std::tie(section, row) < std::tie(other.section, other.row);
    }
};

/// The heights of one section, in points.
struct SectionShape {
    double header = 0;
    double footer = 0;
    long rows = 0;
    double rowHeight = 0;        ///< of every row, when `heights` is empty
    std::vector<double> heights; ///< of each row, when they differ
};

/// A stretch from `top` down to, not including, `bottom`.
struct Span {
    double top = 0;
    double bottom = 0;
    [[nodiscard]] double height() const { return bottom - top; }
    [[nodiscard]] bool meets(const Span &other) const { return top < other.bottom && other.top < bottom; }
};

/// Sections under one another, between the table's own header and footer. Every answer about a uniform
/// section costs the same however many rows it has.
class TableLayout {
public:
    /// Rows lower than this are too thin to be seen and are never shown.
    static constexpr double kThinnest = 0.5;

    /// Starts anew; the first section begins at `top`.
    void begin(double top);
    void add(SectionShape shape);

    [[nodiscard]] long sections() const { return static_cast<long>(m_sections.size()); }
    /// Rows of a section; 0 for one that is not there.
    [[nodiscard]] long rows(long section) const;
    [[nodiscard]] bool has(RowPlace place) const;

    /// Where the last section ends.
    [[nodiscard]] double bottom() const;

    // The section, and with row() the row, must be there.
    [[nodiscard]] Span section(long section) const;
    [[nodiscard]] Span header(long section) const;
    [[nodiscard]] Span footer(long section) const;
    [[nodiscard]] Span row(RowPlace place) const;

    /// The row at a height, if there is one.
    [[nodiscard]] std::optional<RowPlace> rowAt(double y) const;
    /// The rows that a stretch of the table meets, from top to bottom.
    [[nodiscard]] std::vector<RowPlace> rowsIn(Span span) const;
    /// The sections that a stretch of the table meets, first and one past the last.
    [[nodiscard]] std::pair<long, long> sectionsIn(Span span) const;

private:
    struct Section {
        double top = 0;
        double header = 0, footer = 0;
        long rows = 0;
        double rowHeight = 0;
        std::vector<double> bottoms; ///< where each row ends, from the first row's top; empty when uniform
        double bottom = 0;

        [[nodiscard]] double rowsTop() const { return top + header; }
        [[nodiscard]] Span row(long row) const;
        [[nodiscard]] long firstRowEndingBelow(double y) const;
    };

    double m_top = 0;
    std::vector<Section> m_sections;
};

} // namespace host
