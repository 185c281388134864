// The keyboard comes and goes with the focus.
#pragma once

namespace host {

/// Posts the keyboard's notifications in a later turn of the run loop, if it has come or gone by then: a
/// change from one field to the next leaves it where it is.
void focusHasMoved();

} // namespace host
