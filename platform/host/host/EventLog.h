// What the bundle did to the world outside its pages, in order: the record that tests assert on and
// the simulator's inspector shows.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace host {

enum class EventKind {
    notification, ///< a Darwin notification; text is its name
    command,      ///< a command line given to `system`; text is the line as given
    url,          ///< an opened URL; text is its absolute string
    vibration,    ///< text is the request as JSON {"sound", "pattern": [[on, ms], ...], "intensity"}
    alert,        ///< an alert was shown; text is its title, detail its message
    sheet,        ///< an action sheet was shown; text is its title
    file,         ///< a property list was written; text is the phone's path
    log,          ///< something the platform has to say to a developer (a missing page, a bad file)
};

struct Event {
    std::uint64_t number = 0; ///< counts from 1
    double time = 0;          ///< seconds since 1970; of the virtual clock where that is in use
    EventKind kind = EventKind::log;
    std::string text;
    std::string detail;
    int status = 0; ///< exit status of a command; 0 otherwise
};

/// Adds an event and tells the observers.
void record(EventKind kind, std::string text, std::string detail = {}, int status = 0);

/// All events since the start or the last forgetEvents(), oldest first (at most the last 10,000).
[[nodiscard]] const std::vector<Event> &events();
/// The texts of the events of one kind.
[[nodiscard]] std::vector<std::string> eventTexts(EventKind kind);
void forgetEvents();

/// Calls `observer` after each event, on the main thread, until the process ends.
void observeEvents(std::function<void(const Event &)> observer);

} // namespace host
