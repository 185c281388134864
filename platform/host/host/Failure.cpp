#include "host/Failure.h"

#include <cstdio>
#include <cstdlib>

namespace host {

void fail(const std::string &message) {
    std::fprintf(stderr, "host: %s\n", message.c_str());
    std::abort();
}

} // namespace host
