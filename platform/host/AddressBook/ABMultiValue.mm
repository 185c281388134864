// Several values of one property. After Apple's ABMultiValue Reference.
#include "AddressBook/Copies.h"
#include "AddressBook/Records.h"

#include <algorithm>

@implementation HostABMultiValue

- (id)init {
    if ((self = [super init]))
        host::countCopy(+1);
    return self;
}

- (void)dealloc {
    host::countCopy(-1);
    [super dealloc];
}

@end

namespace {

const std::vector<host::LabelledValue> &valuesOf(ABMultiValueRef reference) {
    static const std::vector<host::LabelledValue> none;
    id object = (id)reference;
    return [object isKindOfClass:[HostABMultiValue class]] ? static_cast<HostABMultiValue *>(object)->values
                                                           : none;
}

const host::LabelledValue *valueAt(ABMultiValueRef reference, CFIndex index) {
    const auto &values = valuesOf(reference);
    return index >= 0 && index < static_cast<CFIndex>(values.size())
               ? &values[static_cast<std::size_t>(index)]
               : nullptr;
}

} // namespace

ABPropertyType ABMultiValueGetPropertyType(ABMultiValueRef multiValue) {
    return valuesOf(multiValue).empty() ? kABInvalidPropertyType : kABMultiStringPropertyType;
}

CFIndex ABMultiValueGetCount(ABMultiValueRef multiValue) {
    return static_cast<CFIndex>(valuesOf(multiValue).size());
}

CFTypeRef ABMultiValueCopyValueAtIndex(ABMultiValueRef multiValue, CFIndex index) {
    const host::LabelledValue *value = valueAt(multiValue, index);
    return value ? (CFTypeRef)host::newCountedString(value->value) : nullptr;
}

CFStringRef ABMultiValueCopyLabelAtIndex(ABMultiValueRef multiValue, CFIndex index) {
    const host::LabelledValue *value = valueAt(multiValue, index);
    return value && value->label ? (CFStringRef)host::newCountedString(*value->label) : nullptr;
}

CFArrayRef ABMultiValueCopyArrayOfAllValues(ABMultiValueRef multiValue) {
    const auto &values = valuesOf(multiValue);
    if (values.empty())
        return nullptr;
    NSMutableArray *all = [[NSMutableArray alloc] init];
    for (const host::LabelledValue &value : values)
        [all addObject:[host::newCountedString(value.value) autorelease]];
    return (CFArrayRef)all;
}

ABMultiValueIdentifier ABMultiValueGetIdentifierAtIndex(ABMultiValueRef multiValue, CFIndex index) {
    const host::LabelledValue *value = valueAt(multiValue, index);
    return value ? value->identifier : kABMultiValueInvalidIdentifier;
}

CFIndex ABMultiValueGetIndexForIdentifier(ABMultiValueRef multiValue, ABMultiValueIdentifier identifier) {
    const auto &values = valuesOf(multiValue);
    const auto found =
        std::find_if(values.begin(), values.end(), [identifier](const host::LabelledValue &value) {
            return value.identifier == identifier;
        });
    return found == values.end() ? -1 : found - values.begin();
}
