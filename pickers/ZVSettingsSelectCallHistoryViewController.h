#pragma once

#import "pickers/ZVSettingsSelectContactsViewController.h"

/// The picker of numbers from the recent calls, the newest first, each number once.
@interface ZVSettingsSelectCallHistoryViewController : ZVSettingsSelectContactsViewController
@end
