// The phone's own settings: read, changed while it runs, or changed by a new start.
#include "simulator/api/Bundles.h"
#include "simulator/api/Routes.h"

#include "host/Clock.h"
#include "host/Control.h"

#include <cmath>
#include <optional>

namespace sim {

namespace {

Json describeDevice(const Session &session) {
    const host::DeviceOptions &device = host::device();
    return {{"folder", device.folder},
            {"systemVersion", device.systemVersion},
            {"language", device.language},
            {"region", device.region},
            {"screen", session.options().screen},
            {"screens", screenNames()},
            {"languages", bundleLanguages(session.options())},
            {"sortOrdering", device.sortOrdering},
            {"compositeNameFormat", device.compositeNameFormat},
            {"virtualTime", device.virtualTime},
            {"zvtoolFails", Session::toolFails()},
            {"now", host::now()},
            {"bundles", bundleNames(session.options())}};
}

/// What a request asks for, checked.
struct Change {
    Options options; ///< as they are to be
    bool needsRelaunch = false;
    int sortOrdering = 0;
    int compositeNameFormat = 0;
    double advance = 0;
    std::string bundle;
};

bool takeText(const Json &value, bool (*valid)(const std::string &), std::string &into, bool &changed) {
    if (!value.is_string() || !valid(value.get<std::string>()))
        return false;
    changed = changed || into != value.get<std::string>();
    into = value.get<std::string>();
    return true;
}

bool takeOrder(const Json &value, int &into) {
    if (!value.is_number_integer() || (value != 0 && value != 1))
        return false;
    into = value.get<int>();
    return true;
}

bool takeSeconds(const Json &value, double &into) {
    if (!value.is_number() || !host::device().virtualTime)
        return false;
    into = value.get<double>();
    return into >= 0 && into <= 1e9;
}

bool isScreen(const std::string &name) {
    return screenSize(name).width > 0;
}

bool takeBundle(const Json &value, Change &into) {
    if (!value.is_string())
        return false;
    into.bundle = value.get<std::string>();
    const auto names = bundleNames(into.options);
    return std::find(names.begin(), names.end(), into.bundle) != names.end();
}

bool take(const std::string &name, const Json &value, Change &into) {
    if (name == "systemVersion")
        return takeText(value, isSystemVersion, into.options.systemVersion, into.needsRelaunch);
    if (name == "language")
        return takeText(value, isLanguage, into.options.language, into.needsRelaunch);
    if (name == "region")
        return takeText(value, isRegion, into.options.region, into.needsRelaunch);
    if (name == "screen")
        return takeText(value, isScreen, into.options.screen, into.needsRelaunch);
    if (name == "sortOrdering")
        return takeOrder(value, into.sortOrdering);
    if (name == "compositeNameFormat")
        return takeOrder(value, into.compositeNameFormat);
    if (name == "advance")
        return takeSeconds(value, into.advance);
    return name == "bundle" && takeBundle(value, into);
}

/// Main thread.
Reply change(const Json &body, Session &session) {
    const host::DeviceOptions &device = host::device();
    Change wanted{.options = session.options(),
                  .sortOrdering = device.sortOrdering,
                  .compositeNameFormat = device.compositeNameFormat};
    for (const auto &[name, value] : body.items()) {
        if (!take(name, value, wanted))
            return refuse(400, "the device cannot take this \"" + name + "\"");
    }
    host::setNameOrder(wanted.sortOrdering, wanted.compositeNameFormat);
    if (wanted.advance > 0)
        host::advance(wanted.advance);
    if (!wanted.bundle.empty() && !showBundle(session.options(), wanted.bundle))
        return refuse(409, "the bundle could not be opened");
    Reply reply{200, describeDevice(session)};
    if (wanted.needsRelaunch) {
        session.relaunch(wanted.options);
        reply = {202, {{"relaunching", true}}};
    }
    return reply;
}

} // namespace

void addDeviceRoutes(HttpServer &server, Session &session) {
    server.get("/api/device", [&session](const httplib::Request &) {
        return session.onPhone([&] { return Reply{200, describeDevice(session)}; });
    });
    server.post("/api/device", [&session](const Json &body) {
        return session.onPhone([&] { return change(body, session); });
    });
}

} // namespace sim
