// What a sheet remembers; for UIActionSheet's own files alone.
#pragma once

#import <UIKit/UIActionSheet.h>

#include "UIKit/Popups.h"

/// Which optional methods the delegate has, asked once when it is set.
struct UIActionSheetDelegateMethods {
    bool clicked = false, willPresent = false, didPresent = false;
    bool willDismiss = false, didDismiss = false, cancel = false;
};

struct UIActionSheetState {
    host::Retained<NSString *> title;
    host::ButtonTitles titles;
    NSInteger cancel = -1, destructive = -1;
    UIActionSheetStyle style = UIActionSheetStyleAutomatic;
    id<UIActionSheetDelegate> delegate = nil; ///< not retained
    UIActionSheetDelegateMethods can;
    bool visible = false;
    bool closing = false;

    [[nodiscard]] bool has(NSInteger index) const { return index >= 0 && index < (NSInteger)titles.size(); }

    /// The lowest index that is neither the cancel button's nor the destructive one's; -1 for none.
    [[nodiscard]] NSInteger firstOther() const {
        for (NSInteger i = 0; has(i); i++) {
            if (i != cancel && i != destructive)
                return i;
        }
        return -1;
    }

    /// A destructive button that stands alone is not marked as such.
    [[nodiscard]] bool marksDestructive(NSInteger index) const {
        return index == destructive && titles.size() > 1;
    }
};

@interface UIActionSheet (State)
- (struct UIActionSheetState *)_hostSheet;
@end

@interface UIActionSheet (Host) <HostPopup>
@end
