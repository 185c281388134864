// The call-history database as an inspector shows it, and the phone's own work on it.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace sim {

struct NewCall {
    std::string number;
    bool outgoing = false;
    double seconds = 0; ///< how long the call lasted; 0 when nobody took it
};

/// What came of an operation on the database.
struct DatabaseResult {
    nlohmann::json state = nlohmann::json::object();
    bool found = true;   ///< false where the call asked for is not there
    std::string problem; ///< SQLite's word; empty where all went well
};

/// The call history of the system version in force. Opened anew for each question, as the system itself does.
/// No exceptions come out: callers are Objective-C, through which none may pass.
class CallDatabase {
public:
    /// `file` lies on this machine, `phonePath` is what the phone calls it; `version` is the float value of
    /// the system version.
    CallDatabase(std::string file, std::string phonePath, float version);

    /// {"path", "exists", "form", "limit": {"stored", "inForce"}, "trigger", "lifetime", "calls", "kept",
    /// "recent": [...], "keptRecords": [...]}
    [[nodiscard]] DatabaseResult describe() const;

    /// What a phone does after a call, at the moment `now` (seconds since 1970).
    [[nodiscard]] DatabaseResult addCall(const NewCall &call, double now) const;

    /// Deletes a call as the system does; without `row` the oldest one.
    [[nodiscard]] DatabaseResult deleteCall(std::optional<std::int64_t> row) const;

    [[nodiscard]] const std::string &file() const { return _file; }
    [[nodiscard]] bool exists() const;

private:
    [[nodiscard]] nlohmann::json state() const;
    void add(const NewCall &call, double now) const;
    [[nodiscard]] bool remove(std::optional<std::int64_t> row) const;
    [[nodiscard]] bool isCoreData() const { return _version >= 8.0F; }

    std::string _file;
    std::string _phonePath;
    float _version;
};

} // namespace sim
