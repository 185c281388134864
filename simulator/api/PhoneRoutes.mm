// Playing the phone's part: calls that come and go, notifications of other programs, a tool that fails.
#include "simulator/api/Routes.h"

#include "host/Clock.h"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>

#include <cmath>

namespace sim {

namespace {

constexpr std::size_t longestName = 200;

/// The text member `name` of `body`; "" when it is absent, empty or something else.
std::string text(const Json &body, const char *name) {
    const auto found = body.find(name);
    return found != body.end() && found->is_string() ? found->get<std::string>() : std::string();
}

Reply replyTo(const DatabaseResult &result) {
    if (!result.problem.empty())
        return refuse(409, result.problem);
    return result.found ? Reply{} : refuse(404, "there is no such call");
}

Reply addCall(const Json &body) {
    const Json seconds = body.value("seconds", Json(60));
    const Json outgoing = body.value("outgoing", Json(false));
    const std::string number = text(body, "number");
    if (number.empty() || number.size() > longestName)
        return refuse(400, "\"number\" must be the caller's number");
    if (!seconds.is_number() || !outgoing.is_boolean())
        return refuse(400, "\"seconds\" must be a number and \"outgoing\" true or false");
    const NewCall call{number, outgoing.get<bool>(), seconds.get<double>()};
    return replyTo(Session::callDatabase().addCall(call, host::now()));
}

Reply deleteCall(const Json &body) {
    std::optional<std::int64_t> row;
    if (const auto found = body.find("row"); found != body.end()) {
        if (!found->is_number_integer())
            return refuse(400, "\"row\" must be the number of a call");
        row = found->get<std::int64_t>();
    }
    return replyTo(Session::callDatabase().deleteCall(row));
}

Reply postNotification(const Json &body) {
    const std::string name = text(body, "name");
    NSString *posted = name.size() <= longestName ? [NSString stringWithUTF8String:name.c_str()] : nil;
    if ([posted length] == 0)
        return refuse(400, "\"name\" must name a notification");
    CFNotificationCenterPostNotification(CFNotificationCenterGetDarwinNotifyCenter(), (CFStringRef)posted,
                                         nullptr, nullptr, true);
    return {};
}

using Play = Reply (*)(const Json &body);

Play playOf(const std::string &action) {
    if (action == "addCall")
        return addCall;
    if (action == "deleteCall")
        return deleteCall;
    return action == "notify" ? postNotification : nullptr;
}

/// Main thread.
Reply play(Play action, const Json &body) {
    if (action != postNotification && !Session::callDatabase().exists())
        return refuse(409, "this phone has no call history");
    return action(body);
}

Reply answerPhone(const Json &body, Session &session) {
    const Play action = playOf(text(body, "action"));
    if (!action)
        return refuse(400, "\"action\" must be addCall, deleteCall or notify");
    return session.onPhone([&] { return play(action, body); });
}

/// Main thread.
Reply answerTool(const Json &body) {
    const auto fails = body.find("fails");
    if (fails == body.end() || !fails->is_boolean())
        return refuse(400, "\"fails\" must be true or false");
    Session::setToolFails(fails->get<bool>());
    return {200, {{"fails", Session::toolFails()}}};
}

} // namespace

void addPhoneRoutes(HttpServer &server, Session &session) {
    server.post("/api/zvtool",
                [&session](const Json &body) { return session.onPhone([&] { return answerTool(body); }); });
    server.post("/api/phone", [&session](const Json &body) { return answerPhone(body, session); });
}

} // namespace sim
