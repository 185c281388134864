// The hand on the phone: starts the platform, looks at the screen, acts on it, moves time on.
// Everything here belongs to the main thread.
#pragma once

#include "host/Device.h"
#include "host/Element.h"
#include "host/EventLog.h"
#include "host/Gesture.h"

#include <functional>
#include <string>

#ifdef __OBJC__
@class NSString, NSBundle, UIViewController, PSListController;
#endif

namespace host {

/// The tree of what is on the screen now.
[[nodiscard]] Element screen();

/// Carries out a gesture and waits until idle: delayed calls of zero seconds, completions, dismissals and
/// notifications that the gesture set off have happened when it returns.
[[nodiscard]] Outcome perform(const Gesture &gesture);

/// Runs the main run loop until nothing is left that is due now.
void waitUntilIdle();

/// The system cancels the alert or sheet in front, as it may at any time. False when there is none.
bool cancelQuestion();

/// The Home button, and a tap on the program's icon: the program is told of both, its pages are not.
void leaveAndReturn();

#ifdef __OBJC__
/// Loads a preference bundle and shows its principal class as the front page, as the Settings application
/// does for a PreferenceLoader entry. The page is pushed on a Settings root page that lists the entries.
/// Returns the page, or nil with a reason.
UIViewController *openBundle(NSString *path, std::string *reason = nullptr);
#endif

/// Leaves the bundle's pages, back to the root list of Settings. What they have in front goes with them
/// without a word: alerts, sheets and presented pages.
void closePages();

} // namespace host
