// Reads the old-style text form (Property List Programming Guide, "Old-Style ASCII Property Lists") and
// string tables (.strings), which are its dictionaries without the braces. The bytes are UTF-8.
#include "Foundation/PropertyListReading.h"

#include "host/Text.h"
#include "host/Unicode.h"

#include <algorithm>
#include <cctype>
#include <charconv>

namespace host {
namespace {

bool isPlain(char byte) {
    return std::isalnum(static_cast<unsigned char>(byte)) ||
           std::string_view("_$/:.-").find(byte) != std::string_view::npos;
}

bool isOctal(char byte) {
    return byte >= '0' && byte <= '7';
}

// Takes up to `most` digits off the front of `text`.
char16_t takeNumber(std::string_view &text, std::size_t most, int base) {
    unsigned value = 0;
    const std::size_t length = std::min(most, text.size());
    const auto [stop, error] = std::from_chars(text.data(), text.data() + length, value, base);
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
    return static_cast<char16_t>(value);
}

// Octal escapes above 127 are characters of the NeXTSTEP encoding.
char16_t nextstepCharacter(char16_t code) {
    const char byte = static_cast<char>(code);
    NSString *text = [[NSString alloc] initWithBytes:&byte length:1 encoding:NSNEXTSTEPStringEncoding];
    const char16_t unit = [text length] == 1 ? [text characterAtIndex:0] : u'\uFFFD';
    [text release];
    return unit;
}

// The escape at the front of `text`, after its backslash.
char16_t takeEscape(std::string_view &text) {
    const char kind = text.front();
    if (isOctal(kind)) {
        const char16_t code = takeNumber(text, 3, 8);
        return code < 0x80 ? code : nextstepCharacter(code);
    }
    text.remove_prefix(1);
    switch (kind) {
    case 'U':
    case 'u': return takeNumber(text, 4, 16);
    case 'a': return u'\a';
    case 'b': return u'\b';
    case 'f': return u'\f';
    case 'n': return u'\n';
    case 'r': return u'\r';
    case 't': return u'\t';
    case 'v': return u'\v';
    default: return static_cast<unsigned char>(kind);
    }
}

class TextReader {
public:
    TextReader(std::string_view bytes, RootMutability mutability)
        : m_all(bytes), m_rest(bytes), m_mutability(mutability) {}

    id newRoot() {
        const id object = newObject(0);
        if (skip() && m_rest.empty())
            return object;
        const bool mayBeTable = [object isKindOfClass:[NSString class]];
        [object release];
        m_rest = m_all;
        return mayBeTable ? newDictionary(0, '\0') : nil;
    }

private:
    // White space and comments. False when a comment does not end.
    bool skip() {
        for (;;) {
            while (!m_rest.empty() && std::isspace(static_cast<unsigned char>(m_rest.front())))
                m_rest.remove_prefix(1);
            if (m_rest.starts_with("//")) {
                m_rest.remove_prefix(std::min(m_rest.find('\n'), m_rest.size()));
            } else if (m_rest.starts_with("/*")) {
                const std::size_t end = m_rest.find("*/", 2);
                if (end == std::string_view::npos)
                    return false;
                m_rest.remove_prefix(end + 2);
            } else {
                return true;
            }
        }
    }

    bool take(char wanted) {
        if (!skip() || m_rest.empty() || m_rest.front() != wanted)
            return false;
        m_rest.remove_prefix(1);
        return true;
    }

    id newObject(int depth) {
        if (!skip() || m_rest.empty() || depth > deepestPropertyList)
            return nil;
        if (take('{'))
            return newDictionary(depth, '}');
        if (take('('))
            return newArray(depth);
        if (take('<'))
            return newData();
        return newText();
    }

    // `end` is the closing brace, or 0 for a table that ends with the file.
    id newDictionary(int depth, char end) {
        Pairs pairs;
        for (;;) {
            if (!skip())
                return nil;
            if (end ? take(end) : m_rest.empty())
                return pairs.newDictionary(depth == 0 ? m_mutability : RootMutability::immutable);
            const id key = newText();
            const id value = key ? newValue(key, depth) : nil;
            if (!pairs.add(key, value) || !take(';'))
                return nil;
        }
    }

    // A key alone stands for itself.
    id newValue(id key, int depth) { return take('=') ? newObject(depth + 1) : [key retain]; }

    id newArray(int depth) {
        Members members;
        while (!take(')')) {
            const id member = newObject(depth + 1);
            if (!member)
                return nil;
            members.add(member);
            if (take(','))
                continue;
            if (!take(')'))
                return nil;
            break;
        }
        return members.newArray(depth == 0 ? m_mutability : RootMutability::immutable);
    }

    id newData() {
        std::string digits;
        while (!m_rest.empty() && m_rest.front() != '>') {
            if (!std::isspace(static_cast<unsigned char>(m_rest.front())))
                digits += m_rest.front();
            m_rest.remove_prefix(1);
        }
        if (!take('>') || digits.size() % 2 != 0 ||
            !std::all_of(digits.begin(), digits.end(),
                         [](unsigned char digit) { return std::isxdigit(digit); }))
            return nil;
        std::string bytes;
        for (std::string_view rest = digits; !rest.empty();)
            bytes += static_cast<char>(takeNumber(rest, 2, 16));
        return [[NSData alloc] initWithBytes:bytes.data() length:bytes.size()];
    }

    NSString *newText() {
        if (take('"'))
            return newQuoted('"');
        return take('\'') ? newQuoted('\'') : newPlain();
    }

    NSString *newPlain() {
        const auto *end = std::find_if_not(m_rest.begin(), m_rest.end(), isPlain);
        const auto length = static_cast<std::size_t>(end - m_rest.begin());
        const std::string_view text = m_rest.substr(0, length);
        m_rest.remove_prefix(length);
        return text.empty() ? nil : newString(text);
    }

    NSString *newQuoted(char quote) {
        std::size_t length = 0;
        bool escapes = false;
        while (length < m_rest.size() && m_rest[length] != quote) {
            const bool escape = m_rest[length] == '\\';
            escapes = escapes || escape;
            length += escape ? 2 : 1;
        }
        if (length >= m_rest.size())
            return nil;
        const std::string_view text = m_rest.substr(0, length);
        m_rest.remove_prefix(length + 1);
        return escapes ? newUnescaped(text) : newString(text);
    }

    static NSString *newUnescaped(std::string_view text) {
        std::u16string units;
        while (!text.empty()) {
            if (text.front() == '\\') {
                text.remove_prefix(1);
                units += takeEscape(text);
                continue;
            }
            const std::string_view plain = text.substr(0, text.find('\\'));
            text.remove_prefix(plain.size());
            NSString *part = newString(plain);
            if (!part)
                return nil;
            units += utf16(part);
            [part release];
        }
        return newString(units);
    }

    std::string_view m_all;
    std::string_view m_rest;
    RootMutability m_mutability;
};

} // namespace

id newObjectOfText(std::string_view bytes, RootMutability mutability) {
    return TextReader(bytes, mutability).newRoot();
}

} // namespace host
