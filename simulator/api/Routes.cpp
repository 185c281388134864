#include "simulator/api/Routes.h"

namespace sim {

void addRoutes(HttpServer &server, Session &session) {
    addScreenRoutes(server, session);
    addInspectorRoutes(server, session);
    addDeviceRoutes(server, session);
    addPhoneRoutes(server, session);
    server.files().addFolder("/", ZV_WEB_DIR);
    server.files().addModules("/vendor/preact/", ZV_PREACT_DIR);
}

} // namespace sim
