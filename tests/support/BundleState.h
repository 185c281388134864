// The bundle's class-wide variables, read where no page shows them.
#pragma once

#import <Foundation/Foundation.h>

namespace support {

/// The root page's own settings; nil while no root page lives.
NSMutableDictionary *&sharedSettings();

/// The mirror of the main preference file; nil until it is loaded.
NSMutableDictionary *&settingsMirror();

} // namespace support
