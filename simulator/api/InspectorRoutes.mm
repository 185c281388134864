// What the bundle did to the world outside its pages: events, files, the call history.
#include "simulator/api/EventJson.h"
#include "simulator/api/Routes.h"

#include "host/EventLog.h"

#include <charconv>
#include <optional>

namespace sim {

namespace {

/// The query parameter `since`, 0 when it is absent; nothing when it is no number.
std::optional<std::uint64_t> since(const httplib::Request &request) {
    const std::string text = request.get_param_value("since");
    std::uint64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (!text.empty() && (error != std::errc{} || end != text.data() + text.size()))
        return std::nullopt;
    return number;
}

Reply refuseSince() {
    return refuse(400, "\"since\" must be a number");
}

/// Main thread.
Reply eventsAfter(std::uint64_t number) {
    Json events = Json::array();
    for (const host::Event &event : host::events()) {
        if (event.number > number)
            events.push_back(toJson(event));
    }
    return {200, {{"events", std::move(events)}, {"pending", Session::pending()}}};
}

Reply answerEvents(const httplib::Request &request, Session &session) {
    const auto after = since(request);
    return after ? session.onPhone([&] { return eventsAfter(*after); }) : refuseSince();
}

Reply answerFiles(const httplib::Request &request, Session &session) {
    const auto after = since(request);
    if (!after)
        return refuseSince();
    session.files().refresh();
    return {200, session.files().changedSince(*after)};
}

/// Main thread.
Reply describeDatabase() {
    const DatabaseResult result = Session::callDatabase().describe();
    return result.problem.empty() ? Reply{200, result.state} : refuse(409, result.problem);
}

} // namespace

void addInspectorRoutes(HttpServer &server, Session &session) {
    server.get("/api/events",
               [&session](const httplib::Request &request) { return answerEvents(request, session); });
    server.stream("/api/stream", [&session] { return session.welcome(); });
    server.get("/api/files",
               [&session](const httplib::Request &request) { return answerFiles(request, session); });
    server.get("/api/database",
               [&session](const httplib::Request &) { return session.onPhone(describeDatabase); });
}

} // namespace sim
