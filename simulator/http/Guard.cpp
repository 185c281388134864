#include "simulator/http/Guard.h"

#include <random>

namespace sim {

namespace {

/// Cookies know no ports: the name tells simulators on different ports apart.
std::string cookieName(const std::string &port) {
    return "zelvora-" + port;
}

} // namespace

Guard::Guard(std::string token, int port) : _token(std::move(token)), _port(std::to_string(port)) {
}

Verdict Guard::check(const httplib::Request &request) const {
    if (request.get_header_value_count("Host") != 1 || !isOwnHost(request.get_header_value("Host")))
        return Verdict::wrongHost;
    if (request.has_header("Origin")) {
        const std::string origin = request.get_header_value("Origin");
        if (!origin.starts_with("http://") || !isOwnHost(origin.substr(7)))
            return Verdict::wrongOrigin;
    }
    const bool known = hasTokenInAddress(request) || hasCookie(request) ||
                       isToken(request.get_header_value("X-Zelvora-Token"));
    return known ? Verdict::pass : Verdict::noToken;
}

bool Guard::hasTokenInAddress(const httplib::Request &request) const {
    return request.has_param("token") && isToken(request.get_param_value("token"));
}

std::string Guard::cookie() const {
    return cookieName(_port) + "=" + _token + "; Path=/; HttpOnly; SameSite=Strict";
}

bool Guard::isOwnHost(const std::string &host) const {
    return host == "127.0.0.1:" + _port || host == "localhost:" + _port;
}

bool Guard::isToken(const std::string &candidate) const {
    if (candidate.size() != _token.size())
        return false;
    unsigned char differences = 0; // no early exit: the time taken must not tell how much was right
    for (std::size_t i = 0; i < candidate.size(); i++)
        differences |= static_cast<unsigned char>(candidate[i] ^ _token[i]);
    return differences == 0;
}

bool Guard::hasCookie(const httplib::Request &request) const {
    const std::string name = cookieName(_port) + "=";
    const std::string cookies = "; " + request.get_header_value("Cookie");
    const std::size_t found = cookies.find("; " + name);
    if (found == std::string::npos)
        return false;
    const std::size_t start = found + 2 + name.size();
    return isToken(cookies.substr(start, cookies.find(';', start) - start));
}

std::string makeToken() {
    static constexpr char digits[] = "0123456789abcdef";
    std::random_device random;
    std::uniform_int_distribution<int> digit(0, 15);
    std::string token(32, '0');
    for (char &character : token)
        character = digits[digit(random)];
    return token;
}

std::string reason(Verdict verdict) {
    switch (verdict) {
    case Verdict::pass: break;
    case Verdict::wrongHost: return "the Host header does not name this server";
    case Verdict::wrongOrigin: return "requests from other sites are not answered";
    case Verdict::noToken: return "the token is missing or wrong; use the address that ./zv run printed";
    }
    return {};
}

} // namespace sim
