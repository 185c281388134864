// What is on the screen, as a tree of elements: the one description that tests, scripts and the
// simulator's page all read. Types and attributes follow the names that UI-test drivers use.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <variant>
#include <vector>

namespace host {

/// Points, in the coordinates of the window, origin at the top left.
struct Rect {
    double x = 0, y = 0, width = 0, height = 0;
    bool operator==(const Rect &) const = default;
};

/// A detail of an element's look or state that only some types have.
using Attribute = std::variant<bool, double, std::string>;

/// One thing on the screen.
///
/// Types: Window, NavigationBar, Table, Cell, StaticText, Button, Switch, Slider, SegmentedControl,
/// TextField, SecureTextField, TextView, SearchField, Image, ActivityIndicator, Alert, Sheet,
/// Keyboard, Other.
///
/// Every element that can be acted on has a `number`: it names the live object and stays the same as
/// long as that object is on the screen. `part` tells apart the elements that one object draws itself
/// (the buttons of an alert, the segments of a control, the Delete button of a swiped cell).
///
/// Attributes by type (those that say nothing are left out):
///   Window            page (number of the front view controller), transition ("none", "push", "pop",
///                     "present", "dismiss"), revision (number of the last transition), scale,
///                     language, idiom
///   NavigationBar     page
///   Button            role ("back", "left", "right", "cancel", "destructive", "default", "delete",
///                     "minus", "row"), style ("plain", "done"), image (path below the device folder or
///                     bundle)
///   Table             page, style ("grouped", "plain"), contentHeight, offset, top (inset), editing
///   StaticText        role ("title", "text", "detail", "header", "footer", "accessory", "message"),
///                     size, weight ("regular", "bold"), color ("#rrggbb"), align ("left", "center",
///                     "right"), section
///   Cell              section, row, style ("default", "value1", "value2", "subtitle"), accessory
///                     ("none", "disclosure", "detail-disclosure", "checkmark", "detail"), editing
///                     ("none", "delete", "insert"), open (its Delete button shows), selectable,
///                     swipeable, inset (left inset of its separator)
///   Slider            minimum, maximum, continuous; value is the current number
///   Switch            value "0" or "1"
///   SegmentedControl  children are Buttons, the chosen one selected
///   TextField, ...    placeholder, keyboard (UIKeyboardType number), focused, secure, clear
///   Image             image (absolute path of the file), scale; or glyph for platform drawings
///   Keyboard          keyboard (UIKeyboardType number), field (number of the focused field)
struct Element {
    std::string type;
    std::string identifier;
    std::string label;
    std::string value;
    bool enabled = true;
    bool selected = false;
    Rect rect;
    std::uint64_t number = 0;
    std::string part;
    std::map<std::string, Attribute> attributes;
    std::vector<Element> children;

    /// The attribute of that name as a string, number or flag; the neutral value when it is absent.
    [[nodiscard]] std::string text(const std::string &name) const;
    [[nodiscard]] double amount(const std::string &name) const;
    [[nodiscard]] bool flag(const std::string &name) const;

    /// The first element of this tree, in drawing order, that `accept` likes; null when there is none.
    template<typename Accept>
    [[nodiscard]] const Element *find(const Accept &accept) const {
        if (accept(*this))
            return this;
        for (const Element &child : children) {
            if (const Element *found = child.find(accept))
                return found;
        }
        return nullptr;
    }

    /// All elements of a type, in drawing order.
    [[nodiscard]] std::vector<const Element *> all(const std::string &ofType) const;
};

} // namespace host
