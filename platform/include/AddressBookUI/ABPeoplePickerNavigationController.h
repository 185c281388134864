// The people picker. After Apple's ABPeoplePickerNavigationController Class Reference and its delegate's (iOS
// 8).
#pragma once

#import <AddressBook/AddressBook.h>
#import <UIKit/UINavigationController.h>

@class ABPeoplePickerNavigationController;

@protocol ABPeoplePickerNavigationControllerDelegate <NSObject>
@optional

/// The picker was cancelled. Up to iOS 7 the delegate dismisses it; on iOS 8 it has dismissed itself as well.
- (void)peoplePickerNavigationControllerDidCancel:(ABPeoplePickerNavigationController *)peoplePicker;

// Up to iOS 7.

/// YES shows the person's card, NO leaves everything as it is; dismissing the picker is the delegate's.
- (BOOL)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)peoplePicker
      shouldContinueAfterSelectingPerson:(ABRecordRef)person;
/// YES does what is usual for the value (calls the number, writes to the address).
- (BOOL)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)peoplePicker
      shouldContinueAfterSelectingPerson:(ABRecordRef)person
                                property:(ABPropertyID)property
                              identifier:(ABMultiValueIdentifier)identifier;

// From iOS 8 on; the picker dismisses itself after either.

- (void)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)peoplePicker
                         didSelectPerson:(ABRecordRef)person;
- (void)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)peoplePicker
                         didSelectPerson:(ABRecordRef)person
                                property:(ABPropertyID)property
                              identifier:(ABMultiValueIdentifier)identifier;
@end

@interface ABPeoplePickerNavigationController : UINavigationController {
@private
    struct ABPeoplePickerState *_picker;
}

@property (nonatomic, assign) id<ABPeoplePickerNavigationControllerDelegate> peoplePickerDelegate;
/// Numbers (ABPropertyID) of the properties that a person's card shows; nil for all.
@property (nonatomic, copy) NSArray *displayedProperties;

@end
