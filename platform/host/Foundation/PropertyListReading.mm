#include "Foundation/PropertyListReading.h"

#include "host/FileContent.h"
#include "host/Text.h"
#include "host/Unicode.h"

#include <algorithm>
#include <cstring>

namespace host {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

bool isSpace(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool isBlank(std::string_view bytes) {
    return std::all_of(bytes.begin(), bytes.end(), isSpace);
}

bool hasUTF16Mark(std::string_view bytes) {
    return bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE");
}

id newObjectOfUTF8(std::string_view bytes, RootMutability mutability) {
    if (bytes.starts_with(byteOrderMark))
        bytes.remove_prefix(byteOrderMark.size());
    if (isBlank(bytes))
        return mutability == RootMutability::immutable ? [NSDictionary new] : [NSMutableDictionary new];
    const char first = *std::find_if_not(bytes.begin(), bytes.end(), isSpace);
    return first == '<' ? newObjectOfXML(bytes, mutability) : newObjectOfText(bytes, mutability);
}

id newObjectOfUTF16(std::string_view bytes, RootMutability mutability) {
    const bool bigEndian = bytes[0] == '\xFE';
    std::u16string units;
    units.reserve(bytes.size() / 2);
    for (std::size_t i = 2; i + 1 < bytes.size(); i += 2) {
        const auto first = static_cast<unsigned char>(bytes[i]);
        const auto second = static_cast<unsigned char>(bytes[i + 1]);
        units.push_back(static_cast<char16_t>(bigEndian ? first << 8 | second : second << 8 | first));
    }
    return newObjectOfUTF8(utf8(units), mutability);
}

id newObject(std::string_view bytes, RootMutability mutability) {
    if (bytes.starts_with("bplist"))
        return newObjectOfBinary(bytes, mutability);
    if (hasUTF16Mark(bytes))
        return newObjectOfUTF16(bytes, mutability);
    return newObjectOfUTF8(bytes, mutability);
}

} // namespace

id propertyList(std::string_view bytes, RootMutability mutability) {
    return [newObject(bytes, mutability) autorelease];
}

id propertyListOfFile(NSString *path, RootMutability mutability) {
    const std::optional<std::string> content = contentOfFile(utf8(path));
    return content ? propertyList(*content, mutability) : nil;
}

NSString *newString(std::string_view utf8) {
    return [[NSString alloc] initWithBytes:utf8.data() length:utf8.size() encoding:NSUTF8StringEncoding];
}

NSString *newString(std::u16string_view units) {
    return [[NSString alloc] initWithCharacters:reinterpret_cast<const unichar *>(units.data())
                                         length:units.size()];
}

NSNumber *newInteger(long long value) {
    return [[NSNumber alloc] initWithLongLong:value];
}

NSNumber *newReal(double value) {
    return [[NSNumber alloc] initWithDouble:value];
}

NSNumber *newBoolean(BOOL value) {
    return [[NSNumber alloc] initWithBool:value];
}

Members::~Members() {
    for (id object : m_objects)
        [object release];
}

NSArray *Members::newArray(RootMutability mutability) const {
    const Class kind = mutability == RootMutability::immutable ? [NSArray class] : [NSMutableArray class];
    return [[kind alloc] initWithObjects:m_objects.data() count:m_objects.size()];
}

bool Pairs::add(id ownedKey, id ownedValue) {
    if (!ownedKey || !ownedValue) {
        [ownedKey release];
        [ownedValue release];
        return false;
    }
    m_keys.add(ownedKey);
    m_values.add(ownedValue);
    return true;
}

NSDictionary *Pairs::newDictionary(RootMutability mutability) const {
    const Class kind =
        mutability == RootMutability::immutable ? [NSDictionary class] : [NSMutableDictionary class];
    return [[kind alloc] initWithObjects:m_values.m_objects.data()
                                 forKeys:m_keys.m_objects.data()
                                   count:m_keys.m_objects.size()];
}

} // namespace host
