// What tests may ask of and tell the vibrator.
#pragma once

#import <Foundation/Foundation.h>

#include <cstdint>

namespace host {

struct VibrationRequest {
    std::uint32_t sound = 0;
    id unused = nil;             ///< the second argument
    NSDictionary *pattern = nil; ///< a copy; nil when nothing was played yet
};

/// The last request that was played.
[[nodiscard]] const VibrationRequest &lastVibration();

/// The next request raises an NSException and is not played.
void refuseNextVibration();

} // namespace host
