#import "rootpage/ZelvoraSettingsController.h"

#include "databases/CallHistory.h"
#include "databases/CallHistoryLimits.h"
#include "rootpage/RootPageTags.h"
#include "settings/CommandLine.h"
#include "settings/Localization.h"
#include "settings/Paths.h"
#include "settings/SharedState.h"
#include "settings/SystemCallHistory.h"

namespace {

constexpr NSString *limitKey = @"CallHistoryLimit";

// Asks `delegate` whether to go on; with nil, only tells. `message` is shown in the user's language.
void showAlert(NSString *message, id<UIAlertViewDelegate> delegate, NSBundle *bundle) {
    NSString *ok = zv::localized(@"OK", bundle);
    UIAlertView *alert = [[UIAlertView alloc] initWithTitle:zv::localized(@"Alert", bundle)
                                                    message:zv::localized(message, bundle)
                                                   delegate:delegate
                                          cancelButtonTitle:delegate ? zv::localized(@"Cancel", bundle) : ok
                                          otherButtonTitles:delegate ? ok : nil, nil];
    [alert setTag:delegate ? zv::rootPageTag : 0];
    [alert show];
    [alert release];
}

bool settingsMayChangeHistory() {
    return zv::systemCallHistorySchema() == zv::CallHistorySchema::coreData;
}

} // namespace

@implementation ZelvoraSettingsController (CallHistory)

- (BOOL)installSyncHistory:(int)limit {
    return zv::systemCallHistory().install(limit);
}

- (BOOL)uninstallSyncHistory {
    return zv::systemCallHistory().uninstall();
}

- (NSNumber *)getCallHistoryLimit:(PSSpecifier *)specifier {
    NSNumber *limit = [NSNumber numberWithInt:zv::systemCallHistory().limit()];
    [self saveSettings:limit forKey:limitKey];
    return limit;
}

- (void)setCallHistoryLimit:(id)value forSpecifier:(PSSpecifier *)specifier {
    zv::_pendingCallHistoryLimit = [value intValue];
    if (zv::extendsCallHistory(zv::_pendingCallHistoryLimit)) {
        showAlert(@"Are you sure you want to continue?", self, [self bundle]);
        return;
    }
    if (settingsMayChangeHistory())
        [self uninstallSyncHistory];
    else
        zv::runCommand([zv::path::helperTool stringByAppendingString:@" -u"]);
    [self saveSettings:[NSNumber numberWithInt:zv::defaultCallHistoryLimit] forKey:limitKey];
    [[NSFileManager defaultManager] removeItemAtPath:zv::located(zv::path::recents) error:NULL];
}

// The answer to the confirmation. Only the limit read back tells whether raising it worked.
- (void)alertView:(UIAlertView *)alert clickedButtonAtIndex:(NSInteger)index {
    const int limit = zv::_pendingCallHistoryLimit;
    if (index == [alert cancelButtonIndex] || [alert tag] != zv::rootPageTag ||
        !zv::extendsCallHistory(limit))
        return;
    if (settingsMayChangeHistory())
        [self installSyncHistory:limit];
    else
        zv::runCommand([NSString stringWithFormat:@"%@ -i %d", zv::path::helperTool, limit]);
    NSNumber *limitInForce = [self getCallHistoryLimit:nil];
    if ([limitInForce intValue] != limit) {
        showAlert(@"Failed!", nil, [self bundle]);
        return;
    }
    [self saveSettings:limitInForce forKey:limitKey];
    [[NSDictionary dictionary] writeToFile:zv::located(zv::path::recents) atomically:YES];
    showAlert(@"Succeed!", nil, [self bundle]);
}

@end
