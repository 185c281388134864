// Reads the XML form. Deliberately not a general XML reader: like Apple's it takes the elements of the
// property list document type as fixed names, and ignores what follows the root element.
#include "Foundation/PropertyListReading.h"
#include "Foundation/PropertyListScalars.h"
#include "Foundation/XMLCursor.h"

namespace host {
namespace {

class XMLReader {
public:
    XMLReader(std::string_view bytes, RootMutability mutability)
        : m_cursor(bytes), m_mutability(mutability) {}

    id newRoot() {
        const XMLTag tag = m_cursor.nextTag();
        return tag.name == "plist" ? newOnlyMember(tag) : newObject(tag, 0);
    }

private:
    id newOnlyMember(const XMLTag &plist) {
        if (plist.kind != XMLTag::Kind::open)
            return nil;
        const id object = newObject(m_cursor.nextTag(), 0);
        return closes("plist") ? object : drop(object);
    }

    id newObject(const XMLTag &tag, int depth) {
        if (tag.kind == XMLTag::Kind::none || tag.kind == XMLTag::Kind::close || depth > deepestPropertyList)
            return nil;
        if (tag.name == "dict")
            return newDictionary(tag, depth);
        if (tag.name == "array")
            return newArray(tag, depth);
        return newScalar(tag);
    }

    id newDictionary(const XMLTag &dict, int depth) {
        Pairs pairs;
        if (dict.kind == XMLTag::Kind::empty)
            return pairs.newDictionary(mutability(depth));
        for (;;) {
            const XMLTag tag = m_cursor.nextTag();
            if (tag.isCloseOf("dict"))
                return pairs.newDictionary(mutability(depth));
            if (tag.name != "key" || tag.kind == XMLTag::Kind::close)
                return nil;
            const id key = newText(tag);
            if (!pairs.add(key, key ? newObject(m_cursor.nextTag(), depth + 1) : nil))
                return nil;
        }
    }

    id newArray(const XMLTag &array, int depth) {
        Members members;
        if (array.kind == XMLTag::Kind::empty)
            return members.newArray(mutability(depth));
        for (;;) {
            const XMLTag tag = m_cursor.nextTag();
            if (tag.isCloseOf("array"))
                return members.newArray(mutability(depth));
            const id member = newObject(tag, depth + 1);
            if (!member)
                return nil;
            members.add(member);
        }
    }

    id newScalar(const XMLTag &tag) {
        if (tag.name == "string")
            return newText(tag);
        if (tag.name == "true" || tag.name == "false")
            return newTruth(tag);
        const std::optional<std::string_view> text = content(tag);
        if (!text)
            return nil;
        if (tag.name == "integer")
            return newIntegerOfText(*text);
        if (tag.name == "real")
            return newRealOfText(*text);
        if (tag.name == "date")
            return newDateOfText(*text);
        return tag.name == "data" ? newDataOfBase64(*text) : nil;
    }

    id newText(const XMLTag &tag) {
        const std::optional<std::string_view> text = content(tag);
        return text ? newString(*text) : nil;
    }

    id newTruth(const XMLTag &tag) {
        const std::optional<std::string_view> text = content(tag);
        return text && text->empty() ? newBoolean(tag.name == "true") : nil;
    }

    // Valid until the next call.
    std::optional<std::string_view> content(const XMLTag &tag) {
        if (tag.kind == XMLTag::Kind::empty)
            return std::string_view();
        const std::optional<std::string_view> text = m_cursor.text();
        return text && closes(tag.name) ? text : std::nullopt;
    }

    bool closes(std::string_view name) { return m_cursor.nextTag().isCloseOf(name); }

    static id drop(id object) {
        [object release];
        return nil;
    }

    [[nodiscard]] RootMutability mutability(int depth) const {
        return depth == 0 ? m_mutability : RootMutability::immutable;
    }

    XMLCursor m_cursor;
    RootMutability m_mutability;
};

} // namespace

id newObjectOfXML(std::string_view bytes, RootMutability mutability) {
    return XMLReader(bytes, mutability).newRoot();
}

} // namespace host
