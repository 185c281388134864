// The words of the people picker in the device's language.
#pragma once

#import <Foundation/Foundation.h>

#include <string_view>

namespace host {

/// One of: "All Contacts", "Info", "No Contacts", "No Results", "No Name", "Contacts Cannot Be Read".
[[nodiscard]] NSString *pickerWord(std::string_view english);

} // namespace host
