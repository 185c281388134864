// Any bytes as the old-style text form, the form of string tables.
#include "Foundation/PropertyListReading.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    @autoreleasepool {
        [host::newObjectOfText({reinterpret_cast<const char *>(data), size}, host::RootMutability::immutable)
            release];
    }
    return 0;
}
