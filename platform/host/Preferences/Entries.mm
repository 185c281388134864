#include "Preferences/Entries.h"

#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <UIKit/UIImage.h>

#include "host/Device.h"
#include "host/Text.h"
#include "Preferences/BundleRows.h"
#include "Preferences/Choices.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PlainPage.h"
#include "Preferences/SpecifierLoader.h"

namespace host {

namespace {

NSString *const entryFolder = @"/Library/PreferenceLoader/Preferences";

struct EntryFile {
    NSString *path;
    NSDictionary *root;
    NSDictionary *entry;
};

NSString *baseName(NSString *path) {
    return [[path lastPathComponent] stringByDeletingPathExtension];
}

NSArray *plistsBelow(NSString *folder) {
    NSMutableArray *paths = [NSMutableArray array];
    for (NSString *path in [[NSFileManager defaultManager] enumeratorAtPath:folder]) {
        if ([[path pathExtension] isEqualToString:@"plist"])
            [paths addObject:[folder stringByAppendingPathComponent:path]];
    }
    return paths;
}

bool admitted(const EntryFile &file) {
    const std::string &version = device().systemVersion;
    return filterAdmits([file.root objectForKey:@"filter"], version) &&
           filterAdmits([file.entry objectForKey:@"filter"], version) &&
           filterAdmits([file.entry objectForKey:@"pl_filter"], version);
}

/// Icons lie in the entry's bundle, or beside the entry file.
void setIcon(PSSpecifier *specifier, NSString *folder) {
    NSString *name = textProperty(specifier, key::icon);
    NSString *bundle = textProperty(specifier, key::lazyBundle);
    for (NSString *place in [NSArray arrayWithObjects:folder, bundle, nil]) {
        if (UIImage *image =
                [UIImage imageWithContentsOfFile:[place stringByAppendingPathComponent:name ? name : @""]])
            [specifier setProperty:image forKey:key::iconImage];
    }
}

/// An entry without a bundle is a page itself.
void openOwnPage(PSSpecifier *specifier, const EntryFile &file) {
    if ([specifier detailControllerClass] || textProperty(specifier, key::detail))
        return;
    [specifier setProperty:file.path forKey:pageFileProperty];
    [specifier setDetailControllerClass:[PLCustomListController class]];
}

NSArray *rowsOf(const EntryFile &file, id target) {
    NSMutableDictionary *item = [NSMutableDictionary dictionaryWithDictionary:file.entry];
    if (![[item objectForKey:key::label] isKindOfClass:[NSString class]])
        [item setObject:baseName(file.path) forKey:key::label];
    if (![item objectForKey:key::cell])
        [item setObject:@"PSLinkCell" forKey:key::cell];
    NSString *folder = [file.path stringByDeletingLastPathComponent];
    const PageSource source{
        {[NSBundle bundleWithPath:folder], baseName(file.path)}, target, [NSMutableArray array]};
    PSSpecifier *specifier = specifierOfItem(item, source);
    if (!specifier)
        return [NSArray array];
    NSArray *rows = rowsOfBundle(specifier, source);
    setIcon(specifier, folder);
    if ([textProperty(specifier, key::bundle) length] == 0)
        openOwnPage(specifier, file);
    return rows;
}

NSComparisonResult compareNames(id left, id right, void *) {
    NSString *name = [left name] ? [left name] : @"";
    return compareTexts(name, [right name] ? [right name] : @"");
}

} // namespace

bool filterAdmits(id filter, std::string_view systemVersion) {
    NSDictionary *wishes = as<NSDictionary>([NSDictionary class], filter);
    NSArray *bounds = as<NSArray>([NSArray class], [wishes objectForKey:@"CoreFoundationVersion"]);
    const double version = coreFoundationVersion(systemVersion);
    const auto bound = [&](NSUInteger index) {
        return index < [bounds count] ? as<NSNumber>([NSNumber class], [bounds objectAtIndex:index]) : nil;
    };
    if (bound(0) && version < [bound(0) doubleValue])
        return false;
    return !bound(1) || version < [bound(1) doubleValue];
}

NSArray *entrySpecifiers(id target) {
    NSMutableArray *specifiers = [NSMutableArray array];
    for (NSString *path in plistsBelow(string(devicePath(utf8(entryFolder))))) {
        NSDictionary *root = [NSDictionary dictionaryWithContentsOfFile:path];
        const EntryFile file{path, root,
                             as<NSDictionary>([NSDictionary class], [root objectForKey:key::entry])};
        if (!root)
            complain(@"the entry file %@ is damaged", [path lastPathComponent]);
        if (file.entry && admitted(file))
            [specifiers addObjectsFromArray:rowsOf(file, target)];
    }
    return [specifiers sortedArrayUsingFunction:compareNames context:nullptr];
}

} // namespace host
