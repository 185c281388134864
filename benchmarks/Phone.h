// A phone with the bundle installed, for benchmarks of pages.
#pragma once

#include "host/Element.h"
#include "host/Gesture.h"

#include <cstddef>
#include <string>

namespace bench {

/// Starts the platform on a new device folder with the contents of a demo device and so many contacts and
/// calls, in virtual time. Once in the life of a process.
void startPhone(std::size_t contacts = 66, std::size_t calls = 240);

/// Opens the bundle's page from the list of Settings and leaves open nothing else.
void openRootPage();

/// A tap on the row or button with this label; on its switch, where it is a row with one. Scrolls to it, and
/// throws std::runtime_error where there is none.
[[nodiscard]] host::Gesture tapOn(const std::string &label);

/// Carries out a gesture; throws std::runtime_error where nothing takes it.
void act(const host::Gesture &gesture);

/// Looks at the screen, as the simulator does after each gesture.
void look();

} // namespace bench
