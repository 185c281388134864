// How a sheet is shown and answered.
#include "host/EventLog.h"
#include "host/Text.h"
#include "UIKit/PopupElement.h"
#include "UIKit/UIActionSheet+State.h"
#include "UIKit/UIView+Host.h"

#import <UIKit/UIDevice.h>
#import <UIKit/UIFont.h>

namespace {

/// From this system version on a tap beside a sheet is its cancel button.
constexpr float tapOutsideCancelsSince = 8.0F;

} // namespace

@implementation UIActionSheet (Host)

- (void)_hostWillPresent {
    UIActionSheetState *sheet = [self _hostSheet];
    sheet->visible = true;
    sheet->closing = false;
    host::record(host::EventKind::sheet, host::utf8(sheet->title));
    if (sheet->can.willPresent)
        [sheet->delegate willPresentActionSheet:self];
}

- (void)_hostDidPresent {
    UIActionSheetState *sheet = [self _hostSheet];
    if (sheet->can.didPresent)
        [sheet->delegate didPresentActionSheet:self];
}

- (void)_hostDidDismiss:(NSInteger)buttonIndex {
    UIActionSheetState *sheet = [self _hostSheet];
    sheet->visible = false;
    if (sheet->can.didDismiss)
        [sheet->delegate actionSheet:self didDismissWithButtonIndex:buttonIndex];
}

- (host::Outcome)_hostTapOutside {
    UIActionSheetState *sheet = [self _hostSheet];
    if (!sheet->has(sheet->cancel) || sheet->closing ||
        [[[UIDevice currentDevice] systemVersion] floatValue] < tapOutsideCancelsSince)
        return host::Outcome::disabled;
    [self _hostClick:sheet->cancel];
    return host::Outcome::done;
}

- (void)_hostClick:(NSInteger)index {
    UIActionSheetState *sheet = [self _hostSheet];
    if (sheet->can.clicked)
        [sheet->delegate actionSheet:self clickedButtonAtIndex:index];
    [self dismissWithClickedButtonIndex:index animated:YES];
}

- (void)_hostCancel {
    UIActionSheetState *sheet = [self _hostSheet];
    if (sheet->closing)
        return;
    if (!sheet->can.cancel && sheet->has(sheet->cancel))
        return [self _hostClick:sheet->cancel];
    if (sheet->can.cancel)
        [sheet->delegate actionSheetCancel:self];
    [self dismissWithClickedButtonIndex:sheet->cancel animated:NO];
}

- (const char *)_hostRoleOf:(NSInteger)index {
    UIActionSheetState *sheet = [self _hostSheet];
    if (index == sheet->cancel)
        return "cancel";
    return sheet->marksDestructive(index) ? "destructive" : "default";
}

- (BOOL)_hostDescribe:(host::Element &)element {
    UIActionSheetState *sheet = [self _hostSheet];
    const host::PopupPlaces places =
        host::sheetPlaces(host::partsOf(sheet->title, sheet->titles, sheet->cancel), [self bounds].size.width,
                          [self bounds].size.height);
    element.type = "Sheet";
    element.label = host::utf8(sheet->title);
    element.rect = places.frame;
    host::addText(element, sheet->title, "title", [UIFont systemFontOfSize:host::sheetTitlePoints],
                  places.title);
    for (std::size_t i = 0; i < sheet->titles.size(); i++)
        host::addButton(element, sheet->titles[i], i, [self _hostRoleOf:(NSInteger)i], places.buttons[i]);
    return YES;
}

- (host::Outcome)_hostPerform:(const host::Gesture &)gesture {
    const NSInteger index = host::buttonIndex(gesture);
    if (![self _hostSheet]->has(index) || [self _hostSheet]->closing)
        return host::Outcome::disabled;
    [self _hostClick:index];
    return host::Outcome::done;
}

@end
