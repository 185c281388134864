#include "UIKit/Popups.h"

#import <UIKit/UIScreen.h>
#import <UIKit/UIWindow.h>

#include "host/Work.h"

#include <algorithm>
#include <deque>

namespace host {

namespace {

using Popup = Retained<UIView<HostPopup> *>;

/// The first one is in front. Lives as long as the process.
std::deque<Popup> &queue() {
    static auto &popups = *new std::deque<Popup>;
    return popups;
}

UIWindow *popupWindow() {
    static UIWindow *window = [[UIWindow alloc] initWithFrame:[[UIScreen mainScreen] bounds]];
    return window;
}

void presentFirst() {
    const Popup popup = queue().front();
    [popupWindow() setHidden:NO];
    [popupWindow() setFrame:[[UIScreen mainScreen] bounds]];
    [popup setFrame:[popupWindow() bounds]];
    [popup _hostWillPresent];
    [popupWindow() addSubview:popup];
    later([popup] { [popup _hostDidPresent]; });
}

void remove(const Popup &popup, NSInteger buttonIndex) {
    const bool wasFirst = frontPopup() == popup.get();
    if (std::erase_if(queue(), [&](const Popup &each) { return each.get() == popup.get(); }) == 0)
        return;
    [popup removeFromSuperview];
    [popup _hostDidDismiss:buttonIndex];
    if (queue().empty())
        [popupWindow() setHidden:YES];
    else if (wasFirst)
        presentFirst();
}

} // namespace

void showPopup(UIView<HostPopup> *popup) {
    if (isWaitingOrShown(popup))
        return;
    queue().emplace_back(popup);
    if (queue().size() == 1)
        presentFirst();
}

bool isWaitingOrShown(UIView<HostPopup> *popup) {
    return std::ranges::any_of(queue(), [&](const Popup &each) { return each.get() == popup; });
}

void closePopup(UIView<HostPopup> *popup, NSInteger buttonIndex) {
    const Popup kept(popup);
    later([kept, buttonIndex] { remove(kept, buttonIndex); });
}

UIView<HostPopup> *frontPopup() {
    return queue().empty() ? nil : queue().front().get();
}

void dropPopups() {
    for (const Popup &popup : std::exchange(queue(), {}))
        [popup removeFromSuperview];
    [popupWindow() setHidden:YES];
}

} // namespace host
