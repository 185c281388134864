#include "simulator/HttpClient.h"

namespace sim {

class AGuardedServer : public ServerTest {
protected:
    void SetUp() override { start(); }
};

TEST_F(AGuardedServer, RefusesARequestWithoutTheToken) {
    const auto result = client().Get("/api/hello");
    EXPECT_EQ(result->status, 403);
    EXPECT_NE(reasonOf(result), "");
}

TEST_F(AGuardedServer, RefusesThePageItselfWithoutTheToken) {
    EXPECT_EQ(client().Get("/")->status, 403);
}

TEST_F(AGuardedServer, RefusesAWrongTokenOfTheSameLength) {
    const auto result = client().Get("/api/hello", {{"X-Zelvora-Token", "0123456789abcdef0123456789abcdee"}});
    EXPECT_EQ(result->status, 403);
}

TEST_F(AGuardedServer, RefusesTheBeginningOfTheToken) {
    EXPECT_EQ(client().Get("/api/hello", {{"X-Zelvora-Token", "0123456789abcdef"}})->status, 403);
    EXPECT_EQ(client().Get("/api/hello?token=")->status, 403);
}

TEST_F(AGuardedServer, TakesTheTokenInAHeader) {
    EXPECT_EQ(client().Get("/api/hello", known())->status, 200);
}

TEST_F(AGuardedServer, TakesTheTokenInTheAddress) {
    EXPECT_EQ(client().Get(std::string("/api/hello?token=") + token)->status, 200);
}

TEST_F(AGuardedServer, GivesTheFirstVisitACookieAndAnAddressWithoutTheToken) {
    const auto visit = client().Get(std::string("/?token=") + token);
    EXPECT_EQ(visit->status, 302);
    EXPECT_EQ(visit->get_header_value("Location"), "/");
    const std::string cookie = visit->get_header_value("Set-Cookie");
    EXPECT_NE(cookie.find("HttpOnly"), std::string::npos);
    EXPECT_NE(cookie.find("SameSite=Strict"), std::string::npos);
    const auto next =
        client().Get("/api/hello", {{"Cookie", "other=1; " + cookie.substr(0, cookie.find(';'))}});
    EXPECT_EQ(next->status, 200);
}

TEST_F(AGuardedServer, DoesNotTakeTheCookieOfAnotherPort) {
    const std::string other = "zelvora-" + std::to_string(server->port() + 1) + "=" + token;
    EXPECT_EQ(client().Get("/api/hello", {{"Cookie", other}})->status, 403);
}

TEST_F(AGuardedServer, RefusesAnotherHostName) {
    const std::string port = ":" + std::to_string(server->port());
    for (const std::string &host : {"example.com" + port, "127.0.0.1.example.com" + port,
                                    std::string("127.0.0.1"), std::string("127.0.0.1:1"), "127.0.0.2" + port})
        EXPECT_EQ(client().Get("/api/hello", withHost(host))->status, 403) << host;
}

TEST_F(AGuardedServer, AnswersToLocalhost) {
    EXPECT_EQ(client().Get("/api/hello", withHost("localhost:" + std::to_string(server->port())))->status,
              200);
}

TEST_F(AGuardedServer, RefusesPagesOfOtherSites) {
    for (const std::string origin :
         {"http://example.com", "null", "https://127.0.0.1", "http://127.0.0.1:1"}) {
        auto headers = known();
        headers.emplace("Origin", origin);
        EXPECT_EQ(client().Get("/api/hello", headers)->status, 403) << origin;
    }
}

TEST_F(AGuardedServer, AnswersItsOwnPage) {
    auto headers = known();
    headers.emplace("Origin", "http://127.0.0.1:" + std::to_string(server->port()));
    EXPECT_EQ(client().Post("/api/echo", headers, "{}", "application/json")->status, 200);
}

TEST_F(AGuardedServer, ForbidsThePageToLoadAnythingFromElsewhere) {
    const std::string policy =
        client().Get("/api/hello", known())->get_header_value("Content-Security-Policy");
    EXPECT_NE(policy.find("default-src 'none'"), std::string::npos);
    EXPECT_EQ(policy.find("unsafe"), std::string::npos);
}

TEST(Tokens, AreLongAndNeverTheSame) {
    EXPECT_EQ(makeToken().size(), 32U);
    EXPECT_NE(makeToken(), makeToken());
}

} // namespace sim
