#include "host/Screen.h"

#include "host/Control.h"
#include "host/Transition.h"
#include "UIKit/Metrics.h"
#include "UIKit/Popups.h"
#include "UIKit/TextInput.h"
#include "UIKit/UIView+Host.h"
#include "UIKit/UIViewController+Host.h"

#import <UIKit/UIDevice.h>
#import <UIKit/UIScreen.h>

namespace host {

namespace {

Rect rectOf(CGRect rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

Element windowElement() {
    Element window{.type = "Window", .rect = rectOf([[UIScreen mainScreen] bounds])};
    window.attributes["page"] = double([frontPage() _hostNumber]);
    window.attributes["transition"] = lastTransition();
    window.attributes["revision"] = double(transitionCount());
    window.attributes["scale"] = device().scale;
    window.attributes["language"] = device().language;
    const bool pad = [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad;
    window.attributes["idiom"] = std::string(pad ? "pad" : "phone");
    return window;
}

Element keyboardElement(UIView<HostTextInput> *input) {
    const CGRect screen = [[UIScreen mainScreen] bounds];
    Element keyboard{.type = "Keyboard"};
    keyboard.rect = {0, screen.size.height - keyboardHeight, screen.size.width, keyboardHeight};
    keyboard.attributes["keyboard"] = double([input keyboardType]);
    keyboard.attributes["returnKey"] = double([input returnKeyType]);
    keyboard.attributes["field"] = double([input _hostNumber]);
    return keyboard;
}

} // namespace

UIWindow *mainWindow() {
    static UIWindow *window = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    [window makeKeyAndVisible];
    return window;
}

void setRootController(UIViewController *controller) {
    dropPopups();
    [mainWindow() setFrame:[[UIScreen mainScreen] bounds]];
    [mainWindow() setRootViewController:controller];
    noteTransition("none");
}

UIViewController *frontPage() {
    UIViewController *root = [mainWindow() rootViewController];
    return root ? [frontOf(root) _hostInnermost] : nil;
}

UIView<HostTextInput> *keyboardInput() {
    UIView<HostTextInput> *input = focusedInput();
    return !frontPopup() || [input isDescendantOfView:frontPopup()] ? input : nil;
}

Element screen() {
    @autoreleasepool {
        [mainWindow() layoutIfNeeded];
        Element window = windowElement();
        describe(mainWindow(), 0, 0, window.children);
        if (UIView<HostTextInput> *input = keyboardInput())
            window.children.push_back(keyboardElement(input));
        if (UIView<HostPopup> *popup = frontPopup()) {
            [popup layoutIfNeeded];
            describe(popup, 0, 0, window.children);
        }
        return window;
    }
}

} // namespace host
