// Gives every file of a folder to the fuzzer's function. Fails when there is none: a corpus that cannot be
// found must not look like one that passes.
#include "host/FileContent.h"
#include "host/PrivateDefaults.h"
#include "support/LeakSuppressions.h"

#import <Foundation/Foundation.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

int main(int argc, char **argv) {
    host::usePrivateDefaults();
    int count = 0;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(argc > 1 ? argv[1] : "", error)) {
        const std::string input = host::contentOfFile(entry.path().string()).value();
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t *>(input.data()), input.size());
        ++count;
    }
    std::printf("%d inputs\n", count);
    return count == 0;
}
