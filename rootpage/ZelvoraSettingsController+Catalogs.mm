#import "rootpage/ZelvoraSettingsController.h"

#include "settings/Localization.h"
#include "settings/Paths.h"

namespace {

NSString *withoutExtension(NSString *entry, NSString *extension) {
    return [entry hasSuffix:extension] ? [entry stringByDeletingPathExtension] : entry;
}

// Appends every path below `folder`, subfolders included; those that end in `dropped` without their
// extension. A nil `dropped` leaves all as they are.
void appendTree(NSMutableArray *list, NSString *folder, NSString *dropped) {
    NSDirectoryEnumerator *entries = [[NSFileManager defaultManager] enumeratorAtPath:zv::located(folder)];
    for (NSString *entry in entries)
        [list addObject:dropped ? withoutExtension(entry, dropped) : entry];
}

} // namespace

@implementation ZelvoraSettingsController (Catalogs)

- (NSMutableArray *)getAreaList {
    NSFileManager *files = [NSFileManager defaultManager];
    NSMutableArray *list = [NSMutableArray array];
    if (NSArray *names = [files contentsOfDirectoryAtPath:zv::located(zv::path::areas) error:NULL])
        [list addObjectsFromArray:names];
    return list;
}

- (NSMutableArray *)areaTitles:(PSSpecifier *)specifier {
    NSMutableArray *titles = [self getAreaList];
    [titles insertObject:zv::localized(@"None", [self bundle]) atIndex:0];
    return titles;
}

// The empty value passes through the string table here and does not in `t9Values:`; both are meant so.
- (NSMutableArray *)areaValues:(PSSpecifier *)specifier {
    NSMutableArray *values = [self getAreaList];
    [values insertObject:zv::localized(@"", [self bundle]) atIndex:0];
    return values;
}

// Each folder has its own extension to drop: a .plist among the text tables keeps it even in the titles.
- (NSMutableArray *)getT9ListWithExtension:(BOOL)keepsExtension {
    NSMutableArray *list = [NSMutableArray array];
    appendTree(list, zv::path::textCodeTables, keepsExtension ? nil : @".txt");
    appendTree(list, zv::path::plistCodeTables, keepsExtension ? nil : @".plist");
    return list;
}

- (NSMutableArray *)t9Titles:(PSSpecifier *)specifier {
    NSMutableArray *titles = [self getT9ListWithExtension:NO];
    [titles insertObject:zv::localized(@"None", [self bundle]) atIndex:0];
    return titles;
}

- (NSMutableArray *)t9Values:(PSSpecifier *)specifier {
    NSMutableArray *values = [self getT9ListWithExtension:YES];
    [values insertObject:@"" atIndex:0];
    return values;
}

- (void)setT9Database:(id)value forSpecifier:(PSSpecifier *)specifier {
    [self saveSettings:value forKey:[specifier propertyForKey:@"key"]];
    NSString *path = zv::located(zv::path::keypad);
    NSMutableDictionary *keypad = nil;
    if ([[NSFileManager defaultManager] fileExistsAtPath:path])
        keypad = [NSMutableDictionary dictionaryWithContentsOfFile:path];
    if (!keypad)
        keypad = [NSMutableDictionary dictionary];
    [keypad setObject:[NSNumber numberWithBool:YES] forKey:@"AddressBookChanged"];
    [keypad writeToFile:path atomically:YES];
}

@end
