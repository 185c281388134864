// A running server with two small routes, and a client that knows the token.
#pragma once

#include "simulator/http/HttpServer.h"

#include <gtest/gtest.h>

namespace sim {

class ServerTest : public testing::Test {
protected:
    static constexpr const char *token = "0123456789abcdef0123456789abcdef";

    void start(ServerOptions options = {}) {
        options.token = token;
        server = std::make_unique<HttpServer>(options);
        server->get("/api/hello", [](const httplib::Request &) { return Reply{200, {{"hello", "you"}}}; });
        server->post("/api/echo", [](const Json &body) { return Reply{200, body}; });
        server->get("/api/fault",
                    [](const httplib::Request &) -> Reply { throw std::runtime_error("secret"); });
        server->stream("/api/stream", [] { return std::vector<ServerEvent>{{"hello", "{}"}}; });
        ASSERT_TRUE(server->start());
    }

    [[nodiscard]] httplib::Client client() const { return httplib::Client("127.0.0.1", server->port()); }

    [[nodiscard]] static httplib::Headers known() { return {{"X-Zelvora-Token", token}}; }

    [[nodiscard]] httplib::Headers withHost(const std::string &host) const {
        return {{"X-Zelvora-Token", token}, {"Host", host}};
    }

    [[nodiscard]] httplib::Result post(const std::string &body, const char *type = "application/json") const {
        return client().Post("/api/echo", known(), body, type);
    }

    std::unique_ptr<HttpServer> server;
};

/// The reason that a refusal gives; "" when there is none.
inline std::string reasonOf(const httplib::Result &result) {
    const Json body = Json::parse(result->body, nullptr, false);
    return body.is_object() ? body.value("error", "") : "";
}

} // namespace sim
