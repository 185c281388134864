// A counted reference from C++ to an Objective-C object.
#pragma once

#import <Foundation/NSObject.h>

#include <utility>

namespace host {

/// Retains what it is given and releases it when it goes. Sending a message to it sends it to the object.
template<typename T = id>
class Retained {
public:
    Retained() = default;
    Retained(T object) : m_object([object retain]) {}
    Retained(const Retained &other) : m_object([other.m_object retain]) {}
    Retained(Retained &&other) noexcept : m_object(std::exchange(other.m_object, nil)) {}
    ~Retained() { [m_object release]; }

    Retained &operator=(Retained other) noexcept {
        std::swap(m_object, other.m_object);
        return *this;
    }

    /// Takes over a reference that the caller owns (the result of alloc, new, copy).
    static Retained adopt(T object) {
        Retained reference;
        reference.m_object = object;
        return reference;
    }

    operator T() const { return m_object; }
    [[nodiscard]] T get() const { return m_object; }

private:
    T m_object = nil;
};

} // namespace host
