#include "Preferences/Choices.h"

#include "host/Device.h"
#include "host/Text.h"
#include "Preferences/Messages.h"

namespace host {

NSDictionary *titlesOfValues(NSArray *values, NSArray *titles) {
    if (!values || !titles)
        return nil;
    NSMutableDictionary *titleOf = [NSMutableDictionary dictionary];
    const NSUInteger count = MIN([values count], [titles count]);
    for (NSUInteger i = 0; i < count; i++)
        [titleOf setObject:[titles objectAtIndex:i] forKey:[values objectAtIndex:i]];
    return titleOf;
}

NSComparisonResult compareTexts(NSString *left, NSString *right) {
    NSString *name = string(device().language + "_" + device().region);
    NSLocale *locale = [[[NSLocale alloc] initWithLocaleIdentifier:name] autorelease];
    return [left compare:right
                 options:NSCaseInsensitiveSearch
                   range:NSMakeRange(0, [left length])
                  locale:locale];
}

static NSComparisonResult compareTitles(id left, id right, void *titles) {
    NSDictionary *titleOf = static_cast<NSDictionary *>(titles);
    return compareTexts([[titleOf objectForKey:left] description],
                        [[titleOf objectForKey:right] description]);
}

NSArray *sortedByTitle(NSArray *values, NSDictionary *titles) {
    return titles ? [values sortedArrayUsingFunction:compareTitles context:titles] : values;
}

NSArray *choices(PSSpecifier *specifier, NSString *fixed, NSString *source) {
    if (NSArray *array = as<NSArray>([NSArray class], [specifier propertyForKey:fixed]))
        return array;
    NSString *selector = textProperty(specifier, source);
    if (!selector)
        return nil;
    id array = ask(specifier, NSSelectorFromString(selector));
    if (array && ![array isKindOfClass:[NSArray class]])
        complain(@"%@ of row %@ gave no array", selector, [specifier identifier]);
    return as<NSArray>([NSArray class], array);
}

} // namespace host
