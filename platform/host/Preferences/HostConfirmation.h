// The question that a row asks before it acts. It has a delegate of its own, because a page that answers
// alerts and sheets of its own overrides the page's delegate methods.
#pragma once

#import <Preferences/PSConfirmationSpecifier.h>
#import <Preferences/PSListController.h>

@interface HostConfirmation : NSObject <UIAlertViewDelegate, UIActionSheetDelegate> {
    PSListController *_page; // not retained; the page owns the question
    PSConfirmationSpecifier *_specifier;
    id _value;
    UIAlertView *_alert; // not retained: kept while it is shown
    UIActionSheet *_sheet;
}

/// `value`: what a control is to be set to when the answer is OK; nil for a row with an action.
- (instancetype)initWithPage:(PSListController *)page
                   specifier:(PSConfirmationSpecifier *)specifier
                       value:(id)value;

- (id)value;

/// Shows an alert; a sheet where the OK button is to be red.
- (void)ask;

/// The page goes: nobody wants the answer any more.
- (void)abandon;

@end
