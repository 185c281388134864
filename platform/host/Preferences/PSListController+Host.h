// What the parts of the list page say to each other.
#pragma once

#import <Preferences/PSListController.h>
#import <Preferences/PSTableCell.h>

@class HostConfirmation;

@interface PSListController (Host)

/// The groups of `_specifiers`, see host::groupsOf. Built again when the page has another array.
- (NSArray *)_hostGroups;

/// Asks for the specifiers and builds the groups again. An exception of the page's own code leaves a page
/// that says so.
- (void)_hostRegroup;

/// Why the page has nothing to show, in words for its developer.
- (void)_hostFailed:(NSString *)reason;

/// Sends every bundle that added rows away.
- (void)_hostUnloadBundles;

/// The shown cell of a row; nil when it is off screen.
- (PSTableCell *)_hostCellOf:(PSSpecifier *)specifier;

/// A person changed a row's value: stores it, or asks first.
- (void)_hostRow:(PSSpecifier *)specifier changedTo:(id)value;

/// Whether a choice row is the chosen one.
- (BOOL)_hostIsChosen:(PSSpecifier *)specifier;

/// Makes a row of a radio group the chosen one.
- (void)_hostChoose:(PSSpecifier *)specifier;

/// A tap on the row.
- (void)_hostTapped:(PSSpecifier *)specifier;

/// A question has been answered and carried out.
- (void)_hostAnswered:(HostConfirmation *)question;

@end
