// Alerts and sheets: they lie in a window of their own over everything, one at a time; those that come while
// one is in front wait until it has gone. No page hears of them.
#pragma once

#import <UIKit/UIView.h>

#include <string>
#include <vector>

#include "host/Element.h"
#include "host/Gesture.h"
#include "host/Retained.h"

/// An alert or a sheet.
@protocol HostPopup
- (void)_hostWillPresent;
- (void)_hostDidPresent;
- (void)_hostDidDismiss:(NSInteger)buttonIndex;
- (host::Outcome)_hostTapOutside;
/// The system takes it away: the delegate is told so, or the cancel button is pressed in its place.
- (void)_hostCancel;
@end

namespace host {

/// Shows `popup` when its turn comes, and keeps it until it has gone.
void showPopup(UIView<HostPopup> *popup);

/// Whether `popup` was shown and has not gone yet.
[[nodiscard]] bool isWaitingOrShown(UIView<HostPopup> *popup);

/// Takes `popup` away in the next turn of the run loop.
void closePopup(UIView<HostPopup> *popup, NSInteger buttonIndex);

/// What is in front, or nil.
[[nodiscard]] UIView<HostPopup> *frontPopup();

/// Takes all away without a word to their delegates.
void dropPopups();

/// Titles of the buttons of an alert or a sheet, by index.
using ButtonTitles = std::vector<Retained<NSString *>>;

} // namespace host
