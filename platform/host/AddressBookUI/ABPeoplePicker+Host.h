// What the pages of the people picker and the picker know of one another.
#pragma once

#import "AddressBook/Records.h"
#import <AddressBookUI/ABPeoplePickerNavigationController.h>
#import <UIKit/UITableViewController.h>

@interface ABPeoplePickerNavigationController (Host)
/// A person was tapped: asks or tells the delegate, and shows the card where that is what follows.
- (void)_hostChoose:(HostABPerson *)person;
/// A value on the card was tapped.
- (void)_hostChoose:(HostABPerson *)person
           property:(ABPropertyID)property
              value:(const host::LabelledValue &)value;
- (void)_hostCancel;
@end

/// All people, under letters, with a field to search by name.
@interface HostPeopleListController : UITableViewController {
@private
    struct HostPeopleListState *_list;
}
@end

/// The numbers and addresses of one person.
@interface HostPersonCardController : UITableViewController {
@private
    struct HostPersonCardState *_card;
}
- (id)initWithPerson:(HostABPerson *)person displayedProperties:(NSArray *)properties;
@end

namespace host {

/// A Cancel button that cancels the picker of `page`; autoreleased.
[[nodiscard]] UIBarButtonItem *pickerCancelButton(UIViewController *page);

} // namespace host
