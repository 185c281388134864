// The root list of Settings.
#pragma once

#import <Preferences/PSListController.h>

/// One row an entry of the device, and one for each bundle that was opened by its path and has no entry.
@interface HostSettingsPage : PSListController {
    NSMutableArray *_guests;
}

/// The row that opens the bundle at a path of this machine.
- (PSSpecifier *)rowOfBundle:(NSString *)path;

@end
