#import "settings/ZVSettingsViewController.h"

#import "rootpage/ZelvoraSettingsController.h"

#include "settings/Localization.h"
#include "settings/Paths.h"
#include "settings/SharedState.h"

namespace {

NSMutableDictionary *loadedSettings() {
    NSString *path = zv::located(zv::path::preferences);
    NSMutableDictionary *settings = [NSMutableDictionary dictionaryWithContentsOfFile:path];
    return settings ? settings : [NSMutableDictionary dictionary];
}

NSString *settingsKey(PSSpecifier *specifier) {
    return [specifier propertyForKey:@"key"];
}

NSDictionary *localizedTitles(NSDictionary *titles, NSBundle *bundle) {
    NSMutableDictionary *localized = [NSMutableDictionary dictionaryWithCapacity:[titles count]];
    for (id value in titles)
        [localized setObject:zv::localized([titles objectForKey:value], bundle) forKey:value];
    return localized;
}

void localize(PSSpecifier *specifier, NSBundle *bundle) {
    if ([specifier name])
        [specifier setName:zv::localized([specifier name], bundle)];
    if ([specifier propertyForKey:@"valueLocalized"])
        return;
    if (NSDictionary *titles = [specifier titleDictionary])
        [specifier setTitleDictionary:localizedTitles(titles, bundle)];
}

} // namespace

@implementation ZVSettingsViewController

- (instancetype)init {
    return [super init];
}

- (void)dealloc {
    [super dealloc];
}

- (void)viewWillDisappear:(BOOL)animated {
    [super viewWillDisappear:animated];
    if (!zv::_settings)
        zv::_settings = [loadedSettings() retain];
    _needsReloadSpecifiers = YES;
}

- (void)viewDidAppear:(BOOL)animated {
    [super viewDidAppear:animated];
    if (!_needsReloadSpecifiers)
        return;
    _needsReloadSpecifiers = NO;
    [self reloadSpecifiers];
}

- (NSArray *)specifiers {
    return [self localizedSpecifiersForSpecifiers:[super specifiers]];
}

- (void)setSpecifier:(PSSpecifier *)specifier {
    [super setSpecifier:specifier];
    [[self navigationItem] setTitle:zv::localized([specifier name], [self bundle])];
}

- (void)setTitle:(NSString *)title {
    [super setTitle:zv::localized(title, [self bundle])];
}

// Until the mirror is loaded every control shows its default; the first disappearance loads it and has the
// page reload itself when it is back.
- (id)readPreferenceValue:(PSSpecifier *)specifier {
    id value = [zv::_settings objectForKey:settingsKey(specifier)];
    return value ? value : [specifier propertyForKey:@"default"];
}

- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier {
    [super setPreferenceValue:value specifier:specifier];
    if (NSString *key = settingsKey(specifier))
        [zv::_settings setValue:value forKey:key];
    [[ZelvoraSettingsController sharedInstance] settingsChanged];
}

- (NSArray *)localizedSpecifiersForSpecifiers:(NSArray *)specifiers {
    NSBundle *bundle = [self bundle];
    for (PSSpecifier *specifier in specifiers)
        localize(specifier, bundle);
    return specifiers;
}

@end
