// The HTTP server: loopback only, guarded, bounded, JSON in and out.
#pragma once

#include "simulator/http/EventHub.h"
#include "simulator/http/Guard.h"
#include "simulator/http/StaticFiles.h"

#include <functional>
#include <httplib.h>
#include <memory>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>

namespace sim {

using Json = nlohmann::json;

/// An answer of the interface. Anything but success carries {"error": REASON}.
struct Reply {
    int status = 200;
    Json body = Json::object();
};

[[nodiscard]] Reply refuse(int status, const std::string &reason);

/// One line of JSON; damaged UTF-8 is replaced, never an error.
[[nodiscard]] std::string oneLine(const Json &json);

struct ServerOptions {
    std::string token;
    int port = 0; ///< 0: any free port
    std::size_t threads = 32;
    std::size_t waitingConnections = 32;
    std::size_t streams = 8;
    std::size_t largestBody = std::size_t{64} * 1024;
};

class HttpServer {
public:
    using GetHandler = std::function<Reply(const httplib::Request &request)>;
    using PostHandler = std::function<Reply(const Json &body)>;
    /// The events with which a new stream begins.
    using Welcome = std::function<std::vector<ServerEvent>()>;

    explicit HttpServer(ServerOptions options);
    ~HttpServer();
    HttpServer(const HttpServer &) = delete;
    HttpServer &operator=(const HttpServer &) = delete;

    /// Routes, to be added before start(). Handlers run on the server's threads.
    void get(const std::string &path, GetHandler handler);
    void post(const std::string &path, PostHandler handler);
    void raw(const std::string &pattern, httplib::Server::Handler handler);
    void stream(const std::string &path, Welcome welcome);
    StaticFiles &files() { return _files; }
    EventHub &hub() { return _hub; }

    /// Takes the port and begins to answer; false when the port cannot be had.
    [[nodiscard]] bool start();
    /// Ends the streams, finishes the requests under way and gives the port back.
    void stop();

    [[nodiscard]] int port() const { return _port; }
    /// The address to open, token included.
    [[nodiscard]] std::string address() const;

private:
    void configure();
    httplib::Server::HandlerResponse admit(const httplib::Request &request, httplib::Response &response);
    void serveFile(const httplib::Request &request, httplib::Response &response) const;
    void openStream(httplib::Response &response, const Welcome &welcome);

    ServerOptions _options;
    httplib::Server _server;
    StaticFiles _files;
    EventHub _hub;
    std::unique_ptr<Guard> _guard;
    int _port = 0;
    std::thread _listener;
};

} // namespace sim
