// Property lists as Apple's Property List Programming Guide describes them: XML (PropertyList-1.0.dtd), the
// binary form and the old-style text form are read, XML is written. Nothing here raises: damaged input
// reads as nil, what is not a property list is not written.
#pragma once

#import <Foundation/Foundation.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Whether the outermost dictionary or array is made mutable; what it contains never is.
enum class RootMutability { immutable, mutableRoot };

/// Containers may lie in each other this deep; deeper lists are damaged or unwritable.
constexpr int deepestPropertyList = 512;

/// The object of the bytes in any of the forms, or nil. Empty bytes and white space alone are an empty
/// dictionary.
[[nodiscard]] id propertyList(std::string_view bytes, RootMutability mutability = RootMutability::immutable);

/// The same of a file; nil for a nil path or a file that cannot be read.
[[nodiscard]] id propertyListOfFile(NSString *path, RootMutability mutability = RootMutability::immutable);

/// The XML document of `root` in Apple's form: keys sorted by UTF-16 unit, a tab a level, only & < > escaped,
/// a new line at the end. Control characters stand as they are, as on the phone; a lone surrogate becomes
/// U+FFFD. Nothing when some member is not a property-list object or some key not a string.
[[nodiscard]] std::optional<std::string> propertyListDocument(id root);

/// Writes that document to a file and records it as an event. An atomic write keeps the old file until the
/// new one is complete. NO, and no file changed, when `root` is not a property list; NO when the file cannot
/// be written.
[[nodiscard]] BOOL writePropertyList(id root, NSString *path, BOOL atomically);

} // namespace host
