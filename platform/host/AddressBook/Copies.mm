#include "AddressBook/Copies.h"

#include "host/Text.h"

#include <atomic>

namespace {

std::atomic<long> outstanding = 0;

} // namespace

/// A string that is counted while it lives.
@interface HostCountedString : NSString {
    std::u16string _units;
}
@end

@implementation HostCountedString

/// NSString's own initialisers make other objects.
- (id)_hostInitWithUnits:(std::u16string)units {
    _units = std::move(units);
    ++outstanding;
    return self;
}

- (void)dealloc {
    --outstanding;
    [super dealloc];
}

- (NSUInteger)length {
    return _units.size();
}

- (unichar)characterAtIndex:(NSUInteger)index {
    if (index >= _units.size())
        [NSException raise:NSRangeException
                    format:@"There is no character %lu", static_cast<unsigned long>(index)];
    return _units[index];
}

- (void)getCharacters:(unichar *)buffer range:(NSRange)range {
    if (range.location > _units.size() || range.length > _units.size() - range.location)
        [NSException raise:NSRangeException format:@"There are no characters %@", NSStringFromRange(range)];
    _units.copy(reinterpret_cast<char16_t *>(buffer), range.length, range.location);
}

/// It does not change, so a copy is the same object.
- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

@end

namespace host {

long outstandingCopies() {
    return outstanding;
}

NSString *newCountedString(std::u16string text) {
    return [[HostCountedString alloc] _hostInitWithUnits:std::move(text)];
}

NSString *newCountedString(NSString *text) {
    return text ? newCountedString(utf16(text)) : nil;
}

void countCopy(long change) {
    outstanding += change;
}

} // namespace host
