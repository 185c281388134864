#include "Foundation/XMLCursor.h"

#include "host/Unicode.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace host {
namespace {

constexpr std::string_view whiteSpace = " \t\r\n";
constexpr std::string_view characterDataStart = "<![CDATA[";

struct Entity {
    std::string_view name;
    char character;
};

constexpr std::array entities{Entity{"amp", '&'}, Entity{"lt", '<'}, Entity{"gt", '>'}, Entity{"quot", '"'},
                              Entity{"apos", '\''}};

std::optional<char32_t> codePoint(std::string_view digits) {
    const bool hexadecimal = digits.starts_with('x');
    if (hexadecimal)
        digits.remove_prefix(1);
    std::uint32_t value = 0;
    const char *end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, value, hexadecimal ? 16 : 10);
    if (error != std::errc() || stop != end || !isScalar(value))
        return std::nullopt;
    return value;
}

} // namespace

bool XMLCursor::skipPast(std::string_view end) {
    const std::size_t found = m_rest.find(end);
    if (found == std::string_view::npos)
        return false;
    m_rest.remove_prefix(found + end.size());
    return true;
}

// An internal subset stands in brackets and has declarations of its own.
bool XMLCursor::skipDocumentType() {
    const std::size_t stop = m_rest.find_first_of("[>");
    if (stop == std::string_view::npos)
        return false;
    if (m_rest[stop] == '[' && !skipPast("]"))
        return false;
    return skipPast(">");
}

bool XMLCursor::skipToTag() {
    for (;;) {
        m_rest.remove_prefix(std::min(m_rest.find_first_not_of(whiteSpace), m_rest.size()));
        bool skipped = false;
        if (m_rest.starts_with("<!--"))
            skipped = skipPast("-->");
        else if (m_rest.starts_with("<?"))
            skipped = skipPast("?>");
        else if (m_rest.starts_with("<!"))
            skipped = skipDocumentType();
        else
            return m_rest.starts_with('<');
        if (!skipped)
            return false;
    }
}

XMLTag XMLCursor::nextTag() {
    if (!skipToTag())
        return {};
    const std::size_t end = m_rest.find('>');
    if (end == std::string_view::npos)
        return {};
    std::string_view inner = m_rest.substr(1, end - 1);
    m_rest.remove_prefix(end + 1);
    if (inner.starts_with('/')) {
        inner.remove_prefix(1);
        return {XMLTag::Kind::close, inner.substr(0, inner.find_first_of(whiteSpace))};
    }
    const auto kind = inner.ends_with('/') ? XMLTag::Kind::empty : XMLTag::Kind::open;
    return {kind, inner.substr(0, inner.find_first_of(" \t\r\n/"))};
}

bool XMLCursor::appendReference(std::string_view reference) {
    if (reference.starts_with('#')) {
        const std::optional<char32_t> character = codePoint(reference.substr(1));
        if (character)
            appendUTF8(*character, m_text);
        return character.has_value();
    }
    const auto *entity = std::find_if(entities.begin(), entities.end(), [reference](const Entity &candidate) {
        return candidate.name == reference;
    });
    if (entity == entities.end())
        return false;
    m_text += entity->character;
    return true;
}

bool XMLCursor::appendPlain(std::string_view text) {
    for (;;) {
        const std::size_t ampersand = text.find('&');
        m_text += text.substr(0, ampersand);
        if (ampersand == std::string_view::npos)
            return true;
        const std::size_t end = text.find(';', ampersand);
        if (end == std::string_view::npos)
            return false;
        if (!appendReference(text.substr(ampersand + 1, end - ampersand - 1)))
            return false;
        text.remove_prefix(end + 1);
    }
}

bool XMLCursor::appendCharacterData() {
    const std::string_view start = m_rest.substr(characterDataStart.size());
    if (!skipPast("]]>"))
        return false;
    m_text += start.substr(0, start.size() - m_rest.size() - 3);
    return true;
}

std::optional<std::string_view> XMLCursor::text() {
    m_text.clear();
    for (bool first = true;; first = false) {
        const std::size_t end = m_rest.find('<');
        if (end == std::string_view::npos)
            return std::nullopt;
        const std::string_view plain = m_rest.substr(0, end);
        m_rest.remove_prefix(end);
        const bool isCharacterData = m_rest.starts_with(characterDataStart);
        // Nearly every text is plain, and is then not copied.
        if (first && !isCharacterData && plain.find('&') == std::string_view::npos)
            return plain;
        if (!appendPlain(plain))
            return std::nullopt;
        if (!isCharacterData)
            return m_text;
        if (!appendCharacterData())
            return std::nullopt;
    }
}

} // namespace host
