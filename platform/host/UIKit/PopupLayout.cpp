#include "UIKit/PopupLayout.h"

#include "UIKit/TextMeasure.h"

#include <algorithm>

namespace host {

namespace {

constexpr double alertWidth = 270, alertMargin = 16, fieldHeight = 30, rowHeight = 44;
constexpr double textGap = 4, textMargin = 18;
constexpr double sheetMargin = 8, sheetTitleMargin = 14;

/// Places blocks of text and rows from the top down.
class Column {
public:
    Column(double x, double width) : m_x(x), m_width(width) {}

    void skip(double height) { m_y += height; }

    Rect row(double height, double inset = 0) {
        const Rect rect{m_x + inset, m_y, m_width - 2 * inset, height};
        m_y += height;
        return rect;
    }

    Rect text(std::u16string_view text, const Face &face, double inset) {
        if (text.empty())
            return {};
        const Rect rect = row(textSize(text, face, m_width - 2 * inset).height, inset);
        m_y += textGap;
        return rect;
    }

    [[nodiscard]] double height() const { return m_y; }

private:
    double m_x, m_width, m_y = 0;
};

/// Indexes from the top of the screen down: as given, the cancel button last.
std::vector<std::size_t> orderOf(const PopupParts &parts) {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < parts.buttons.size(); i++) {
        if (std::ptrdiff_t(i) != parts.cancel)
            order.push_back(i);
    }
    if (parts.cancel >= 0 && std::size_t(parts.cancel) < parts.buttons.size())
        order.push_back(std::size_t(parts.cancel));
    return order;
}

bool fitsHalf(const PopupParts &parts) {
    const auto fits = [](std::u16string_view title) {
        return textWidth(title, {alertButtonPoints, Weight::bold}) <= alertWidth / 2 - textGap;
    };
    return parts.buttons.size() == 2 && std::ranges::all_of(parts.buttons, fits);
}

/// Side by side the cancel button is at the left.
std::vector<Rect> pair(const PopupParts &parts, const Rect &row) {
    const double half = row.width / 2;
    const Rect left{row.x, row.y, half, row.height}, right{row.x + half, row.y, half, row.height};
    return parts.cancel == 1 ? std::vector{right, left} : std::vector{left, right};
}

void move(PopupPlaces &places, double dx, double dy) {
    const auto shift = [&](Rect &rect) {
        rect.x += dx;
        rect.y += dy;
    };
    shift(places.frame), shift(places.title), shift(places.message);
    std::ranges::for_each(places.fields, shift);
    std::ranges::for_each(places.buttons, shift);
}

} // namespace

PopupPlaces alertPlaces(const PopupParts &parts, double windowWidth, double windowHeight) {
    PopupPlaces places;
    Column column(0, alertWidth);
    column.skip(textMargin);
    places.title = column.text(parts.title, {alertTitlePoints, Weight::bold}, alertMargin);
    places.message = column.text(parts.message, {alertMessagePoints, Weight::regular}, alertMargin);
    for (std::size_t i = 0; i < parts.fields; i++)
        places.fields.push_back(column.row(fieldHeight, alertMargin));
    column.skip(textMargin - textGap);
    places.buttons.resize(parts.buttons.size());
    if (fitsHalf(parts)) {
        places.buttons = pair(parts, column.row(rowHeight));
    } else {
        for (const std::size_t index : orderOf(parts))
            places.buttons[index] = column.row(rowHeight);
    }
    places.frame = {0, 0, alertWidth, column.height()};
    move(places, (windowWidth - alertWidth) / 2, upToHalfPoint((windowHeight - column.height()) / 2));
    return places;
}

PopupPlaces sheetPlaces(const PopupParts &parts, double windowWidth, double windowHeight) {
    PopupPlaces places;
    const double width = windowWidth - 2 * sheetMargin;
    Column column(0, width);
    if (!parts.title.empty()) {
        column.skip(sheetTitleMargin);
        places.title = column.text(parts.title, {sheetTitlePoints, Weight::regular}, alertMargin);
        column.skip(sheetTitleMargin - textGap);
    }
    places.buttons.resize(parts.buttons.size());
    for (const std::size_t index : orderOf(parts)) {
        if (std::ptrdiff_t(index) == parts.cancel)
            column.skip(sheetMargin);
        places.buttons[index] = column.row(rowHeight);
    }
    places.frame = {0, 0, width, column.height()};
    move(places, sheetMargin, windowHeight - sheetMargin - column.height());
    return places;
}

} // namespace host
