// What the list editor page says about each kind of list, in English: every text is the key of its
// translation.
#pragma once

#import <UIKit/UIKit.h>

#include "listeditor/ListKind.h"

namespace zv {

/// A null text is one that the kind does not have.
struct ListTexts {
    NSString *addTitle;  ///< title of the editor for a new entry
    NSString *editTitle; ///< title of the editor for an entry of the list
    NSString *namePlaceholder;
    NSString *numberPlaceholder;
    UIKeyboardType numberKeyboard;
};

constexpr ListTexts listTexts(ListKind kind) {
    switch (kind) {
    case ListKind::area: return {@"Add Area", @"Edit Area", @"Area", @"Prefix", UIKeyboardTypePhonePad};
    case ListKind::t9:
        return {@"Add Code Table", @"Edit Code Table", @"Character", @"T9 Keyboard", UIKeyboardTypeNumberPad};
    case ListKind::black:
    case ListKind::white:
    case ListKind::priority:
    case ListKind::exclude:
        return {@"Add Number", @"Edit Number", @"Name", @"Phone Number", UIKeyboardTypeNumberPad};
    case ListKind::callTime: return {@"Unit: Minutes", nullptr, @"minutes", nullptr, UIKeyboardTypeNumberPad};
    case ListKind::none: break;
    }
    return {nullptr, nullptr, nullptr, nullptr, UIKeyboardTypeDefault};
}

} // namespace zv
