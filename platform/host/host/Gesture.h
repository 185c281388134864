// What a person can do to the screen. One value type for all gestures, so that tests, the simulator's
// HTTP interface and scripts say the same things in the same words.
#pragma once

#include "host/Element.h"

#include <cstdint>
#include <string>

namespace host {

enum class GestureKind {
    tap,              ///< a cell, button, switch, segment, text field, alert or sheet button
    slide,            ///< a slider: drag to `amount`, then let go
    type,             ///< the focused text field (or the one named): add `text` at its end
    replace,          ///< the text field named: take its whole text out and type `text`
    clear,            ///< the text field named: tap its clear button
    returnKey,        ///< press Return on the keyboard
    swipe,            ///< a cell, to the left
    closeSwipe,       ///< tap elsewhere while a cell shows its Delete button
    scroll,           ///< the table named (or the front one): put its offset at `amount` points
    back,             ///< the back button
    backSwipe,        ///< the swipe from the left edge, carried through
    backSwipeGivenUp, ///< the same, let go before the middle
    tapOutside,       ///< beside an alert or a sheet
};

/// A gesture on the element with this `number` and `part`; kinds that need no element leave it 0.
struct Gesture {
    GestureKind kind = GestureKind::tap;
    std::uint64_t number = 0;
    std::string part{};
    double amount = 0;
    std::string text{};
};

enum class Outcome {
    done,     ///< carried out, and everything it set off has come to rest
    notThere, ///< no such element is on the screen
    disabled, ///< it is there but does not take this gesture now
};

} // namespace host
