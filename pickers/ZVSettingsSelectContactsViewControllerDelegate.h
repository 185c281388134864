#pragma once

#import <Foundation/Foundation.h>

@class ZVSettingsSelectContactsViewController;

/// What a number picker tells the page that opened it. A record is a dictionary with "number" and, where they
/// are known, "name" and "type".
@protocol ZVSettingsSelectContactsViewControllerDelegate <NSObject>
@required
/// A number that was not chosen was tapped.
- (void)settingsSelectContactsViewControllerAdd:(NSDictionary *)record;
/// A chosen number was tapped.
- (void)settingsSelectContactsViewControllerRemove:(NSDictionary *)record;
/// Done was pressed; the picker dismisses itself next.
- (void)settingsSelectContactsViewControllerDone:(ZVSettingsSelectContactsViewController *)picker;
@end
