#include "host/PrivateDefaults.h"

#include "host/Failure.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

std::string &folder() {
    static auto &path = *new std::string;
    return path;
}

void removeFolder() {
    std::error_code ignored;
    fs::remove_all(folder(), ignored);
}

std::string makeFolder() {
    std::string path = (fs::temp_directory_path() / "zelvora-defaults-XXXXXX").string();
    if (!mkdtemp(path.data()))
        fail("no temporary folder " + path);
    return path;
}

// GNUstep finds its folders through a configuration file, which it reads when it first needs one.
void configure(const std::string &file) {
    std::ofstream(file) << "GNUSTEP_USER_DEFAULTS_DIR=" << folder() << "/Defaults\n"
                        << "GNUSTEP_USER_CONFIG_FILE=.none\n";
    setenv("GNUSTEP_CONFIG_FILE", file.c_str(), 1);
}

} // namespace

void usePrivateDefaults() {
    if (!folder().empty())
        return;
    folder() = makeFolder();
    std::atexit(removeFolder);
    configure(folder() + "/GNUstep.conf");
}

} // namespace host
