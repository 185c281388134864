#import "pickers/ZVSettingsSelectCallHistoryViewController.h"

#include "databases/RecentCallSource.h"
#include "settings/SystemCallHistory.h"

@implementation ZVSettingsSelectCallHistoryViewController

- (void)loadList {
    [super loadList];
    zv::replaceWithRecentCalls(_list, zv::systemCallHistoryPath(), zv::systemCallHistorySchema(),
                               [[NSDate date] timeIntervalSince1970]);
}

@end
