// What is on the screen, and the hand that acts on it.
#include "simulator/api/GestureJson.h"
#include "simulator/api/Routes.h"

#include "host/Control.h"

#include <fstream>
#include <iterator>

namespace sim {

namespace {

int statusOf(host::Outcome outcome) {
    switch (outcome) {
    case host::Outcome::done: return 200;
    case host::Outcome::notThere: return 404;
    case host::Outcome::disabled: return 409;
    }
    return 500;
}

Reply refuseOutcome(host::Outcome outcome) {
    Reply reply = refuse(statusOf(outcome), outcome == host::Outcome::disabled
                                                ? "the element does not take this gesture now"
                                                : "there is no such element on the screen");
    reply.body["outcome"] = outcomeName(outcome);
    return reply;
}

bool aim(GestureRequest &request) {
    if (!request.element)
        return true;
    const host::Element screen = host::screen();
    const host::Element *found = findElement(screen, *request.element);
    if (!found)
        return false;
    request.gesture.number = found->number;
    if (request.gesture.part.empty())
        request.gesture.part = found->part;
    return true;
}

/// Main thread.
Reply perform(GestureRequest request, Session &session) {
    if (!aim(request))
        return refuseOutcome(host::Outcome::notThere);
    const host::Outcome outcome = host::perform(request.gesture);
    if (outcome != host::Outcome::done)
        return refuseOutcome(outcome);
    Reply reply;
    reply.body = session.screen();
    reply.body["outcome"] = outcomeName(outcome);
    return reply;
}

Reply answerGesture(const Json &body, Session &session) {
    auto read = gestureFromJson(body);
    if (const auto *fault = std::get_if<std::string>(&read))
        return refuse(400, *fault);
    return session.onPhone([&] { return perform(std::get<GestureRequest>(read), session); });
}

void sendImage(Session &session, const httplib::Request &request, httplib::Response &response) {
    const auto file = session.images().file(request.matches[1]);
    std::ifstream stream;
    if (file)
        stream.open(*file, std::ios::binary);
    if (!stream.is_open()) {
        response.status = 404; // the server adds the reason
        return;
    }
    response.set_content(std::string(std::istreambuf_iterator<char>(stream), {}), "image/png");
}

} // namespace

void addScreenRoutes(HttpServer &server, Session &session) {
    server.get("/api/screen", [&session](const httplib::Request &) {
        return session.onPhone([&] { return Reply{200, session.screen()}; });
    });
    server.post("/api/gesture", [&session](const Json &body) { return answerGesture(body, session); });
    server.raw("/api/image/([0-9]{1,6})",
               [&session](const httplib::Request &request, httplib::Response &response) {
                   sendImage(session, request, response);
               });
}

} // namespace sim
