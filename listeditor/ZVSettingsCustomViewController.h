// The page on which one list is edited, or the lifetime of call-history entries.
#pragma once

#import <Preferences/PSViewController.h>

#import "pickers/ZVSettingsEditNumberViewControllerDelegate.h"
#import "pickers/ZVSettingsSelectContactsViewControllerDelegate.h"

/// The specifier that opens the page names the list in its property "_custom". Section 0 holds the rows that
/// add entries (or the call time), section 1 the entries.
@interface ZVSettingsCustomViewController
    : PSViewController <UITableViewDataSource, UITableViewDelegate,
                        ZVSettingsEditNumberViewControllerDelegate,
                        ZVSettingsSelectContactsViewControllerDelegate> {
    UITableView *_tableView;
    NSMutableArray *_list; // row records {"number", "name"}
    NSString *_saveplist;
    NSString *_defaultplist;
    unsigned long long _selectedRow; // row of the last tap, in whichever section
    int _customId;                   // zv::ListKind
}

/// The bundle of the root page, whose string table the page shares.
- (NSBundle *)bundle;

- (void)editButtonPressed:(id)sender;

/// Announces a change of the list to the dialer.
- (void)settingsChanged;

/// The lifetime of call-history entries in seconds; 0 where it is unknown.
- (int)getCallLifetime;
- (void)setCallLifetime:(int)seconds;

/// Rebuilds the rows from a list document.
- (void)reloadPlistDictionary:(NSDictionary *)document;
/// The list's document, read anew; never nil.
- (NSMutableDictionary *)getPlistDictionary;

@end
