// What the phone shows: one window whose root page the host sets, alerts and sheets over it, and the
// keyboard.
#pragma once

#import <UIKit/UIViewController.h>
#import <UIKit/UIWindow.h>

@protocol HostTextInput;

namespace host {

/// The window under the pages; made, visible and key from its first use on.
[[nodiscard]] UIWindow *mainWindow();

/// Makes `controller` what the phone shows: what was there is taken away with its alerts and what it
/// presents, and told so. Nil leaves the screen empty.
void setRootController(UIViewController *controller);

/// What the keyboard on the screen types into; nil without one. A field under an alert has lost it.
[[nodiscard]] UIView<HostTextInput> *keyboardInput();

/// The page in front, inside its containers; nil on an empty screen.
[[nodiscard]] UIViewController *frontPage();

} // namespace host
