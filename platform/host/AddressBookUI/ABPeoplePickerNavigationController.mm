// ABPeoplePickerNavigationController. After Apple's class reference and the reference of its delegate for iOS
// 7 and 8; a delegate that has the methods of iOS 7 is asked by them unless the host is told to do as iOS 8
// does.
#import "AddressBookUI/ABPeoplePicker+Host.h"
#import <UIKit/UIApplication.h>
#import <UIKit/UIBarButtonItem.h>

#include "AddressBookUI/PickerRules.h"
#include "host/Device.h"
#include "host/Retained.h"
#include "host/Text.h"

#include <cstdlib>

struct ABPeoplePickerState {
    id<ABPeoplePickerNavigationControllerDelegate> delegate = nil; // not retained
    bool cancelled = false, continuesWithPerson = false, continuesWithValue = false;
    bool selectsPerson = false, selectsValue = false;
    host::Retained<NSArray *> properties;
};

namespace {

host::PickerRules rulesInForce = host::PickerRules::oldMethodsFirst;

/// From this version on the picker dismisses itself when it is cancelled.
bool dismissesItselfWhenCancelled() {
    return std::atoi(host::device().systemVersion.c_str()) >= 8;
}

NSString *schemeOf(ABPropertyID property) {
    if (property == kABPersonPhoneProperty)
        return @"tel:";
    return property == kABPersonEmailProperty ? @"mailto:" : @"";
}

/// What happens on a card of the Contacts application: a call, a mail, a page.
void performUsualAction(ABPropertyID property, const host::LabelledValue &value) {
    NSString *address = [schemeOf(property) stringByAppendingString:host::string(value.value)];
    NSString *escaped = [address stringByAddingPercentEscapesUsingEncoding:NSUTF8StringEncoding];
    NSURL *url = escaped ? [NSURL URLWithString:escaped] : nil;
    if (url)
        [[UIApplication sharedApplication] openURL:url];
}

} // namespace

void host::setPickerRules(PickerRules rules) {
    rulesInForce = rules;
}

host::PickerRules host::pickerRules() {
    return rulesInForce;
}

@implementation ABPeoplePickerNavigationController

- (id)init {
    HostPeopleListController *list = [[HostPeopleListController alloc] initWithStyle:UITableViewStylePlain];
    if ((self = [super initWithRootViewController:list]))
        _picker = new ABPeoplePickerState;
    [list release];
    return self;
}

- (void)dealloc {
    delete _picker;
    [super dealloc];
}

- (id<ABPeoplePickerNavigationControllerDelegate>)peoplePickerDelegate {
    return _picker->delegate;
}

- (void)setPeoplePickerDelegate:(id<ABPeoplePickerNavigationControllerDelegate>)delegate {
    const auto has = [delegate](SEL selector) -> bool { return [delegate respondsToSelector:selector]; };
    const bool old = host::pickerRules() == host::PickerRules::oldMethodsFirst;
    ABPeoplePickerState &picker = *_picker;
    picker.delegate = delegate;
    picker.cancelled = has(@selector(peoplePickerNavigationControllerDidCancel:));
    picker.continuesWithPerson = old && has(@selector(peoplePickerNavigationController:
                                                    shouldContinueAfterSelectingPerson:));
    picker.continuesWithValue = old && has(@selector(peoplePickerNavigationController:
                                                   shouldContinueAfterSelectingPerson:property:identifier:));
    picker.selectsPerson = has(@selector(peoplePickerNavigationController:didSelectPerson:));
    picker.selectsValue = has(@selector(peoplePickerNavigationController:
                                                         didSelectPerson:property:identifier:));
}

- (NSArray *)displayedProperties {
    return _picker->properties;
}

- (void)setDisplayedProperties:(NSArray *)properties {
    _picker->properties = [[properties copy] autorelease];
}

- (void)_hostDismiss {
    if (self.presentingViewController && !self.isBeingDismissed)
        [self dismissViewControllerAnimated:YES completion:nil];
}

- (void)_hostChoose:(HostABPerson *)person {
    const ABPeoplePickerState &picker = *_picker;
    bool showsCard = true;
    if (picker.continuesWithPerson) {
        showsCard = [picker.delegate peoplePickerNavigationController:self
                                   shouldContinueAfterSelectingPerson:(ABRecordRef)person];
    } else if (picker.selectsPerson) {
        showsCard = false;
        [picker.delegate peoplePickerNavigationController:self didSelectPerson:(ABRecordRef)person];
        [self _hostDismiss];
    }
    if (showsCard)
        [self _hostShowCardOf:person];
}

- (void)_hostShowCardOf:(HostABPerson *)person {
    HostPersonCardController *card = [[HostPersonCardController alloc] initWithPerson:person
                                                                  displayedProperties:_picker->properties];
    [self pushViewController:card animated:YES];
    [card release];
}

- (void)_hostChoose:(HostABPerson *)person
           property:(ABPropertyID)property
              value:(const host::LabelledValue &)value {
    const ABPeoplePickerState &picker = *_picker;
    if (picker.continuesWithValue) {
        if ([picker.delegate peoplePickerNavigationController:self
                           shouldContinueAfterSelectingPerson:(ABRecordRef)person
                                                     property:property
                                                   identifier:value.identifier])
            performUsualAction(property, value);
    } else if (picker.selectsValue) {
        [picker.delegate peoplePickerNavigationController:self
                                          didSelectPerson:(ABRecordRef)person
                                                 property:property
                                               identifier:value.identifier];
        [self _hostDismiss];
    }
}

- (void)_hostCancel {
    if (_picker->cancelled)
        [_picker->delegate peoplePickerNavigationControllerDidCancel:self];
    if (dismissesItselfWhenCancelled())
        [self _hostDismiss];
}

@end

UIBarButtonItem *host::pickerCancelButton(UIViewController *page) {
    return [[[UIBarButtonItem alloc] initWithBarButtonSystemItem:UIBarButtonSystemItemCancel
                                                          target:page
                                                          action:@selector(_hostCancelTapped)] autorelease];
}
