// Who holds what: variables of an object, looked at through the runtime.
#pragma once

#import <Foundation/Foundation.h>

#include <gtest/gtest.h>
#include <objc/runtime.h>
#include <string>
#include <utility>
#include <vector>

namespace support {

/// The object that an instance variable holds.
inline id variable(id object, const char *name) {
    return object_getIvar(object, class_getInstanceVariable(object_getClass(object), name));
}

/// Expects that nothing is left of what the object that `make` gives has in these variables, once that object
/// is gone. `make` gives an autoreleased object.
template<typename Make>
void expectGivesBack(const std::vector<const char *> &names, Make make) {
    std::vector<std::pair<const char *, id>> held;
    @autoreleasepool {
        id object = make();
        for (const char *name : names) {
            ASSERT_NE(variable(object, name), nil) << name;
            held.emplace_back(name, [variable(object, name) retain]);
        }
    }
    for (auto [name, value] : held) {
        EXPECT_EQ([value retainCount], 1U) << name;
        [value release];
    }
}

} // namespace support
