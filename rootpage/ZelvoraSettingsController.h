// The bundle's principal class: the page that Settings shows first.
#pragma once

#import <AddressBookUI/AddressBookUI.h>

#import "settings/ZVSettingsViewController.h"

/// The root page. Its rows come from the page resource "Zelvora", which names the getters, setters, data
/// sources and actions below.
@interface ZelvoraSettingsController : ZVSettingsViewController <UIAlertViewDelegate, UIActionSheetDelegate,
                                                                 ABPeoplePickerNavigationControllerDelegate>

/// The root page that was made last; nil while none lives.
+ (ZelvoraSettingsController *)sharedInstance;

/// Posts "ZVSettingsChanged" at once.
- (void)postSettingsChangedNotification;
/// Posts "ZVSettingsChanged" 3 seconds after the last call of a burst. The page lives at least until then.
- (void)settingsChanged;
/// Writes a value into the root page's own settings. These have no file, and without one nothing changes.
- (void)saveSettings:(id)value forKey:(NSString *)key;

/// Restarts the home screen, after asking.
- (void)toolsButtonPressed:(id)sender;
/// The number of entries of the list that the specifier's "_custom" names; "" for none.
- (NSString *)getCustomCount:(PSSpecifier *)specifier;
- (void)resetAllSettingsAction:(PSSpecifier *)specifier;
- (void)clearDataAction:(PSSpecifier *)specifier;
- (void)emailAction:(PSSpecifier *)specifier;
- (void)weiboAction:(PSSpecifier *)specifier;
- (void)alipayAction:(PSSpecifier *)specifier;
- (void)paypalAction:(PSSpecifier *)specifier;

@end

/// The area files and code tables that are installed, as the titles and values of two choices.
@interface ZelvoraSettingsController (Catalogs)

/// Names below the folder of area files, in the order of the listing.
- (NSMutableArray *)getAreaList;
- (NSMutableArray *)areaTitles:(PSSpecifier *)specifier;
- (NSMutableArray *)areaValues:(PSSpecifier *)specifier;

/// Paths of the code tables below their two folders, text tables first, with or without the extension of
/// their kind.
- (NSMutableArray *)getT9ListWithExtension:(BOOL)keepsExtension;
- (NSMutableArray *)t9Titles:(PSSpecifier *)specifier;
- (NSMutableArray *)t9Values:(PSSpecifier *)specifier;

/// Flags the dialer's keypad file, so that it builds its index anew.
- (void)setT9Database:(id)value forSpecifier:(PSSpecifier *)specifier;

@end

/// How many calls the system's call history keeps.
@interface ZelvoraSettingsController (CallHistory)

/// YES only if the history was not extended before: read the limit back to learn whether it is in force.
- (BOOL)installSyncHistory:(int)limit;
/// YES only if the history was extended before.
- (BOOL)uninstallSyncHistory;
- (NSNumber *)getCallHistoryLimit:(PSSpecifier *)specifier;
/// Lowers the limit at once; asks before it raises it.
- (void)setCallHistoryLimit:(id)value forSpecifier:(PSSpecifier *)specifier;

@end

/// The address-book card of the phone's owner.
@interface ZelvoraSettingsController (MyInfo)

- (void)myInfoAction:(PSSpecifier *)specifier;
- (NSString *)getMyInfo:(PSSpecifier *)specifier;

@end

/// The vibration that tells that a call is connected.
@interface ZelvoraSettingsController (Vibration)

/// `intensity` from 0 to 1, not checked; durations in milliseconds.
- (void)vibrateWithIntensity:(float)intensity
               totalDuration:(NSInteger)total
                  onDuration:(NSInteger)on
                 offDuration:(NSInteger)off;
- (void)vibrateTestAction:(PSSpecifier *)specifier;

@end
