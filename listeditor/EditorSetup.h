// How the entry editor is set up for a tap on a list editor page.
#pragma once

#import <Foundation/Foundation.h>

#include "listeditor/ListKind.h"

namespace zv {

/// The editor's title in the language of `bundle`; nil where the tap has none.
NSString *editorTitle(ListKind kind, NSIndexPath *tapped, NSBundle *bundle);

/// What the editor of a list is told (see pickers/EditInfo.h), autoreleased. `rowRecord` is the entry to be
/// edited; nil for a new one.
NSMutableDictionary *editInfo(ListKind kind, NSDictionary *rowRecord, NSBundle *bundle);

/// What the editor of the call time is told, which is at `seconds` now.
NSMutableDictionary *callTimeEditInfo(int seconds, NSBundle *bundle);

} // namespace zv
