#pragma once

#import <Foundation/Foundation.h>

@class ZVSettingsEditNumberViewController;

/// What the entry editor tells the page that opened it, each time before it dismisses itself.
@protocol ZVSettingsEditNumberViewControllerDelegate <NSObject>
@required
/// Save was pressed; `editor.texts` holds what the fields hold, unchecked.
- (void)settingsEditNumberViewControllerSaved:(ZVSettingsEditNumberViewController *)editor;
@optional
/// Cancel was pressed.
- (void)settingsEditNumberViewControllerCancel;
@end
