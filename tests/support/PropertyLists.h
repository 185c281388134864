// Property lists whose root dictionary maps texts to texts, as lists are kept on the phone.
#pragma once

#include "support/TestDevice.h"

#include <map>
#include <string>

#import <Foundation/Foundation.h>

namespace support {

using Entries = std::map<std::string, std::string>;

/// The XML of a property list with these entries.
[[nodiscard]] std::string propertyList(const Entries &entries);

/// What the property list at the phone's `path` holds; {"?": "unreadable"} where it cannot be read, so that
/// no expectation matches by accident. Values that are no texts show as their description.
[[nodiscard]] Entries entriesOf(const TestDevice &device, const std::string &path);

[[nodiscard]] inline NSString *text(const std::string &utf8) {
    return [NSString stringWithUTF8String:utf8.c_str()];
}

[[nodiscard]] inline std::string text(NSString *string) {
    return string ? [string UTF8String] : "";
}

} // namespace support
