// After the list of UIRequiredDeviceCapabilities in Apple's Information Property List Key Reference; a phone
// with an A7 processor has all of these.
#include "Preferences/Capabilities.h"

#include <algorithm>
#include <array>

namespace host {

namespace {

constexpr std::array<std::string_view, 24> phone{
    "accelerometer",       "arm64",        "armv7",
    "auto-focus-camera",   "bluetooth-le", "camera-flash",
    "front-facing-camera", "gamekit",      "gps",
    "gyroscope",           "healthkit",    "location-services",
    "magnetometer",        "metal",        "microphone",
    "opengles-1",          "opengles-2",   "opengles-3",
    "peer-peer",           "sms",          "still-camera",
    "telephony",           "video-camera", "wifi",
};

} // namespace

bool hasCapability(std::string_view name) {
    return std::find(phone.begin(), phone.end(), name) != phone.end();
}

} // namespace host
