// A person who uses the phone: looks at the screen, taps what a label names, types, swipes, goes back. All
// tests of pages are written in these words.
#pragma once

#include "host/Element.h"
#include "host/Gesture.h"

#include <string>
#include <vector>

namespace support {

/// The elements of a tree, one a line, indented: what a failing test shows.
[[nodiscard]] std::string drawn(const host::Element &element);

/// Names are labels as they are read on the screen; an identifier does too. What is not on the screen is
/// looked for by scrolling the front table. A name that cannot be found, or a thing that does not take the
/// gesture, fails the test with a drawing of the screen.
class Person {
public:
    /// Title in the navigation bar in front.
    [[nodiscard]] std::string title() const;
    /// True when an element of the front page, alert or sheet has this label or value.
    [[nodiscard]] bool sees(const std::string &text) const;
    /// Labels of the rows of the front table, from the top to the end, found by scrolling.
    [[nodiscard]] std::vector<std::string> rows() const;
    /// The row with this name; an empty element, and a failure, without one.
    [[nodiscard]] host::Element row(const std::string &name) const;
    /// What stands at the right of a row, or is set in its control.
    [[nodiscard]] std::string valueOf(const std::string &name) const;
    /// Labels of the buttons in the navigation bar, or of the alert or sheet in front.
    [[nodiscard]] std::vector<std::string> buttons() const;
    /// The alert or sheet in front; an element without type where there is none.
    [[nodiscard]] host::Element question() const;
    /// The text field with this label, placeholder or row name.
    [[nodiscard]] host::Element field(const std::string &name) const;
    /// The field that has the focus; an element without type where none has.
    [[nodiscard]] host::Element focusedField() const;

    /// Taps a row, button, link or field. A row with a switch is switched.
    void tap(const std::string &name) const;
    /// Taps a button that is no row: of a bar, an alert, a sheet, a swiped row.
    void tapButton(const std::string &name) const;
    /// Chooses a segment of the segmented control in the row.
    void choose(const std::string &rowName, const std::string &segment) const;
    /// Drags the slider of the row (of the first slider, with an empty name).
    void slide(const std::string &rowName, double amount) const;

    /// Focuses the field and adds to its text.
    void type(const std::string &fieldName, const std::string &text) const;
    /// Focuses the field and puts this in place of its text.
    void retype(const std::string &fieldName, const std::string &text) const;
    void pressReturn() const;

    /// Answers the alert or sheet in front.
    void answer(const std::string &button) const;
    void tapOutside() const;

    void swipe(const std::string &rowName) const;
    void closeSwipe() const;
    /// In editing mode: taps the red minus of a row.
    void tapMinus(const std::string &rowName) const;
    /// Taps the Delete button that a swipe or a minus has opened.
    void confirmDelete() const;

    void scrollTo(double offset) const;
    void back() const;
    void backSwipe() const;
    void giveUpBackSwipe() const;

    /// Tries a tap on a row without failing; what came of it.
    [[nodiscard]] host::Outcome tryTap(const std::string &name) const;
};

} // namespace support
