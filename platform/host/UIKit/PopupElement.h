// Elements of alerts and sheets.
#pragma once

#import <UIKit/UIFont.h>

#include "host/Element.h"
#include "host/Gesture.h"
#include "UIKit/PopupLayout.h"
#include "UIKit/Popups.h"

namespace host {

/// UTF-16 of `text`, kept in memory until the pool is emptied.
[[nodiscard]] std::u16string_view kept(NSString *text);

/// The parts without message and fields; views into `kept` texts.
[[nodiscard]] PopupParts partsOf(NSString *title, const ButtonTitles &titles, NSInteger cancel);

/// Adds a StaticText of this role where there is a text.
void addText(Element &popup, NSString *text, const char *role, UIFont *font, const Rect &place);

/// Adds the Button with this index, which is its part.
Element &addButton(Element &popup, NSString *title, std::size_t index, const char *role, const Rect &place);

/// The index of the button that `gesture` taps; -1 for none.
[[nodiscard]] NSInteger buttonIndex(const Gesture &gesture);

} // namespace host
