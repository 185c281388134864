// The form in which one entry of a list is typed.
#pragma once

#import <UIKit/UIKit.h>

#import "pickers/ZVSettingsEditNumberViewControllerDelegate.h"

/// Shows a name and a number field, or the number alone, and hands back on Save what they hold. It knows
/// nothing of lists, files and limits.
@interface ZVSettingsEditNumberViewController : UITableViewController {
    id<ZVSettingsEditNumberViewControllerDelegate> _delegate;
    UITextField *_nameTextField;   // not owned: lives as long as its cell
    UITextField *_numberTextField; // not owned: lives as long as its cell
    NSDictionary *_editInfo;
    NSMutableDictionary *_texts;
    NSString *_numberKey; // set by nobody; the getter answers from the edit info
}

@property (nonatomic, retain) id<ZVSettingsEditNumberViewControllerDelegate> delegate;

/// The fields' texts at the last Save, under "name" and "number"; nil before the first.
@property (nonatomic, readonly) NSMutableDictionary *texts;

/// The number under which the edited entry is stored; nil for a new entry.
@property (nonatomic, retain, getter=getNumberKey) NSString *numberKey;

/// `editInfo`: see pickers/EditInfo.h.
- (instancetype)initWithEditInfos:(NSDictionary *)editInfo;

/// Hands the texts to the delegate, then closes the form whatever the delegate makes of them.
- (void)saveButtonPressed:(id)sender;
- (void)cancelButtonPressed:(id)sender;

@end
