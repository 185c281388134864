// Records. After Apple's ABRecord Reference; a record here is always a person.
#include "AddressBook/Copies.h"
#include "AddressBook/PersonNames.h"
#include "AddressBook/Records.h"

@implementation HostABPerson
@end

namespace {

template<typename Kind>
Kind *objectOf(CFTypeRef reference, Class kind) {
    id object = (id)reference;
    return [object isKindOfClass:kind] ? static_cast<Kind *>(object) : nil;
}

CFTypeRef newString(const std::optional<std::u16string> &text) {
    return text ? (CFTypeRef)host::newCountedString(*text) : nullptr;
}

CFTypeRef newMultiValue(const host::Person &person, ABPropertyID property) {
    const auto found = person.values.find(property);
    if (found == person.values.end())
        return nullptr;
    HostABMultiValue *values = [HostABMultiValue new];
    values->values = found->second;
    return (CFTypeRef)values;
}

} // namespace

const host::Person *host::personOf(ABRecordRef record) {
    HostABPerson *object = objectOf<HostABPerson>(record, [HostABPerson class]);
    return object ? object->person : nullptr;
}

ABRecordID ABRecordGetRecordID(ABRecordRef record) {
    const host::Person *person = host::personOf(record);
    return person ? person->id : kABRecordInvalidID;
}

ABRecordType ABRecordGetRecordType(ABRecordRef record) {
    return kABPersonType;
}

CFTypeRef ABRecordCopyValue(ABRecordRef record, ABPropertyID property) {
    const host::Person *person = host::personOf(record);
    if (!person)
        return nullptr;
    if (property == kABPersonFirstNameProperty)
        return newString(person->first);
    if (property == kABPersonLastNameProperty)
        return newString(person->last);
    if (property == kABPersonOrganizationProperty)
        return newString(person->organization);
    return newMultiValue(*person, property);
}

CFStringRef ABRecordCopyCompositeName(ABRecordRef record) {
    const host::Person *person = host::personOf(record);
    const std::u16string name = person ? host::compositeName(*person, host::nameSettings()) : u"";
    return name.empty() ? nullptr : (CFStringRef)host::newCountedString(name);
}
