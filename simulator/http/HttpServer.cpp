#include "simulator/http/HttpServer.h"

#include "simulator/http/BoundedPool.h"

namespace sim {

namespace {

using namespace std::chrono_literals;

/// How long a connection may stay open between two requests, and how long a slow one may take for a part of
/// one.
constexpr int idleSeconds = 1; // stop() waits as long
constexpr int slowSeconds = 5;
/// A stream says something this often, so that a page that has gone is noticed.
constexpr auto heartbeat = 5s;
/// Streams look this often whether the server is stopping.
constexpr auto patience = 200ms;

/// The page may load scripts, styles and images of this server alone and talk to nobody else.
constexpr const char *contentPolicy =
    "default-src 'none'; script-src 'self'; style-src 'self'; img-src 'self'; connect-src 'self'; "
    "base-uri 'none'; form-action 'none'; frame-ancestors 'none'";

void answer(httplib::Response &response, const Reply &reply) {
    response.status = reply.status;
    response.set_content(oneLine(reply.body) + "\n", "application/json");
}

std::string reasonOfStatus(int status) {
    switch (status) {
    case 404: return "there is nothing at this address";
    case 413: return "the request is too large";
    case 414: return "the address is too long";
    default: return "the request cannot be understood";
    }
}

bool isJson(const httplib::Request &request) {
    return request.get_header_value("Content-Type").starts_with("application/json");
}

Reply answerPost(const httplib::Request &request, const HttpServer::PostHandler &handler) {
    if (!isJson(request))
        return refuse(415, "send JSON, with the header Content-Type: application/json");
    const Json body = Json::parse(request.body, nullptr, false);
    if (body.is_discarded())
        return refuse(400, "the request is not valid JSON");
    if (!body.is_object())
        return refuse(400, "the request must be a JSON object");
    return handler(body);
}

} // namespace

Reply refuse(int status, const std::string &reason) {
    return {status, {{"error", reason}}};
}

std::string oneLine(const Json &json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

HttpServer::HttpServer(ServerOptions options) : _options(std::move(options)), _hub(_options.streams) {
    configure();
}

HttpServer::~HttpServer() {
    stop();
}

void HttpServer::configure() {
    _server.new_task_queue = [this] {
        return new BoundedPool(_options.threads, _options.waitingConnections);
    };
    _server.set_payload_max_length(_options.largestBody);
    _server.set_keep_alive_timeout(idleSeconds);
    _server.set_keep_alive_max_count(10'000);
    _server.set_read_timeout(slowSeconds);
    _server.set_write_timeout(slowSeconds);
    _server.set_tcp_nodelay(true);
    // A port is taken over from a simulator that has just ended, never shared with one that runs.
    _server.set_socket_options([](socket_t socket) {
        const int yes = 1;
        setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    _server.set_default_headers({{"Content-Security-Policy", contentPolicy},
                                 {"X-Content-Type-Options", "nosniff"},
                                 {"Referrer-Policy", "no-referrer"},
                                 {"Cross-Origin-Resource-Policy", "same-origin"},
                                 {"Cache-Control", "no-store"}});
    _server.set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
        return admit(request, response);
    });
    _server.set_error_handler([](const httplib::Request &, httplib::Response &response) {
        if (response.body.empty())
            answer(response, refuse(response.status, reasonOfStatus(response.status)));
    });
    _server.set_exception_handler(
        [](const httplib::Request &, httplib::Response &response, std::exception_ptr) {
            answer(response, refuse(500, "the simulator could not do this"));
        });
}

httplib::Server::HandlerResponse HttpServer::admit(const httplib::Request &request,
                                                   httplib::Response &response) {
    using Handled = httplib::Server::HandlerResponse;
    const Verdict verdict = _guard->check(request);
    if (verdict != Verdict::pass) {
        answer(response, refuse(403, reason(verdict)));
        return Handled::Handled;
    }
    if (request.method == "GET" && request.path == "/" && _guard->hasTokenInAddress(request)) {
        response.set_header("Set-Cookie", _guard->cookie());
        response.set_redirect("/");
        return Handled::Handled;
    }
    return Handled::Unhandled;
}

void HttpServer::get(const std::string &path, GetHandler handler) {
    _server.Get(path,
                [handler = std::move(handler)](const httplib::Request &request, httplib::Response &response) {
                    answer(response, handler(request));
                });
}

void HttpServer::post(const std::string &path, PostHandler handler) {
    _server.Post(
        path, [handler = std::move(handler)](const httplib::Request &request, httplib::Response &response) {
            answer(response, answerPost(request, handler));
        });
}

void HttpServer::raw(const std::string &pattern, httplib::Server::Handler handler) {
    _server.Get(pattern, std::move(handler));
}

void HttpServer::stream(const std::string &path, Welcome welcome) {
    _server.Get(path,
                [this, welcome = std::move(welcome)](const httplib::Request &, httplib::Response &response) {
                    openStream(response, welcome);
                });
}

void HttpServer::openStream(httplib::Response &response, const Welcome &welcome) {
    const std::shared_ptr<Subscription> subscription = _hub.subscribe();
    if (!subscription)
        return answer(response, refuse(503, "too many pages follow this simulator"));
    // Subscribed first, so that nothing is missed between the welcome and the first event.
    std::string first = "retry: 500\n\n";
    for (const ServerEvent &event : welcome())
        first += event.wire();
    auto lastWord = std::make_shared<std::chrono::steady_clock::time_point>(std::chrono::steady_clock::now());
    const auto provide = [subscription, first, lastWord](std::size_t offset, httplib::DataSink &sink) {
        if (offset == 0)
            return sink.write(first.data(), first.size());
        if (subscription->closed()) {
            sink.done();
            return true;
        }
        std::string text;
        if (const auto event = subscription->next(patience))
            text = event->wire();
        else if (std::chrono::steady_clock::now() - *lastWord > heartbeat)
            text = ": still here\n\n";
        if (text.empty())
            return sink.is_writable();
        *lastWord = std::chrono::steady_clock::now();
        return sink.write(text.data(), text.size());
    };
    response.set_chunked_content_provider("text/event-stream", provide,
                                          [this, subscription](bool) { _hub.unsubscribe(subscription); });
}

void HttpServer::serveFile(const httplib::Request &request, httplib::Response &response) const {
    const auto file = _files.read(request.path == "/" ? "/index.html" : request.path);
    if (!file)
        return answer(response, refuse(404, reasonOfStatus(404)));
    response.set_content(file->content, file->type);
}

bool HttpServer::start() {
    _server.Get(".*", [this](const httplib::Request &request, httplib::Response &response) {
        serveFile(request, response);
    });
    const std::string loopback = "127.0.0.1";
    if (_options.port == 0)
        _port = _server.bind_to_any_port(loopback);
    else
        _port = _server.bind_to_port(loopback, _options.port) ? _options.port : -1;
    if (_port <= 0)
        return false;
    _guard = std::make_unique<Guard>(_options.token, _port);
    _listener = std::thread([this] { _server.listen_after_bind(); });
    return true;
}

void HttpServer::stop() {
    _hub.close();
    if (!_listener.joinable())
        return;
    while (!_server.is_running())
        std::this_thread::yield(); // stop() before the listener has begun would be lost
    _server.stop();
    _listener.join();
}

std::string HttpServer::address() const {
    return "http://127.0.0.1:" + std::to_string(_port) + "/?token=" + _options.token;
}

} // namespace sim
