#include "simulator/api/DeviceFolder.h"

#include "simulator/api/Bundles.h"
#include "simulator/demo/DemoDevice.h"

#include <filesystem>
#include <fstream>

namespace sim {

namespace fs = std::filesystem;

namespace {

const fs::path preferenceBundles = "Library/PreferenceBundles";
const fs::path productFolder = "Library/Zelvora";
const fs::path preferenceEntries = "Library/PreferenceLoader/Preferences";

void makeFolders(const fs::path &device) {
    for (const fs::path &folder :
         {fs::path("var/mobile/Library/Preferences"), preferenceBundles, preferenceEntries})
        fs::create_directories(device / folder);
}

void installProduct(const fs::path &device) {
    const fs::path product = ZV_PRODUCT_PATH;
    fs::create_directories(device / productFolder);
    if (fs::exists(product))
        fs::copy(product, device / productFolder,
                 fs::copy_options::recursive | fs::copy_options::skip_existing);
    installTool(device, ZV_TOOL_PATH);
}

void makeDemo(const Options &options) {
    DemoOptions demo{.now = currentTime()};
    if (options.contacts >= 0)
        demo.contacts = static_cast<std::size_t>(options.contacts);
    if (options.calls >= 0)
        demo.calls = static_cast<std::size_t>(options.calls);
    makeDemoDevice(options.device, demo);
}

std::string escaped(const std::string &text) {
    std::string safe;
    for (const char character : text) {
        if (character == '&' || character == '<')
            safe += character == '&' ? "&amp;" : "&lt;";
        else
            safe += character;
    }
    return safe;
}

/// An entry for a bundle that brings none.
std::string entryFor(const std::string &name) {
    return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict><key>entry</key><dict>
<key>cell</key><string>PSLinkCell</string>
<key>icon</key><string>icon.png</string>
<key>isController</key><true/>
<key>label</key><string>)" +
           escaped(name) + "</string>\n<key>bundle</key><string>" + escaped(name) +
           "</string>\n</dict></dict></plist>\n";
}

/// Links of an earlier start; folders that are really there belong to the person.
void removeLinkedBundles(const fs::path &device) {
    for (const auto &entry : fs::directory_iterator(device / preferenceBundles)) {
        if (!entry.is_symlink())
            continue;
        fs::remove(device / preferenceEntries / (entry.path().stem().string() + ".plist"));
        fs::remove(entry.path());
    }
}

void installBundle(const fs::path &device, const fs::path &bundle) {
    const fs::path link = device / preferenceBundles / bundle.filename();
    const std::string name = bundle.stem();
    if (fs::exists(link))
        return;
    fs::create_directory_symlink(fs::absolute(bundle), link);
    const fs::path entry = device / preferenceEntries / (name + ".plist");
    if (fs::exists(bundle / "entry.plist"))
        fs::copy_file(bundle / "entry.plist", entry, fs::copy_options::overwrite_existing);
    else
        std::ofstream(entry) << entryFor(name);
}

void prepare(const Options &options) {
    const fs::path device = options.device;
    const bool isNew = !fs::exists(device / productFolder);
    makeFolders(device);
    if (isNew)
        makeDemo(options);
    installProduct(device);
    removeLinkedBundles(device);
    for (const fs::path &bundle : bundleFolders(options))
        installBundle(device, bundle);
}

} // namespace

std::string prepareDeviceFolder(const Options &options) {
    if (bundleFolders(options).empty())
        return "there is no settings bundle in " + options.bundles;
    try {
        prepare(options);
    } catch (const fs::filesystem_error &error) {
        const std::string place = error.path1().empty() ? options.device : error.path1().string();
        return "the device folder cannot be used: " + place + ": " + error.code().message();
    } catch (const std::exception &error) {
        return error.what();
    }
    return {};
}

} // namespace sim
