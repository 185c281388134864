#import "rootpage/ZelvoraSettingsController.h"

#include "rootpage/MyInfo.h"
#include "settings/SharedState.h"

@implementation ZelvoraSettingsController (MyInfo)

- (BOOL)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)picker
      shouldContinueAfterSelectingPerson:(ABRecordRef)person {
    NSString *name = zv::personName(person);
    [self saveSettings:name ? name : @"" forKey:zv::myInfoNameKey];
    [self saveSettings:[NSNumber numberWithInt:ABRecordGetRecordID(person)] forKey:zv::myInfoRecordKey];
    [picker dismissViewControllerAnimated:YES
                               completion:^{
                               }];
    return NO;
}

- (BOOL)peoplePickerNavigationController:(ABPeoplePickerNavigationController *)picker
      shouldContinueAfterSelectingPerson:(ABRecordRef)person
                                property:(ABPropertyID)property
                              identifier:(ABMultiValueIdentifier)identifier {
    return NO;
}

- (void)peoplePickerNavigationControllerDidCancel:(ABPeoplePickerNavigationController *)picker {
    [picker dismissViewControllerAnimated:YES
                               completion:^{
                               }];
}

- (void)myInfoAction:(PSSpecifier *)specifier {
    ABPeoplePickerNavigationController *picker = [[ABPeoplePickerNavigationController alloc] init];
    [picker setPeoplePickerDelegate:self];
    NSNumber *phone = [NSNumber numberWithInt:kABPersonPhoneProperty];
    [picker setDisplayedProperties:[NSArray arrayWithObject:phone]];
    [self presentViewController:picker
                       animated:YES
                     completion:^{
                     }];
    [picker release];
}

- (NSString *)getMyInfo:(PSSpecifier *)specifier {
    NSString *name = [zv::_sharedSettings objectForKey:zv::myInfoNameKey];
    return name ? name : @"";
}

@end
