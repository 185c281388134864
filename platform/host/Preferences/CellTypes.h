// The names of the kinds of rows.
#pragma once

#import <Foundation/NSString.h>

namespace host {

/// The code (PSCellType) of a `cell` name; -1 for a name that is none.
[[nodiscard]] int cellType(NSString *name);

/// The name of a code; nil for a code that is none.
[[nodiscard]] NSString *cellTypeName(int type);

} // namespace host
