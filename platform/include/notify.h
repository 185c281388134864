// Notifications between processes by their C names (manual page notify(3)).
#pragma once

#include <stdint.h>

#define NOTIFY_STATUS_OK 0
#define NOTIFY_STATUS_INVALID_NAME 1

#ifdef __cplusplus
extern "C" {
#endif

/// The same as posting `name` (UTF-8) to the Darwin notify center.
uint32_t notify_post(const char *name);

#ifdef __cplusplus
}
#endif
