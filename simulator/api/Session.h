// The live phone as its pages follow it: work goes to the main thread, what has changed goes to the pages.
#pragma once

#include "simulator/api/CallDatabase.h"
#include "simulator/api/DeviceFiles.h"
#include "simulator/api/ImageNames.h"
#include "simulator/api/Options.h"
#include "simulator/http/HttpServer.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace sim {

class Session {
public:
    /// Main thread, after host::start(). `server` must outlive the session.
    Session(Options options, HttpServer &server);

    /// Runs `work` on the main thread, waits for it, and tells the pages what it changed. An exception that
    /// the page code raises becomes a refusal with its reason.
    [[nodiscard]] Reply onPhone(const std::function<Reply()> &work);

    /// {"sequence", "screen"}: main thread.
    [[nodiscard]] Json screen();

    /// {"now", "calls"}: the delayed calls that wait. Main thread.
    [[nodiscard]] static Json pending();

    /// The events with which a page's stream begins. From any thread.
    [[nodiscard]] std::vector<ServerEvent> welcome();

    /// Compares the phone with what the pages know and tells them the difference. Main thread.
    void tellChanges();

    /// The call history that the system version in force uses. Main thread.
    [[nodiscard]] static CallDatabase callDatabase();

    /// Whether the privileged tool of older systems fails without doing anything. Main thread.
    [[nodiscard]] static bool toolFails();
    static void setToolFails(bool fails);

    ImageNames &images() { return _images; }
    DeviceFiles &files() { return _files; }
    [[nodiscard]] const Options &options() const { return _options; }

    /// Asks for a new start with other options, once the requests under way are answered.
    void relaunch(const Options &options);
    [[nodiscard]] std::optional<Options> relaunchAsked() const;

private:
    [[nodiscard]] std::string screenLine() const;
    void tellChangesSoon();
    void tellScreen();
    void tellPending();
    void tellFiles();
    void tellDatabase();

    Options _options;
    HttpServer &_server;
    ImageNames _images;
    DeviceFiles _files;
    std::string _life; ///< tells this start of the program from the next
    std::string _lastScreen, _lastPending, _lastDatabase;
    std::uint64_t _sequence = 0; ///< counts the states of the screen
    bool _willTell = false;
    std::shared_ptr<bool> _alive = std::make_shared<bool>(true);
    std::optional<Options> _relaunch;
};

} // namespace sim
