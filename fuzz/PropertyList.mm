// Any bytes as a property list: nothing may crash, leak or raise, and what was read must be read again from
// what is written.
#include "Foundation/PropertyList.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    @autoreleasepool {
        const id root = host::propertyList({reinterpret_cast<const char *>(data), size});
        if (!root)
            return 0;
        const auto document = host::propertyListDocument(root);
        // Dates beyond the calendar and keys that differ only by lone surrogates have no document of their
        // own.
        if (document && !host::propertyList(*document))
            std::abort();
    }
    return 0;
}
