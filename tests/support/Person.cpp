#include "support/Person.h"

#include "host/Control.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sstream>

namespace support {

namespace {

using host::Element;
using host::Gesture;
using host::GestureKind;

bool isNamed(const Element &element, const std::string &name) {
    return !name.empty() && (element.label == name || element.identifier == name);
}

bool isQuestion(const Element &element) {
    return element.type == "Alert" || element.type == "Sheet";
}

bool isField(const Element &element) {
    return element.type == "TextField" || element.type == "SecureTextField" || element.type == "TextView" ||
           element.type == "SearchField";
}

bool takesTaps(const Element &element) {
    return element.type == "Cell" || element.type == "Button" || element.type == "Switch" || isField(element);
}

/// What a person can reach: the question in front, or the whole screen.
Element front() {
    Element screen = host::screen();
    const Element *question = screen.find(isQuestion);
    return question ? *question : screen;
}

const Element *frontTable(const Element &screen) {
    const auto tables = screen.all("Table");
    return tables.empty() ? nullptr : tables.back();
}

/// The rows that lie wholly or partly on the screen.
template<typename Accept>
Element lookFor(const Accept &accept) {
    const Element screen = front();
    const Element *found = screen.find(accept);
    return found ? *found : Element{};
}

/// As lookFor, scrolling the front table from its top to its end.
template<typename Accept>
Element lookEverywhere(const Accept &accept) {
    Element found = lookFor(accept);
    const Element screen = front();
    const Element *table = isQuestion(screen) ? nullptr : frontTable(screen);
    if (!found.type.empty() || !table)
        return found;
    const double height = std::max(table->rect.height / 2, 44.0);
    const double end = table->amount("contentHeight");
    for (double offset = 0; offset < end + height && found.type.empty(); offset += height) {
        (void)host::perform({.kind = GestureKind::scroll, .number = table->number, .amount = offset});
        found = lookFor(accept);
    }
    return found;
}

void draw(const Element &element, int depth, std::ostream &to) {
    to << std::string(2 * static_cast<std::size_t>(depth), ' ') << element.type;
    if (!element.identifier.empty())
        to << " #" << element.identifier;
    if (!element.label.empty())
        to << " \"" << element.label << '"';
    if (!element.value.empty())
        to << " = \"" << element.value << '"';
    to << (element.enabled ? "" : " disabled") << (element.selected ? " selected" : "") << " ("
       << element.rect.x << ' ' << element.rect.y << ' ' << element.rect.width << ' ' << element.rect.height
       << ")\n";
    for (const Element &child : element.children)
        draw(child, depth + 1, to);
}

void failed(const std::string &what) {
    ADD_FAILURE() << what << "; the screen:\n" << drawn(host::screen());
}

void act(const Element &on, Gesture gesture, const std::string &name) {
    if (on.type.empty()) {
        failed("nothing is called \"" + name + '"');
        return;
    }
    gesture.number = on.number;
    gesture.part = on.part;
    if (host::perform(gesture) != host::Outcome::done)
        failed('"' + name + "\" did not take the gesture");
}

void act(Gesture gesture, const std::string &what) {
    if (host::perform(gesture) != host::Outcome::done)
        failed(what + " was not possible");
}

/// The switch of a row that has one, else the element itself.
Element tapTarget(const Element &element) {
    const auto switches = element.all("Switch");
    return element.type == "Cell" && !switches.empty() ? *switches.front() : element;
}

Element rowNamed(const std::string &name) {
    return lookEverywhere(
        [&](const Element &element) { return element.type == "Cell" && isNamed(element, name); });
}

/// In a row: the control of this type. A row without a name of its own is passed by its control's name.
Element controlOf(const std::string &rowName, const std::string &type) {
    const Element row = lookEverywhere([&](const Element &element) {
        return element.type == "Cell" && !element.all(type).empty() &&
               (rowName.empty() || isNamed(element, rowName) || isNamed(*element.all(type).front(), rowName));
    });
    const auto controls = row.all(type);
    return controls.empty() ? Element{} : *controls.front();
}

} // namespace

std::string drawn(const Element &element) {
    std::ostringstream text;
    draw(element, 0, text);
    return text.str();
}

std::string Person::title() const {
    const Element screen = host::screen();
    const auto bars = screen.all("NavigationBar");
    if (bars.empty())
        return "";
    const Element *title = bars.back()->find([](const Element &element) {
        return element.type == "StaticText" && element.text("role") == "title";
    });
    return title ? title->label : "";
}

bool Person::sees(const std::string &text) const {
    return !lookFor([&](const Element &element) {
                return isNamed(element, text) || element.value == text;
            }).type.empty();
}

std::vector<std::string> Person::rows() const {
    std::vector<std::string> labels;
    std::vector<std::pair<double, double>> seen;
    (void)host::perform({.kind = GestureKind::scroll, .amount = 0});
    for (double offset = 0;;) {
        const Element screen = host::screen();
        const Element *table = frontTable(screen);
        if (!table)
            return labels;
        for (const Element *cell : table->all("Cell")) {
            const std::pair place(cell->amount("section"), cell->amount("row"));
            if (std::find(seen.begin(), seen.end(), place) != seen.end())
                continue;
            seen.push_back(place);
            labels.push_back(cell->label);
        }
        offset += table->rect.height / 2;
        if (offset >= table->amount("contentHeight"))
            return labels;
        (void)host::perform({.kind = GestureKind::scroll, .number = table->number, .amount = offset});
    }
}

Element Person::row(const std::string &name) const {
    Element found = rowNamed(name);
    if (found.type.empty())
        failed("no row is called \"" + name + '"');
    return found;
}

std::string Person::valueOf(const std::string &name) const {
    const Element found = row(name);
    for (const char *type : {"Switch", "Slider", "TextField", "SecureTextField", "TextView"}) {
        const auto controls = found.all(type);
        if (!controls.empty())
            return controls.front()->value;
    }
    for (const Element *segment : found.all("Button")) {
        if (segment->selected)
            return segment->label;
    }
    return found.value;
}

std::vector<std::string> Person::buttons() const {
    const Element screen = front();
    std::vector<std::string> labels;
    const auto bars = screen.all("NavigationBar");
    const Element *place = isQuestion(screen) ? &screen : bars.empty() ? nullptr : bars.back();
    if (!place)
        return labels;
    for (const Element *button : place->all("Button"))
        labels.push_back(button->label);
    return labels;
}

Element Person::question() const {
    Element screen = front();
    return isQuestion(screen) ? screen : Element{};
}

Element Person::field(const std::string &name) const {
    const auto fits = [&](const Element &element) {
        return isField(element) && (isNamed(element, name) || element.text("placeholder") == name);
    };
    Element found = lookEverywhere(fits);
    if (found.type.empty()) {
        for (const char *type : {"TextField", "SecureTextField", "TextView"}) {
            if (found.type.empty())
                found = controlOf(name, type);
        }
    }
    if (found.type.empty())
        failed("no field is called \"" + name + '"');
    return found;
}

Element Person::focusedField() const {
    return lookFor([](const Element &element) { return isField(element) && element.flag("focused"); });
}

void Person::tap(const std::string &name) const {
    const auto fits = [&](const Element &element) { return takesTaps(element) && isNamed(element, name); };
    act(tapTarget(lookEverywhere(fits)), {.kind = GestureKind::tap}, name);
}

host::Outcome Person::tryTap(const std::string &name) const {
    const auto fits = [&](const Element &element) { return takesTaps(element) && isNamed(element, name); };
    const Element found = tapTarget(lookEverywhere(fits));
    if (found.type.empty())
        return host::Outcome::notThere;
    return host::perform({.kind = GestureKind::tap, .number = found.number, .part = found.part});
}

void Person::tapButton(const std::string &name) const {
    act(lookFor([&](const Element &element) { return element.type == "Button" && isNamed(element, name); }),
        {.kind = GestureKind::tap}, name);
}

void Person::choose(const std::string &rowName, const std::string &segment) const {
    const Element control = controlOf(rowName, "SegmentedControl");
    const Element *button = control.find(
        [&](const Element &element) { return element.type == "Button" && isNamed(element, segment); });
    act(button ? *button : Element{}, {.kind = GestureKind::tap}, segment);
}

void Person::slide(const std::string &rowName, double amount) const {
    act(controlOf(rowName, "Slider"), {.kind = GestureKind::slide, .amount = amount}, rowName);
}

void Person::type(const std::string &fieldName, const std::string &text) const {
    act(field(fieldName), {.kind = GestureKind::tap}, fieldName);
    act(field(fieldName), {.kind = GestureKind::type, .text = text}, fieldName);
}

void Person::retype(const std::string &fieldName, const std::string &text) const {
    act(field(fieldName), {.kind = GestureKind::tap}, fieldName);
    act(field(fieldName), {.kind = GestureKind::replace, .text = text}, fieldName);
}

void Person::pressReturn() const {
    act({.kind = GestureKind::returnKey}, "pressing Return");
}

void Person::answer(const std::string &button) const {
    if (question().type.empty()) {
        failed("nothing asks");
        return;
    }
    tapButton(button);
}

void Person::tapOutside() const {
    act({.kind = GestureKind::tapOutside}, "tapping outside");
}

void Person::swipe(const std::string &rowName) const {
    act(rowNamed(rowName), {.kind = GestureKind::swipe}, rowName);
}

void Person::closeSwipe() const {
    act({.kind = GestureKind::closeSwipe}, "closing the swiped row");
}

void Person::tapMinus(const std::string &rowName) const {
    const Element found = row(rowName);
    const Element *minus = found.find(
        [](const Element &element) { return element.type == "Button" && element.text("role") == "minus"; });
    act(minus ? *minus : Element{}, {.kind = GestureKind::tap}, rowName + "'s minus");
}

void Person::confirmDelete() const {
    act(lookFor([](const Element &element) {
            return element.type == "Button" && element.text("role") == "delete";
        }),
        {.kind = GestureKind::tap}, "Delete");
}

void Person::scrollTo(double offset) const {
    act({.kind = GestureKind::scroll, .amount = offset}, "scrolling");
}

void Person::back() const {
    act({.kind = GestureKind::back}, "going back");
}

void Person::backSwipe() const {
    act({.kind = GestureKind::backSwipe}, "swiping back");
}

void Person::giveUpBackSwipe() const {
    act({.kind = GestureKind::backSwipeGivenUp}, "giving up a back swipe");
}

} // namespace support
