// Who may talk to the server: the page that was opened with the token, on this machine, and nobody else.
#pragma once

#include <httplib.h>
#include <string>

namespace sim {

enum class Verdict {
    pass,
    wrongHost,   ///< the Host header names another machine or port (a rebound name)
    wrongOrigin, ///< another site's page sends the request
    noToken,     ///< neither cookie, header nor address carries the token
};

/// The three checks that every request passes before anything else is looked at.
class Guard {
public:
    Guard(std::string token, int port);

    [[nodiscard]] Verdict check(const httplib::Request &request) const;

    /// Whether the address itself carries the token, as the first visit does.
    [[nodiscard]] bool hasTokenInAddress(const httplib::Request &request) const;

    /// The Set-Cookie value that lets a browser go on without the token in its address.
    [[nodiscard]] std::string cookie() const;

private:
    [[nodiscard]] bool isOwnHost(const std::string &host) const;
    [[nodiscard]] bool isToken(const std::string &candidate) const;
    [[nodiscard]] bool hasCookie(const httplib::Request &request) const;

    std::string _token;
    std::string _port;
};

/// 32 random hexadecimal digits from the system.
[[nodiscard]] std::string makeToken();

/// What a refused client is told.
[[nodiscard]] std::string reason(Verdict verdict);

} // namespace sim
