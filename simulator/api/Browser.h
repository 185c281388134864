// Showing the page without being asked.
#pragma once

#include <string>

namespace sim {

/// Opens the address in the desktop's browser, where there is a desktop. The address holds the token, so it
/// goes through a file that only this user can read: command lines are seen by everyone on the machine.
void showInBrowser(const std::string &address);

} // namespace sim
