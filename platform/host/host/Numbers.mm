#include "host/Numbers.h"

#include <unordered_map>

namespace host {

namespace {

std::unordered_map<std::uint64_t, id> &objects() {
    static std::unordered_map<std::uint64_t, id> map;
    return map;
}

} // namespace

std::uint64_t giveNumber(id object) {
    static std::uint64_t last = 0;
    objects().emplace(++last, object);
    return last;
}

void forgetNumber(std::uint64_t number) {
    objects().erase(number);
}

id numberedObject(std::uint64_t number) {
    const auto found = objects().find(number);
    return found == objects().end() ? nil : found->second;
}

} // namespace host
