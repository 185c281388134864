// Numbers that name live objects to the outside: elements carry them, gestures bring them back.
#pragma once

#import <Foundation/NSObject.h>

#include <cstdint>

namespace host {

/// A number that names `object` until forgetNumber(); never 0, never given twice.
[[nodiscard]] std::uint64_t giveNumber(id object);

/// To be called before a numbered object goes away.
void forgetNumber(std::uint64_t number);

/// The live object of that number, or nil.
[[nodiscard]] id numberedObject(std::uint64_t number);

} // namespace host
