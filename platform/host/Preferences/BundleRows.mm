#include "Preferences/BundleRows.h"

#import <Preferences/PSBundleController.h>

#include "host/Device.h"
#include "host/Text.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PlainPage.h"

#include <dlfcn.h>

namespace host {

namespace {

NSString *const bundleFolder = @"/Library/PreferenceBundles";
NSString *const systemBundleFolder = @"/System/Library/PreferenceBundles";
NSString *const internalBundleFolder = @"/AppleInternal/Library/PreferenceBundles";

NSString *onThisMachine(NSString *phonePath) {
    return string(devicePath(utf8(phonePath)));
}

/// Why the bundle's program does not load, in the loader's own words.
NSString *loaderError(NSBundle *bundle) {
    const std::string program = utf8([bundle executablePath]);
    if (void *handle = dlopen(program.c_str(), RTLD_NOW)) {
        dlclose(handle);
        return @"its program has no Objective-C classes";
    }
    return string(std::string(dlerror()));
}

struct Loaded {
    NSBundle *bundle = nil;
    NSString *failure = nil;
};

/// A bundle without a program has nothing to load: it consists of property lists alone.
Loaded loadBundle(NSString *path) {
    NSString *name = [path lastPathComponent];
    NSBundle *bundle = [NSBundle bundleWithPath:path];
    if (!bundle)
        return {nil, [NSString stringWithFormat:@"There is no bundle %@.", name]};
    if (![bundle objectForInfoDictionaryKey:@"CFBundleExecutable"])
        return {bundle, nil};
    BOOL loaded = NO;
    guarded([NSString stringWithFormat:@"loading %@", name], [&] { loaded = [bundle load]; });
    if (loaded)
        return {bundle, nil};
    return {nil,
            [NSString stringWithFormat:@"The bundle %@ cannot be loaded: %@.", name, loaderError(bundle)]};
}

/// The class named by `detail` wins where the row says so, and where the bundle names no principal class.
Class pageClass(PSSpecifier *specifier, NSBundle *bundle) {
    if (![bundle objectForInfoDictionaryKey:@"CFBundleExecutable"])
        return [PLCustomListController class];
    NSString *detail = textProperty(specifier, key::detail);
    const Class named = detail ? NSClassFromString(detail) : Nil;
    const Class principal = [bundle principalClass];
    const bool namedWins = flagProperty(specifier, key::overridePrincipalClass) || !principal;
    return namedWins ? named : principal;
}

NSArray *insertedRows(PSSpecifier *specifier, NSString *path, const PageSource &source) {
    const Loaded loaded = loadBundle(path);
    const Class principal = [loaded.bundle principalClass];
    if (![principal isSubclassOfClass:[PSBundleController class]]) {
        complain(@"%@ adds no rows: %@", [path lastPathComponent],
                 loaded.failure ? loaded.failure : @"its principal class is no PSBundleController");
        return [NSArray array];
    }
    NSArray *rows = nil;
    guarded([NSString stringWithFormat:@"rows of %@", [path lastPathComponent]], [&] {
        PSListController *parent = as<PSListController>([PSListController class], source.target);
        PSBundleController *controller =
            [[[principal alloc] initWithParentListController:parent] autorelease];
        [source.bundleControllers addObject:controller];
        [controller load];
        rows = [controller specifiersWithSpecifier:specifier];
    });
    return rows ? rows : [NSArray array];
}

} // namespace

NSString *installedBundle(PSSpecifier *specifier) {
    NSString *name = textProperty(specifier, key::bundle);
    NSString *folderName = [name stringByAppendingPathExtension:@"bundle"];
    NSMutableArray *places = [NSMutableArray array];
    if (NSString *path = textProperty(specifier, key::bundlePath))
        [places addObject:path];
    if (flagProperty(specifier, key::internal))
        [places addObject:[internalBundleFolder stringByAppendingPathComponent:folderName]];
    [places addObject:[bundleFolder stringByAppendingPathComponent:folderName]];
    [places addObject:[systemBundleFolder stringByAppendingPathComponent:folderName]];
    for (NSString *place in places) {
        NSString *path = onThisMachine(place);
        if ([[NSFileManager defaultManager] fileExistsAtPath:path])
            return path;
    }
    complain(@"the bundle %@ of row %@ is not installed", name, [specifier identifier]);
    return nil;
}

void loadLazily(PSSpecifier *specifier, NSString *path) {
    [specifier setProperty:path forKey:bundleProperty];
    [specifier setProperty:path forKey:key::lazyBundle];
    [specifier setAction:@selector(lazyLoadBundle:)];
}

NSArray *rowsOfBundle(PSSpecifier *specifier, const PageSource &source) {
    NSArray *itself = [NSArray arrayWithObject:specifier];
    if ([textProperty(specifier, key::bundle) length] == 0)
        return itself;
    NSString *path = installedBundle(specifier);
    if (!path)
        return [NSArray array];
    if (!flagProperty(specifier, key::isController))
        return insertedRows(specifier, path, source);
    loadLazily(specifier, path);
    return itself;
}

void openFailurePage(PSSpecifier *specifier, NSString *reason) {
    complain(@"%@", reason);
    [specifier setProperty:reason forKey:failureProperty];
    [specifier setDetailControllerClass:[HostFailurePage class]];
}

NSString *loadPageClass(PSSpecifier *specifier, NSString *path) {
    const Loaded loaded = loadBundle(path);
    if (loaded.failure) {
        openFailurePage(specifier, loaded.failure);
        return loaded.failure;
    }
    const Class page = pageClass(specifier, loaded.bundle);
    if (![page isSubclassOfClass:[PSViewController class]]) {
        NSString *reason = [NSString
            stringWithFormat:@"The principal class of %@ is no page of Settings.", [path lastPathComponent]];
        openFailurePage(specifier, reason);
        return reason;
    }
    [specifier setDetailControllerClass:page];
    return nil;
}

} // namespace host
