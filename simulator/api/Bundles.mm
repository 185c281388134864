#include "simulator/api/Bundles.h"

#include "host/Control.h"

#import <Foundation/Foundation.h>

#include <algorithm>
#include <set>

namespace sim {

namespace fs = std::filesystem;

namespace {

std::vector<fs::path> childrenEndingIn(const fs::path &folder, const std::string &ending) {
    std::vector<fs::path> found;
    std::error_code failed;
    for (const auto &entry : fs::directory_iterator(folder, failed)) {
        if (entry.path().extension() == ending)
            found.push_back(entry.path());
    }
    std::sort(found.begin(), found.end());
    return found;
}

} // namespace

std::vector<fs::path> bundleFolders(const Options &options) {
    const fs::path given = options.bundles.empty() ? ZV_BUNDLE_PATH : options.bundles;
    std::error_code failed;
    const bool isBundle = given.extension() == ".bundle" || fs::exists(given / "Info.plist", failed);
    if (isBundle && fs::is_directory(given, failed))
        return {given};
    return childrenEndingIn(given, ".bundle");
}

std::vector<std::string> bundleNames(const Options &options) {
    std::vector<std::string> names;
    for (const fs::path &folder : bundleFolders(options))
        names.push_back(folder.stem());
    return names;
}

std::vector<std::string> bundleLanguages(const Options &options) {
    std::set<std::string> languages = {"en"};
    for (const fs::path &folder : bundleFolders(options)) {
        for (const fs::path &language : childrenEndingIn(folder, ".lproj"))
            languages.insert(language.stem());
    }
    return {languages.begin(), languages.end()};
}

bool showBundle(const Options &options, const std::string &name) {
    for (const fs::path &folder : bundleFolders(options)) {
        if (folder.stem() != name)
            continue;
        std::string reason;
        if (host::openBundle([NSString stringWithUTF8String:fs::absolute(folder).c_str()], &reason))
            return true;
        host::record(host::EventKind::log, "the bundle " + name + " cannot be opened", reason);
    }
    return false;
}

} // namespace sim
