#include "simulator/HttpClient.h"

#include <arpa/inet.h>
#include <filesystem>
#include <fstream>
#include <sys/socket.h>
#include <unistd.h>

namespace sim {

namespace {

/// A bare connection, for what a well-behaved client does not send.
class Connection {
public:
    explicit Connection(int port) : _socket(socket(AF_INET, SOCK_STREAM, 0)) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_port = htons(static_cast<std::uint16_t>(port));
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        _open = connect(_socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0;
    }
    ~Connection() { close(_socket); }
    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    [[nodiscard]] bool open() const { return _open; }

    void send(const std::string &text) const { (void)!write(_socket, text.data(), text.size()); }

    /// What has come in by the time that `wanted` is in it or the server closes.
    std::string readUntil(const std::string &wanted) {
        char buffer[4096];
        while (_read.find(wanted) == std::string::npos) {
            const ssize_t count = read(_socket, buffer, sizeof buffer);
            if (count <= 0)
                break;
            _read.append(buffer, static_cast<std::size_t>(count));
        }
        return _read;
    }

private:
    int _socket;
    bool _open = false;
    std::string _read;
};

std::string get(const std::string &path, int port, const std::string &token) {
    return "GET " + path + " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(port) +
           "\r\nX-Zelvora-Token: " + token + "\r\n\r\n";
}

} // namespace

class AServer : public ServerTest {};

TEST_F(AServer, AnswersInJson) {
    start();
    const auto result = client().Get("/api/hello", known());
    EXPECT_EQ(result->get_header_value("Content-Type"), "application/json");
    EXPECT_EQ(Json::parse(result->body), Json({{"hello", "you"}}));
}

TEST_F(AServer, TellsWhenThereIsNothingAtAnAddress) {
    start();
    const auto result = client().Get("/api/nothing", known());
    EXPECT_EQ(result->status, 404);
    EXPECT_NE(reasonOf(result), "");
}

TEST_F(AServer, RefusesWhatIsNotJson) {
    start();
    for (const std::string body : {"", "{", "{\"a\":}", "nonsense", "{\"a\":\"\xff\"}"}) {
        const auto result = post(body);
        EXPECT_EQ(result->status, 400) << body;
        EXPECT_NE(reasonOf(result), "") << body;
    }
}

TEST_F(AServer, RefusesJsonThatIsNoObject) {
    start();
    for (const std::string body : {"[]", "1", "null", "\"text\""})
        EXPECT_EQ(post(body)->status, 400) << body;
}

TEST_F(AServer, SurvivesDeeplyNestedJson) {
    start({.largestBody = 1024 * 1024});
    const std::string deep = "{\"a\":" + std::string(100'000, '[') + std::string(100'000, ']') + "}";
    EXPECT_EQ(post("[" + deep)->status, 400);
    EXPECT_EQ(client().Get("/api/hello", known())->status, 200);
}

TEST_F(AServer, RefusesFormsThatAnotherSiteCouldSend) {
    start();
    for (const char *type : {"text/plain", "application/x-www-form-urlencoded"})
        EXPECT_EQ(post("{}", type)->status, 415) << type;
}

TEST_F(AServer, RefusesALargeRequest) {
    start({.largestBody = 1000});
    const auto result = post("{\"a\":\"" + std::string(2000, 'x') + "\"}");
    EXPECT_EQ(result->status, 413);
    EXPECT_NE(reasonOf(result), "");
}

TEST_F(AServer, RefusesALongAddress) {
    start();
    const auto result = client().Get("/" + std::string(9000, 'x'), known());
    EXPECT_GE(result->status, 400);
    EXPECT_LT(result->status, 500);
}

TEST_F(AServer, RefusesWhatIsNotHttp) {
    start();
    Connection connection(server->port());
    connection.send("hello, is there anybody?\r\n\r\n");
    EXPECT_NE(connection.readUntil("\r\n").find(" 400 "), std::string::npos);
}

TEST_F(AServer, KeepsTheReasonOfItsOwnFaultsToItself) {
    start();
    const auto result = client().Get("/api/fault", known());
    EXPECT_EQ(result->status, 500);
    EXPECT_EQ(result->body.find("secret"), std::string::npos);
}

TEST_F(AServer, ListensOnTheLoopbackInterfaceOnly) {
    start();
    std::ifstream table("/proc/net/tcp");
    const std::string all{std::istreambuf_iterator<char>(table), {}};
    char port[8];
    snprintf(port, sizeof port, ":%04X", static_cast<unsigned>(server->port()));
    EXPECT_NE(all.find("0100007F" + std::string(port)), std::string::npos);
    EXPECT_EQ(all.find("00000000" + std::string(port)), std::string::npos);
}

TEST_F(AServer, DoesNotShareItsPort) {
    start();
    HttpServer second({.token = token, .port = server->port()});
    EXPECT_FALSE(second.start());
}

TEST_F(AServer, LetsItsPortBeTakenOverAtOnce) {
    start();
    const int port = server->port();
    EXPECT_EQ(client().Get("/api/hello", known())->status, 200);
    server->stop();
    HttpServer next({.token = token, .port = port});
    EXPECT_TRUE(next.start());
}

TEST_F(AServer, AnswersOthersWhileSlowClientsSayNothing) {
    start({.threads = 4});
    const Connection one(server->port());
    const Connection two(server->port());
    EXPECT_EQ(client().Get("/api/hello", known())->status, 200);
}

TEST_F(AServer, AnswersAfterMoreClientsThanThreadsHaveComeAndGone) {
    start({.threads = 2, .waitingConnections = 2});
    for (int i = 0; i < 20; i++) {
        const Connection connection(server->port());
        EXPECT_TRUE(connection.open());
    }
    EXPECT_EQ(client().Get("/api/hello", known())->status, 200);
}

TEST_F(AServer, TellsAPageWhatHappens) {
    start();
    Connection page(server->port());
    page.send(get("/api/stream", server->port(), token));
    EXPECT_NE(page.readUntil("event: hello\ndata: {}").find("text/event-stream"), std::string::npos);
    server->hub().publish({"event", R"({"number":1})"});
    const std::string expected = "event: event\ndata: {\"number\":1}\n\n";
    EXPECT_NE(page.readUntil(expected).find(expected), std::string::npos);
}

TEST_F(AServer, RefusesMorePagesThanItCanTell) {
    start({.streams = 2});
    Connection pages[] = {Connection(server->port()), Connection(server->port())};
    for (Connection &page : pages) {
        page.send(get("/api/stream", server->port(), token));
        (void)page.readUntil("event: hello");
    }
    const auto third = client().Get("/api/stream", known());
    EXPECT_EQ(third->status, 503);
    EXPECT_NE(reasonOf(third), "");
}

TEST_F(AServer, HasRoomAgainWhenAPageHasGone) {
    start({.streams = 1});
    {
        Connection page(server->port());
        page.send(get("/api/stream", server->port(), token));
        (void)page.readUntil("event: hello");
    }
    std::string seen;
    while (seen.find("event: hello") == std::string::npos) { // ends at the latest when the test times out
        Connection next(server->port());
        next.send(get("/api/stream", server->port(), token));
        seen = next.readUntil("event: hello");
    }
    SUCCEED();
}

class ServedFiles : public ServerTest {
protected:
    void SetUp() override {
        folder = std::filesystem::path(testing::TempDir()) / ("zv-files-" + std::to_string(getpid()));
        std::filesystem::create_directories(folder / "web" / "parts");
        write("secret.txt", "secret");
        write("web/index.html", "<p>page");
        write("web/parts/a.js", "export {}");
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    void write(const std::string &name, const std::string &text) const {
        std::ofstream(folder / name) << text;
    }

    void serve() {
        start();
        server->stop();
        server = std::make_unique<HttpServer>(ServerOptions{.token = token});
        server->files().addFolder("/", folder / "web");
        server->files().addModules("/vendor/", folder / "web");
        ASSERT_TRUE(server->start());
    }

    std::filesystem::path folder;
};

TEST_F(ServedFiles, AreFoundByTheirPath) {
    serve();
    EXPECT_EQ(client().Get("/", known())->body, "<p>page");
    EXPECT_EQ(client().Get("/parts/a.js", known())->get_header_value("Content-Type"),
              "text/javascript; charset=utf-8");
}

TEST_F(ServedFiles, OfAModuleFolderAreFoundWithoutTheirEnding) {
    serve();
    EXPECT_EQ(client().Get("/vendor/parts/a", known())->body, "export {}");
    EXPECT_EQ(client().Get("/vendor/index", known())->status, 404);
}

TEST_F(ServedFiles, AreTheOnlyOnes) {
    serve();
    for (const std::string path :
         {"/../secret.txt", "/%2e%2e/secret.txt", "/..%2fsecret.txt", "/parts/../../secret.txt",
          "//etc/passwd", "/parts", "/parts/", "/./index.html", "/index.html%00.png"}) {
        Connection connection(server->port());
        connection.send(get(path, server->port(), token));
        EXPECT_NE(connection.readUntil("\r\n").find(" 404 "), std::string::npos) << path;
    }
}

} // namespace sim
