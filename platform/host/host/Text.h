// Between Foundation's strings and the C++ ones.
#pragma once

#import <Foundation/NSString.h>

#include <string>

namespace host {

/// UTF-8 of `text`; empty for nil. A lone surrogate, which has no UTF-8, becomes U+FFFD.
[[nodiscard]] std::string utf8(NSString *text);

/// UTF-16 of `text`; empty for nil.
[[nodiscard]] std::u16string utf16(NSString *text);

/// A string of UTF-8 bytes; ill-formed ones become U+FFFD.
[[nodiscard]] NSString *string(const std::string &bytes);

/// A string of UTF-16 units, lone surrogates included.
[[nodiscard]] NSString *string(const std::u16string &units);

} // namespace host
