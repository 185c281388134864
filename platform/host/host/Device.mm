#include "host/Device.h"

#include "host/DelayedCalls.h"
#include "host/EventLog.h"
#include "host/Failure.h"
#include "host/Languages.h"
#include "host/PrivateDefaults.h"
#include "host/Work.h"

#import <Foundation/Foundation.h>

#include <filesystem>
#include <system_error>

namespace host {
namespace {

namespace fs = std::filesystem;

DeviceOptions options;

void makeFolder() {
    std::error_code error;
    fs::create_directories(options.folder, error);
    const fs::path folder = fs::canonical(options.folder, error);
    if (error)
        fail("no device folder " + options.folder + ": " + error.message());
    options.folder = folder.string();
}

// A list in the text form that GNUstep reads from the command line.
std::string quotedList(const std::vector<std::string> &names) {
    std::string list;
    for (const std::string &name : names)
        list += (list.empty() ? "(\"" : ", \"") + name + "\"";
    return list + ")";
}

// The only way to choose GNUstep's language from within the process: before it reads its user defaults,
// as an argument of the process.
void chooseLanguage() {
    std::string program = fs::read_symlink("/proc/self/exe").string();
    std::string option = "-NSLanguages";
    std::string list = quotedList(languageFolders(options.language));
    char *arguments[] = {program.data(), option.data(), list.data(), nullptr};
    GSInitializeProcess(3, arguments, environ);
}

void checkLanguage() {
    NSString *first = [[NSUserDefaults userLanguages] objectAtIndex:0];
    if (options.language != [first UTF8String])
        fail("the language is already " + std::string([first UTF8String]));
}

} // namespace

void start(const DeviceOptions &wanted) {
    const bool again = !options.folder.empty();
    options = wanted;
    makeFolder();
    @autoreleasepool {
        usePrivateDefaults();
        if (!again)
            chooseLanguage();
        checkLanguage();
        resetClock(options.virtualTime);
        forgetEvents();
        watchForWork();
    }
}

const DeviceOptions &device() {
    return options;
}

void setSystemVersion(const std::string &version) {
    options.systemVersion = version;
}

void setNameOrder(int sortOrdering, int compositeNameFormat) {
    options.sortOrdering = sortOrdering;
    options.compositeNameFormat = compositeNameFormat;
}

std::string localeIdentifier() {
    return localeFor(options.language, options.region);
}

std::string devicePath(const std::string &path) {
    if (options.folder.empty())
        fail("host::start() comes before any path of the phone");
    const std::string absolute = "/" + path;
    return options.folder + fs::path(absolute).lexically_normal().string();
}

std::string phonePath(const std::string &path) {
    const std::string normal = fs::path(path).lexically_normal().string();
    const std::string &folder = options.folder;
    if (folder.empty() || !normal.starts_with(folder + "/"))
        return {};
    return normal.substr(folder.size());
}

} // namespace host
