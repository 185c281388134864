// Values that AddressBook's Copy functions hand out: each is counted until it is freed, so that a test can
// tell whether every one was released.
#pragma once

#import <Foundation/Foundation.h>

#include <string>

namespace host {

/// Values handed out and not freed yet.
[[nodiscard]] long outstandingCopies();

/// A counted string that the caller owns.
[[nodiscard]] NSString *newCountedString(std::u16string text);
/// The same with the text of `text`; nil for nil.
[[nodiscard]] NSString *newCountedString(NSString *text);

/// One more, or one fewer, counted value that is no string.
void countCopy(long change);

} // namespace host
