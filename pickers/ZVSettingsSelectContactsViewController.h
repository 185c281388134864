// The picker of numbers from the address book, and the base of the one from the recent calls.
#pragma once

#import <UIKit/UIKit.h>

#import "pickers/ZVSettingsSelectContactsViewControllerDelegate.h"

/// Lists numbers with a check mark on those that a list already holds. Each tap takes effect at once; Done
/// only closes. Chosen is a number, not a row: two rows with one number are chosen together, though only the
/// tapped one is drawn anew.
@interface ZVSettingsSelectContactsViewController : UITableViewController {
    id<ZVSettingsSelectContactsViewControllerDelegate> _delegate;
    NSMutableDictionary *_selects; // chosen numbers: each a key, its value NSNull
    NSMutableArray *_list;         // picker records, one a row
    UIImage *_checkedImage;
    UIImage *_notcheckedImage;
}

@property (nonatomic, retain) id<ZVSettingsSelectContactsViewControllerDelegate> delegate;

/// `list`: the entries that the list holds, dictionaries of which "number" is read.
- (instancetype)initWithList:(NSArray *)list;

/// Appends the records of all contacts to the picker's list. Subclasses list something else.
- (void)loadList;

/// The dialable characters of `text`; "" where there are none.
- (NSString *)keypadString:(NSString *)text;

/// Tells the delegate and closes the picker.
- (void)doneButtonPressed:(id)sender;

@end
