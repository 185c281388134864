// Gestures: finds what a gesture names on the screen, sees whether a finger could reach it, and hands the
// gesture over.
#include "host/Control.h"
#include "host/Numbers.h"
#include "host/Screen.h"
#include "host/Work.h"
#include "UIKit/Popups.h"
#include "UIKit/TextInput.h"
#include "UIKit/UINavigationController+Host.h"
#include "UIKit/UIView+Host.h"

#import <UIKit/UIBarButtonItem.h>
#import <UIKit/UINavigationController.h>

namespace {

using host::Element;
using host::Gesture;
using host::GestureKind;
using host::Outcome;

const Element *named(const Element &tree, const Gesture &gesture) {
    return tree.find(
        [&](const Element &each) { return each.number == gesture.number && each.part == gesture.part; });
}

/// The alert or sheet in front, or the whole screen.
const Element &reachable(const Element &screen) {
    const Element *popup =
        screen.find([](const Element &each) { return each.type == "Alert" || each.type == "Sheet"; });
    return popup ? *popup : screen;
}

/// Whether `object` and all around it let a finger through.
bool takesTouches(id object) {
    if (![object isKindOfClass:[UIView class]])
        return true;
    for (UIView *view = object; view; view = [view superview]) {
        if (![view isUserInteractionEnabled])
            return false;
    }
    return true;
}

Outcome performOnNamed(const Gesture &gesture) {
    const Element screen = host::screen();
    const Element *element = named(reachable(screen), gesture);
    if (!element)
        return named(screen, gesture) ? Outcome::disabled : Outcome::notThere;
    id object = host::numberedObject(gesture.number);
    if (!object)
        return Outcome::notThere;
    if (!element->enabled || !takesTouches(object))
        return Outcome::disabled;
    [[object retain] autorelease];
    return [object _hostPerform:gesture];
}

/// With a gesture that names nothing, what it can only mean.
Outcome performOnFirst(const char *type, Gesture gesture) {
    const Element screen = host::screen();
    const Element *element = reachable(screen).find([&](const Element &each) { return each.type == type; });
    if (!element)
        return Outcome::notThere;
    gesture.number = element->number;
    return performOnNamed(gesture);
}

/// The keyboard reaches its field also where that has been scrolled out of sight.
Outcome performOnFocused(const Gesture &gesture) {
    if (!host::focusedInput())
        return Outcome::notThere;
    UIView<HostTextInput> *input = [[host::keyboardInput() retain] autorelease];
    return input ? [input _hostPerform:gesture] : Outcome::disabled;
}

/// The navigation controller of the page in front, unless an alert covers it.
UINavigationController *frontNavigation() {
    return host::frontPopup() ? nil : [host::frontPage() navigationController];
}

Outcome goBack() {
    UINavigationController *navigation = frontNavigation();
    if (![navigation _hostHasBackButton])
        return navigation ? Outcome::notThere : Outcome::disabled;
    return [navigation _hostGoBack] ? Outcome::done : Outcome::disabled;
}

Outcome swipeBack(GestureKind kind) {
    UINavigationController *navigation = frontNavigation();
    if (![navigation _hostCanSwipeBack])
        return Outcome::disabled;
    const bool given = kind == GestureKind::backSwipeGivenUp;
    return (given ? [navigation _hostGiveUpBackSwipe] : [navigation _hostGoBack]) ? Outcome::done
                                                                                  : Outcome::disabled;
}

Outcome tapOutside() {
    UIView<HostPopup> *popup = host::frontPopup();
    return popup ? [popup _hostTapOutside] : Outcome::notThere;
}

Outcome act(const Gesture &gesture) {
    const bool nameless = gesture.number == 0;
    switch (gesture.kind) {
    case GestureKind::back: return goBack();
    case GestureKind::backSwipe:
    case GestureKind::backSwipeGivenUp: return swipeBack(gesture.kind);
    case GestureKind::tapOutside: return tapOutside();
    case GestureKind::type:
    case GestureKind::replace:
    case GestureKind::clear:
    case GestureKind::returnKey: return nameless ? performOnFocused(gesture) : performOnNamed(gesture);
    case GestureKind::scroll:
    case GestureKind::closeSwipe:
        return nameless ? performOnFirst("Table", gesture) : performOnNamed(gesture);
    default: return performOnNamed(gesture);
    }
}

} // namespace

namespace host {

Outcome perform(const Gesture &gesture) {
    waitUntilIdle();
    Outcome outcome = Outcome::notThere;
    @autoreleasepool {
        outcome = act(gesture);
    }
    waitUntilIdle();
    return outcome;
}

bool cancelQuestion() {
    waitUntilIdle();
    UIView<HostPopup> *popup = frontPopup();
    @autoreleasepool {
        [popup _hostCancel];
    }
    waitUntilIdle();
    return popup != nil;
}

} // namespace host
