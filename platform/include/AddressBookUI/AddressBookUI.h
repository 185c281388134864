// Pages of the address book: everything at once.
#pragma once

#import <AddressBookUI/ABPeoplePickerNavigationController.h>
