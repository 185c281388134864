#include "Preferences/SettingsPage.h"

#import <Preferences/PSSpecifier.h>

#include "host/Device.h"
#include "host/SystemText.h"
#include "host/Text.h"
#include "Preferences/BundleRows.h"
#include "Preferences/Entries.h"
#include "Preferences/Keys.h"
#include "Preferences/Messages.h"
#include "Preferences/PlainPage.h"

#include <array>

namespace key = host::key;

/// "Settings" in the languages of the system.
static constexpr std::array<host::SystemWord, 1> words{{
    {"Settings", {"设置", "設定", "設定", "설정", "Einstellungen", "Réglages", "Ajustes", "Настройки"}},
}};

/// The place that a path leads to, links followed.
static NSString *place(NSString *path) {
    return [[path stringByStandardizingPath] stringByResolvingSymlinksInPath];
}

@implementation HostSettingsPage

- (instancetype)init {
    self = [super init];
    if (self) {
        _guests = [[NSMutableArray alloc] init];
        [self setTitle:host::string(std::string(host::wordIn(words, "Settings", host::device().language)))];
    }
    return self;
}

- (void)dealloc {
    [_guests release];
    [super dealloc];
}

- (NSArray *)specifiers {
    if (!_specifiers) {
        NSMutableArray *rows =
            [[NSMutableArray alloc] initWithObjects:[PSSpecifier emptyGroupSpecifier], nil];
        [rows addObjectsFromArray:host::entrySpecifiers(self)];
        [rows addObjectsFromArray:_guests];
        _specifiers = rows;
    }
    return _specifiers;
}

- (PSSpecifier *)rowOfBundle:(NSString *)path {
    for (PSSpecifier *row in [self specifiers]) {
        NSString *bundle = host::textProperty(row, host::bundleProperty);
        if (bundle && [place(bundle) isEqualToString:place(path)])
            return row;
    }
    return [self _hostGuest:path];
}

- (PSSpecifier *)_hostGuest:(NSString *)path {
    NSDictionary *info = [[NSBundle bundleWithPath:path] infoDictionary];
    NSString *name = host::as<NSString>([NSString class], [info objectForKey:@"CFBundleName"]);
    PSSpecifier *row = [PSSpecifier
        preferenceSpecifierNamed:name ? name : [[path lastPathComponent] stringByDeletingPathExtension]
                          target:self
                             set:nullptr
                             get:nullptr
                          detail:Nil
                            cell:PSLinkCell
                            edit:Nil];
    host::loadLazily(row, path);
    [row setProperty:@"icon.png" forKey:key::icon];
    [_guests addObject:row];
    [self addSpecifier:row];
    return row;
}

@end
