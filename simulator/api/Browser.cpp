#include "simulator/api/Browser.h"

#include <cstdlib>
#include <filesystem>
#include <spawn.h>
#include <unistd.h>

namespace sim {

namespace {

bool hasDesktop() {
    return std::getenv("DISPLAY") || std::getenv("WAYLAND_DISPLAY");
}

/// A page that leads to `address`; "" when it cannot be written.
std::string writeSignpost(const std::string &address) {
    std::string path = std::filesystem::temp_directory_path() / "zelvora-XXXXXX.html";
    const int file = mkstemps(path.data(), 5); // readable by this user alone
    if (file < 0)
        return {};
    const std::string text = "<meta http-equiv=\"refresh\" content=\"0;url=" + address + "\">\n";
    const bool written = write(file, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    close(file);
    return written ? path : std::string();
}

} // namespace

void showInBrowser(const std::string &address) {
    std::string signpost = hasDesktop() ? writeSignpost(address) : std::string();
    if (signpost.empty())
        return;
    std::string opener = "xdg-open";
    char *arguments[] = {opener.data(), signpost.data(), nullptr};
    pid_t child = 0;
    posix_spawnp(&child, opener.c_str(), nullptr, nullptr, arguments, environ);
}

} // namespace sim
