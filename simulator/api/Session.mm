#include "simulator/api/Session.h"

#include "databases/CallHistorySchema.h"
#include "host/Clock.h"
#include "host/Control.h"
#include "host/Work.h"
#include "settings/Paths.h"
#include "simulator/api/Bundles.h"
#include "simulator/api/EventJson.h"
#include "simulator/api/TreeJson.h"

#import <Foundation/Foundation.h>

#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <utility>

namespace sim {

namespace {

const std::string preferences = "/var/mobile/Library/Preferences";

/// A file with which the stand-in for the tool is told to fail.
std::string failureMark() {
    return std::string([zv::located(zv::path::helperTool) UTF8String]) + ".fail";
}

/// What changes in a database file, its log included, with every write.
std::string stamp(const std::string &file) {
    std::string text;
    for (const std::string &part : {file, file + "-wal"}) {
        struct stat status {};
        if (stat(part.c_str(), &status) == 0)
            text += std::to_string(status.st_ino) + " " + std::to_string(status.st_size) + " " +
                    std::to_string(status.st_mtim.tv_sec) + "." + std::to_string(status.st_mtim.tv_nsec) +
                    ";";
    }
    return text;
}

/// Runs `work`, which may raise; the reason when it did. No C++ exception may come out of `work`.
std::string raised(const std::function<void()> &work) {
    @try {
        work();
    } @catch (NSException *exception) {
        return [[NSString stringWithFormat:@"%@: %@", exception.name, exception.reason] UTF8String];
    }
    return {};
}

} // namespace

Session::Session(Options options, HttpServer &server)
    : _options(std::move(options)), _server(server), _files(host::devicePath(preferences), preferences),
      _life(makeToken()) {
    _images.allow(host::device().folder);
    for (const auto &bundle : bundleFolders(_options))
        _images.allow(bundle);
    // Observers stay until the process ends, which may be later than this object.
    host::observeEvents([this, alive = std::weak_ptr(_alive)](const host::Event &event) {
        if (alive.expired())
            return;
        _server.hub().publish({"event", oneLine(toJson(event))});
        tellChangesSoon();
    });
}

void Session::tellChangesSoon() {
    if (std::exchange(_willTell, true))
        return;
    host::later([this, alive = std::weak_ptr(_alive)] {
        if (alive.expired())
            return;
        _willTell = false;
        tellChanges();
    });
}

Reply Session::onPhone(const std::function<Reply()> &work) {
    Reply reply;
    host::onMain([&] {
        const std::string fault = raised([&] { reply = work(); });
        if (!fault.empty()) {
            host::record(host::EventKind::log, fault);
            reply = refuse(500, fault);
        }
        tellChanges();
    });
    return reply;
}

Json Session::screen() {
    tellScreen();
    return Json::parse(screenLine());
}

std::string Session::screenLine() const {
    return R"({"sequence":)" + std::to_string(_sequence) + R"(,"screen":)" + _lastScreen + "}";
}

Json Session::pending() {
    Json calls = Json::array();
    for (const host::PendingCall &call : host::pendingCalls())
        calls.push_back(toJson(call));
    return {{"now", host::now()}, {"calls", std::move(calls)}};
}

std::vector<ServerEvent> Session::welcome() {
    std::vector<ServerEvent> events;
    host::onMain([&] {
        tellChanges();
        events = {
            {"hello", oneLine({{"life", _life}})}, {"tree", screenLine()}, {"pending", oneLine(pending())}};
    });
    return events;
}

void Session::tellChanges() {
    tellScreen();
    tellPending();
    tellFiles();
    tellDatabase();
}

void Session::tellScreen() {
    std::string now = oneLine(toJson(host::screen(), _images));
    if (now == _lastScreen)
        return;
    _lastScreen = std::move(now);
    _sequence++;
    _server.hub().publishLatest({"tree", screenLine()});
}

void Session::tellPending() {
    const Json now = pending();
    std::string calls = oneLine(now["calls"]);
    if (calls == _lastPending)
        return;
    _lastPending = std::move(calls);
    _server.hub().publishLatest({"pending", oneLine(now)});
}

void Session::tellFiles() {
    if (_files.refresh())
        _server.hub().publishLatest({"files", "{}"});
}

void Session::tellDatabase() {
    std::string now = stamp(callDatabase().file());
    if (now == _lastDatabase)
        return;
    _lastDatabase = std::move(now);
    _server.hub().publishLatest({"database", "{}"});
}

CallDatabase Session::callDatabase() {
    const float version = [[NSString stringWithUTF8String:host::device().systemVersion.c_str()] floatValue];
    const bool isCoreData = zv::callHistorySchema(version) == zv::CallHistorySchema::coreData;
    NSString *path = isCoreData ? zv::path::coreDataCallHistory : zv::path::keyValueCallHistory;
    return {[zv::located(path) UTF8String], [path UTF8String], version};
}

bool Session::toolFails() {
    return std::filesystem::exists(failureMark());
}

void Session::setToolFails(bool fails) {
    if (fails)
        std::ofstream(failureMark()).flush();
    else
        std::filesystem::remove(failureMark());
}

void Session::relaunch(const Options &options) {
    _relaunch = options;
}

std::optional<Options> Session::relaunchAsked() const {
    return _relaunch;
}

} // namespace sim
