#include "Foundation/PropertyList.h"

#include "Foundation/PropertyListScalars.h"
#include "host/Device.h"
#include "host/EventLog.h"
#include "host/FileContent.h"
#include "host/Text.h"
#include "host/Unicode.h"

#import <objc/runtime.h>

#include <algorithm>
#include <vector>

namespace host {
namespace {

constexpr std::string_view header = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                    "<plist version=\"1.0\">\n";
constexpr std::string_view footer = "</plist>\n";

bool standsForItself(char16_t unit) {
    return unit < 0x80 && unit != '&' && unit != '<' && unit != '>';
}

// Nearly every text is made of such runs.
std::size_t appendPlainRun(std::u16string_view units, std::string &into) {
    const auto *end = std::find_if_not(units.begin(), units.end(), standsForItself);
    const auto length = static_cast<std::size_t>(end - units.begin());
    const std::size_t start = into.size();
    into.resize(start + length);
    std::transform(units.begin(), end, into.data() + start,
                   [](char16_t unit) { return static_cast<char>(unit); });
    return length;
}

void appendEscaped(std::u16string_view units, std::string &into) {
    for (std::size_t at = appendPlainRun(units, into); at < units.size();) {
        const char32_t character = nextCharacter(units, at);
        switch (character) {
        case '&': into += "&amp;"; break;
        case '<': into += "&lt;"; break;
        case '>': into += "&gt;"; break;
        default: appendUTF8(character, into);
        }
        at += appendPlainRun(units.substr(at), into);
    }
}

// Asked for every key and most values; strings of one dictionary are mostly of one class.
bool isString(id object) {
    static Class lastSeen = Nil;
    const Class kind = object_getClass(object);
    if (kind && kind == lastSeen)
        return true;
    if (![object isKindOfClass:[NSString class]])
        return false;
    lastSeen = kind;
    return true;
}

void appendUnits(NSString *text, std::u16string &into) {
    const std::size_t start = into.size();
    const NSUInteger length = [text length];
    into.resize(start + length);
    [text getCharacters:reinterpret_cast<unichar *>(into.data() + start) range:NSMakeRange(0, length)];
}

struct Entry {
    std::u16string_view key;
    id value;
};

// The keys of a dictionary in one block of memory, sorted.
class SortedEntries {
public:
    /// False when some key is not a string.
    bool read(NSDictionary *dictionary) {
        const NSUInteger count = [dictionary count];
        std::vector<id> keys(count);
        std::vector<id> values(count);
        [dictionary getObjects:values.data() andKeys:keys.data()];
        std::vector<std::size_t> ends;
        ends.reserve(count);
        for (id key : keys) {
            if (!isString(key))
                return false;
            appendUnits(key, m_units);
            ends.push_back(m_units.size());
        }
        std::size_t start = 0;
        m_entries.reserve(count);
        for (std::size_t i = 0; i < count; start = ends[i++])
            m_entries.push_back({std::u16string_view(m_units).substr(start, ends[i] - start), values[i]});
        std::sort(m_entries.begin(), m_entries.end(),
                  [](const Entry &one, const Entry &other) { return one.key < other.key; });
        return true;
    }

    [[nodiscard]] auto begin() const { return m_entries.begin(); }
    [[nodiscard]] auto end() const { return m_entries.end(); }

private:
    std::u16string m_units;
    std::vector<Entry> m_entries;
};

class XMLWriter {
public:
    std::optional<std::string> document(id root) {
        m_text += header;
        if (!append(root, 0))
            return std::nullopt;
        m_text += footer;
        return std::move(m_text);
    }

private:
    bool append(id object, int depth) {
        if (depth > deepestPropertyList)
            return false;
        if (isString(object))
            return appendString(object, "string", depth);
        if ([object isKindOfClass:[NSDictionary class]])
            return appendDictionary(object, depth);
        if ([object isKindOfClass:[NSArray class]])
            return appendArray(object, depth);
        if ([object isKindOfClass:[NSNumber class]])
            return appendNumber(object, depth);
        if ([object isKindOfClass:[NSData class]])
            return appendData(object, depth);
        return [object isKindOfClass:[NSDate class]] && appendDate(object, depth);
    }

    bool appendDictionary(NSDictionary *dictionary, int depth) {
        if ([dictionary count] == 0)
            return appendLine("<dict/>", depth);
        SortedEntries entries;
        if (!entries.read(dictionary))
            return false;
        appendLine("<dict>", depth);
        for (const Entry &entry : entries) {
            appendText(entry.key, "key", depth + 1);
            if (!append(entry.value, depth + 1))
                return false;
        }
        return appendLine("</dict>", depth);
    }

    bool appendArray(NSArray *array, int depth) {
        if ([array count] == 0)
            return appendLine("<array/>", depth);
        appendLine("<array>", depth);
        for (id member in array) {
            if (!append(member, depth + 1))
                return false;
        }
        return appendLine("</array>", depth);
    }

    bool appendString(NSString *string, std::string_view element, int depth) {
        m_units.clear();
        appendUnits(string, m_units);
        return appendText(m_units, element, depth);
    }

    bool appendText(std::u16string_view units, std::string_view element, int depth) {
        indent(depth);
        ((m_text += '<') += element) += '>';
        appendEscaped(units, m_text);
        ((m_text += "</") += element) += ">\n";
        return true;
    }

    bool appendNumber(NSNumber *number, int depth) {
        if (isBoolean(number))
            return appendLine([number boolValue] ? "<true/>" : "<false/>", depth);
        if (isReal(number))
            return appendLine("<real>" + realText([number doubleValue]) + "</real>", depth);
        return appendLine("<integer>" + integerText(number) + "</integer>", depth);
    }

    bool appendDate(NSDate *date, int depth) {
        const std::string text = dateText(date);
        return !text.empty() && appendLine("<date>" + text + "</date>", depth);
    }

    bool appendData(NSData *data, int depth) {
        appendLine("<data>", depth);
        m_text += dataText(data, std::string(static_cast<std::size_t>(depth), '\t'));
        return appendLine("</data>", depth);
    }

    bool appendLine(std::string_view line, int depth) {
        indent(depth);
        (m_text += line) += '\n';
        return true;
    }

    void indent(int depth) { m_text.append(static_cast<std::size_t>(depth), '\t'); }

    std::string m_text;
    std::u16string m_units;
};

} // namespace

std::optional<std::string> propertyListDocument(id root) {
    return XMLWriter().document(root);
}

BOOL writePropertyList(id root, NSString *path, BOOL atomically) {
    const std::optional<std::string> document = propertyListDocument(root);
    const std::string file = utf8(path);
    if (!document || file.empty())
        return NO;
    if (!(atomically ? replaceFile(file, *document) : overwriteFile(file, *document)))
        return NO;
    if (const std::string name = phonePath(file); !name.empty())
        record(EventKind::file, name);
    return YES;
}

} // namespace host
