#include "simulator/api/EventJson.h"

namespace sim {

using Json = nlohmann::json;
using host::EventKind;

namespace {

std::string kindName(EventKind kind) {
    switch (kind) {
    case EventKind::notification: return "notification";
    case EventKind::command: return "command";
    case EventKind::url: return "url";
    case EventKind::vibration: return "vibration";
    case EventKind::alert: return "alert";
    case EventKind::sheet: return "sheet";
    case EventKind::file: return "file";
    case EventKind::log: return "log";
    }
    return {};
}

} // namespace

Json toJson(const host::Event &event) {
    Json json = {{"number", event.number}, {"time", event.time},     {"kind", kindName(event.kind)},
                 {"text", event.text},     {"detail", event.detail}, {"status", event.status}};
    if (event.kind == EventKind::vibration) {
        Json vibration = Json::parse(event.text, nullptr, false);
        if (vibration.is_object())
            json["vibration"] = std::move(vibration);
    }
    return json;
}

Json toJson(const host::PendingCall &call) {
    return {{"selector", call.selector}, {"due", call.due}, {"delay", call.delay}};
}

} // namespace sim
