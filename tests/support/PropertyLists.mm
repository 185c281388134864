#include "support/PropertyLists.h"

namespace support {

namespace {

std::string escaped(const std::string &text) {
    std::string result;
    for (char character : text) {
        switch (character) {
        case '&': result += "&amp;"; break;
        case '<': result += "&lt;"; break;
        case '>': result += "&gt;"; break;
        default: result += character;
        }
    }
    return result;
}

} // namespace

std::string propertyList(const Entries &entries) {
    std::string xml =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
        "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
        "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">\n<dict>\n";
    for (const auto &[key, value] : entries)
        xml += "\t<key>" + escaped(key) + "</key>\n\t<string>" + escaped(value) + "</string>\n";
    return xml + "</dict>\n</plist>\n";
}

Entries entriesOf(const TestDevice &device, const std::string &path) {
    NSDictionary *dictionary = [NSDictionary dictionaryWithContentsOfFile:text(device.path(path))];
    if (!dictionary)
        return {{"?", "unreadable"}};
    Entries entries;
    for (NSString *key in dictionary)
        entries[text(key)] = text([[dictionary objectForKey:key] description]);
    return entries;
}

} // namespace support
