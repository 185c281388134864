// Telling the dialer, which runs in other processes.
#pragma once

#include "settings/NotificationNames.h"

namespace zv {

/// Posts to every process that observes `name`. There is no payload: the receiver reads the files.
void postNotification(const char *name);

} // namespace zv
