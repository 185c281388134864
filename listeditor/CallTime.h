// The lifetime of call-history entries as a person sees it: whole minutes, or days, hours and minutes.
#pragma once

#include <stdint.h>

namespace zv {

/// Seconds rounded up to whole minutes, in 32 bits that wrap around as the phone's do.
constexpr int32_t roundedUpMinutes(int32_t seconds) {
    constexpr uint32_t almostOneMinute = 59;
    return static_cast<int32_t>(static_cast<uint32_t>(seconds) + almostOneMinute) / 60;
}

/// Minutes as seconds: the lower 32 bits of the product.
constexpr int32_t secondsInMinutes(int32_t minutes) {
    return static_cast<int32_t>(static_cast<uint32_t>(minutes) * 60U);
}

struct CallTime {
    int32_t days;
    int32_t hours;
    int32_t minutes;
    bool operator==(const CallTime &) const = default;
};

/// A lifetime in seconds, rounded up to whole minutes and split. Division truncates towards zero.
constexpr CallTime callTime(int32_t seconds) {
    constexpr int32_t minute = 60, hour = 60 * minute, day = 24 * hour;
    const int32_t rounded = secondsInMinutes(roundedUpMinutes(seconds));
    return {rounded / day, rounded % day / hour, rounded % hour / minute};
}

} // namespace zv
