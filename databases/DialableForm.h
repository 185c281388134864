// The dialable form of a phone number: what is left of it that a keypad can send.
#pragma once

#include <stddef.h>

namespace zv {

/// Digits and "#", "*", "+", "," and ";" are dialable; letters are not turned into keypad digits.
constexpr bool isDialable(char byte) {
    return (byte >= '0' && byte <= '9') || byte == '#' || byte == '*' || byte == '+' || byte == ',' ||
           byte == ';';
}

/// The dialable bytes of a text, from at most its first 255 bytes, ended by a null byte.
class DialableForm {
public:
    /// `utf8` may be null: then the form is empty. Bytes of a character that the limit cuts are not dialable
    /// anyway.
    explicit DialableForm(const char *utf8);

    [[nodiscard]] const char *bytes() const { return m_bytes; }
    [[nodiscard]] size_t length() const { return m_length; }
    [[nodiscard]] bool isEmpty() const { return m_length == 0; }

private:
    static constexpr size_t limit = 255;
    char m_bytes[limit + 1];
    size_t m_length = 0;
};

} // namespace zv
