// String tables, after Apple's NSBundle class reference and "Strings Files": in any of the forms of a
// property list and any Unicode encoding, with or without a mark. A damaged table is no table. GNUstep reads
// UTF-8 only with a mark and complains about the rest.
#include "Foundation/PropertyList.h"
#include "host/Device.h"
#include "host/Languages.h"

namespace {

// The phone's layout has the language folders at the top of the bundle. GNUstep does not look into all of
// them ("zh_CN").
NSString *pathInLanguageFolders(NSBundle *bundle, NSString *table) {
    for (const std::string &language : host::languageFolders(host::device().language)) {
        NSString *name = [NSString stringWithFormat:@"%s.lproj/%@.strings", language.c_str(), table];
        NSString *path = [[bundle bundlePath] stringByAppendingPathComponent:name];
        if ([[NSFileManager defaultManager] fileExistsAtPath:path])
            return path;
    }
    return nil;
}

NSDictionary *readTable(NSBundle *bundle, NSString *table) {
    NSString *path = pathInLanguageFolders(bundle, table);
    id content = host::propertyListOfFile(path ? path : [bundle pathForResource:table ofType:@"strings"]);
    return [content isKindOfClass:[NSDictionary class]] ? content : @{};
}

// A table is read once for the life of the process.
NSDictionary *tableOf(NSBundle *bundle, NSString *table) {
    static NSMutableDictionary *const tables = [NSMutableDictionary new];
    NSString *key = [NSString stringWithFormat:@"%@\n%@", [bundle bundlePath], table];
    NSDictionary *content = [tables objectForKey:key];
    if (!content) {
        content = readTable(bundle, table);
        [tables setObject:content forKey:key];
    }
    return content;
}

} // namespace

@implementation NSBundle (HostStringTables)

- (NSString *)localizedStringForKey:(NSString *)key value:(NSString *)value table:(NSString *)table {
    if (!key)
        return value ? value : @"";
    id found = [tableOf(self, [table length] > 0 ? table : @"Localizable") objectForKey:key];
    if ([found isKindOfClass:[NSString class]])
        return found;
    // A page resource may hold numbers where texts belong; they come back as they are.
    return value && ![value isEqual:@""] ? value : key;
}

@end
