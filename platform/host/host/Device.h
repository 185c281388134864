// The phone that is being imitated: an ordinary folder that stands for its "/", its system version,
// language and the settings that the frameworks answer from.
#pragma once

#include <string>

namespace host {

struct DeviceOptions {
    std::string folder;                ///< stands for the phone's "/"; made when missing
    std::string systemVersion = "8.1"; ///< what UIDevice answers
    std::string language = "en";       ///< as in AppleLanguages: "en", "zh-Hans", "de", ...
    std::string region = "US";         ///< ISO country code; with the language it makes the locale
    double width = 320, height = 568;  ///< the screen in points
    double scale = 2;                  ///< pixels a point: 1, 2 or 3
    int sortOrdering = 1;              ///< ABPersonGetSortOrdering: 0 by first name, 1 by last
    int compositeNameFormat = 0;       ///< 0 first name first, 1 last name first
    bool virtualTime = false;          ///< delayed calls wait for advance() instead of the clock
};

/// Makes this process the phone described, before anything else of the platform is used: Foundation reads
/// the language once. A later call turns it into another phone of the same language, with the event log
/// and the clock as new; asking for another language aborts.
void start(const DeviceOptions &options);

/// The options in force.
[[nodiscard]] const DeviceOptions &device();

/// Settings that a person may change while the phone runs.
void setSystemVersion(const std::string &version);
void setNameOrder(int sortOrdering, int compositeNameFormat);

/// Identifier of the locale that language and region make, such as "zh_Hans_CN".
[[nodiscard]] std::string localeIdentifier();

/// Where the phone's absolute `path` lies on this machine. Never outside the device folder, ".." or not.
[[nodiscard]] std::string devicePath(const std::string &path);

/// What the phone calls the file at `path` of this machine; empty when it is outside the device folder.
[[nodiscard]] std::string phonePath(const std::string &path);

} // namespace host
