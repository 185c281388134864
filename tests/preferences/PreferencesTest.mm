#include "preferences/PreferencesTest.h"

#include "host/Text.h"

#include <filesystem>

namespace preferences {

namespace fs = std::filesystem;

void install(const std::string &fixture, const std::string &path) {
    const fs::path to = host::devicePath(path);
    fs::create_directories(to.parent_path());
    fs::copy(fs::path(ZV_FIXTURE_BUNDLES) / fixture, to,
             fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

PSListController *open(const std::string &name, std::string *reason) {
    return static_cast<PSListController *>(
        host::openBundle(text(ZV_FIXTURE_BUNDLES "/" + name + ".bundle"), reason));
}

id stored(const std::string &domain, const std::string &key) {
    const std::string file = host::devicePath("/var/mobile/Library/Preferences/" + domain + ".plist");
    return [[NSDictionary dictionaryWithContentsOfFile:text(file)] objectForKey:text(key)];
}

std::string storedText(const std::string &domain, const std::string &key) {
    id value = stored(domain, key);
    if (!value)
        return "";
    const bool flag = [value isKindOfClass:[[NSNumber numberWithBool:YES] class]];
    if (flag)
        return [value boolValue] ? "true" : "false";
    return host::utf8([value description]);
}

std::vector<std::string> texts(const std::string &role) {
    std::vector<std::string> found;
    (void)host::perform({.kind = host::GestureKind::scroll, .amount = 0});
    const host::Element screen = host::screen();
    for (const host::Element *element : screen.all("StaticText")) {
        if (element->text("role") == role)
            found.push_back(element->label);
    }
    return found;
}

std::string accessory(const std::string &row) {
    return support::Person().row(row).text("accessory");
}

std::vector<std::string> checked() {
    std::vector<std::string> labels;
    const host::Element screen = host::screen();
    for (const host::Element *cell : screen.all("Cell")) {
        if (cell->text("accessory") == "checkmark")
            labels.push_back(cell->label);
    }
    return labels;
}

std::vector<std::string> notifications() {
    return host::eventTexts(host::EventKind::notification);
}

bool complained(const std::string &about) {
    for (const std::string &text : host::eventTexts(host::EventKind::log)) {
        if (text.find(about) != std::string::npos)
            return true;
    }
    return false;
}

std::string trace() {
    return storedText("org.example.jukebox.trace", "last");
}

NSString *text(const std::string &utf8) {
    return host::string(utf8);
}

} // namespace preferences
