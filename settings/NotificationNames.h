// The Darwin notifications by which the dialer learns that it must read its files again.
#pragma once

namespace zv::notification {

constexpr const char *settings = "ZVSettingsChanged";
constexpr const char *area = "ZVAreaChanged";
constexpr const char *t9 = "ZVT9Changed";
constexpr const char *blacklist = "ZVBlacklistChanged";

} // namespace zv::notification
