// Steps through the tags and texts of an XML document, as far as property lists need it: no name spaces, no
// entities of its own, attributes skipped.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace host {

struct XMLTag {
    enum class Kind {
        none,  ///< no tag: other text, damage or the end
        open,  ///< <name ...>
        close, ///< </name>
        empty, ///< <name/>
    };
    Kind kind = Kind::none;
    std::string_view name;

    [[nodiscard]] bool isCloseOf(std::string_view other) const {
        return kind == Kind::close && name == other;
    }
};

class XMLCursor {
public:
    explicit XMLCursor(std::string_view bytes) : m_rest(bytes) {}

    /// The next tag after white space, comments, processing instructions and the document type.
    XMLTag nextTag();

    /// The text up to the next tag, references and CDATA sections resolved; valid until the next call.
    /// Nothing when the document ends first or a reference is unknown.
    std::optional<std::string_view> text();

private:
    bool skipPast(std::string_view end);
    bool skipDocumentType();
    bool skipToTag();
    bool appendReference(std::string_view reference);
    bool appendPlain(std::string_view text);
    bool appendCharacterData();

    std::string_view m_rest;
    std::string m_text;
};

} // namespace host
