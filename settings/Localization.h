// Texts that the code shows, in the user's language.
#pragma once

#import <Foundation/Foundation.h>

namespace zv {

/// `text` from the default string table of `bundle`; the English text is its own key and, where the table
/// lacks it, the result.
inline NSString *localized(NSString *text, NSBundle *bundle) {
    return [bundle localizedStringForKey:text value:text table:nil];
}

} // namespace zv
