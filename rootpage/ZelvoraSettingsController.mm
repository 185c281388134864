#import "rootpage/ZelvoraSettingsController.h"

#include "listeditor/ListDocument.h"
#include "rootpage/RootPageTags.h"
#include "rootpage/SupportLinks.h"
#include "settings/CommandLine.h"
#include "settings/Localization.h"
#include "settings/Notifications.h"
#include "settings/Paths.h"
#include "settings/RecordKeys.h"
#include "settings/SharedState.h"

namespace {

// The root page's own settings have no file, on purpose: what is saved there goes nowhere, and the actions
// that read it use their defaults.
constexpr NSString *rootStorePath = nullptr;

constexpr NSTimeInterval changesBelongTogether = 3.0; // seconds

NSMutableDictionary *loadedRootStore() {
    return [NSMutableDictionary dictionaryWithContentsOfFile:rootStorePath];
}

NSDictionary *listWithId(NSString *listId) {
    NSDictionary *list = [NSDictionary dictionaryWithContentsOfFile:zv::ListDocument::userPath(listId)];
    return list ? list : [NSDictionary dictionaryWithContentsOfFile:zv::ListDocument::defaultPath(listId)];
}

} // namespace

@implementation ZelvoraSettingsController

- (instancetype)init {
    self = [super init];
    if (!self)
        return nil;
    zv::_sharedInstance = self;
    if (zv::_sharedSettings)
        return self;
    NSMutableDictionary *settings = loadedRootStore();
    zv::_sharedSettings = [settings ? settings : [NSMutableDictionary dictionary] retain];
    return self;
}

- (void)dealloc {
    [zv::_sharedSettings release];
    zv::_sharedInstance = nil;
    zv::_sharedSettings = nil;
    [super dealloc];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if ([[self navigationItem] rightBarButtonItem])
        return;
    UIImage *image = [UIImage imageWithContentsOfFile:zv::located(zv::path::toolsImage)];
    UIBarButtonItem *tools = [[UIBarButtonItem alloc] initWithImage:image
                                                              style:UIBarButtonItemStylePlain
                                                             target:self
                                                             action:@selector(toolsButtonPressed:)];
    [[self navigationItem] setRightBarButtonItem:tools];
    [tools release];
}

- (NSArray *)specifiers {
    if (!_specifiers)
        _specifiers = [[self loadSpecifiersFromPlistName:@"Zelvora" target:self] retain];
    return [self localizedSpecifiersForSpecifiers:_specifiers];
}

- (void)postSettingsChangedNotification {
    zv::postNotification(zv::notification::settings);
}

- (void)settingsChanged {
    const SEL post = @selector(postSettingsChangedNotification);
    [NSObject cancelPreviousPerformRequestsWithTarget:self selector:post object:nil];
    [self performSelector:post withObject:nil afterDelay:changesBelongTogether];
}

- (void)saveSettings:(id)value forKey:(NSString *)key {
    NSMutableDictionary *settings = loadedRootStore();
    if (!settings)
        return;
    [settings setValue:value forKey:key];
    [settings writeToFile:rootStorePath atomically:YES];
    [zv::_sharedSettings setValue:value forKey:key];
}

- (NSString *)getCustomCount:(PSSpecifier *)specifier {
    NSString *listId = [specifier propertyForKey:zv::listIdProperty];
    const NSUInteger count = listId ? [listWithId(listId) count] : 0;
    return count > 0 ? [NSString stringWithFormat:@"%d", static_cast<int>(count)] : @"";
}

- (void)actionSheet:(UIActionSheet *)sheet clickedButtonAtIndex:(NSInteger)index {
    if (index != [sheet cancelButtonIndex] && [sheet tag] == zv::rootPageTag && index == 0)
        zv::runCommand(@"killall SpringBoard");
}

- (void)toolsButtonPressed:(id)sender {
    NSBundle *bundle = [self bundle];
    UIActionSheet *sheet = [[UIActionSheet alloc] initWithTitle:nil
                                                       delegate:self
                                              cancelButtonTitle:zv::localized(@"Cancel", bundle)
                                         destructiveButtonTitle:zv::localized(@"Respring", bundle)
                                              otherButtonTitles:nil];
    [sheet setTag:zv::rootPageTag];
    [sheet showInView:[self view]];
    [sheet release];
}

// Reset and clear are silent on purpose: the pages show the old values until they reload, and the dialer
// learns of it with the next change.
- (void)resetAllSettingsAction:(PSSpecifier *)specifier {
    zv::runCommand([@"rm -f " stringByAppendingString:zv::path::preferences]);
    [zv::_sharedSettings release];
    zv::_sharedSettings = [[NSMutableDictionary alloc] init];
}

- (void)clearDataAction:(PSSpecifier *)specifier {
    NSString *everyDocument = [NSString stringWithFormat:zv::path::listDocument, @"*"];
    zv::runCommand([@"rm -f " stringByAppendingString:everyDocument]);
}

- (void)emailAction:(PSSpecifier *)specifier {
    zv::openSupportMail();
}

- (void)weiboAction:(PSSpecifier *)specifier {
    zv::openMicroblog();
}

// The donation buttons are shown but lead nowhere.
- (void)alipayAction:(PSSpecifier *)specifier {
}

- (void)paypalAction:(PSSpecifier *)specifier {
}

+ (ZelvoraSettingsController *)sharedInstance {
    return zv::_sharedInstance;
}

@end
