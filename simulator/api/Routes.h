// The interface that the page and scripts use; docs/simulator-api.md describes it.
#pragma once

#include "simulator/api/Session.h"

namespace sim {

void addScreenRoutes(HttpServer &server, Session &session);
void addInspectorRoutes(HttpServer &server, Session &session);
void addDeviceRoutes(HttpServer &server, Session &session);
void addPhoneRoutes(HttpServer &server, Session &session);

/// All of them, and the page's own files.
void addRoutes(HttpServer &server, Session &session);

} // namespace sim
