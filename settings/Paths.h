// Every path of the system, each named once.
#pragma once

#import <Foundation/Foundation.h>

#include "databases/CallHistorySchema.h"

#ifndef __APPLE__
#include "host/Device.h"
#endif

namespace zv {

/// Paths as they are on the phone, and as command lines name them. Whoever opens a file asks `located` for
/// it first. A %@ stands for a list id.
namespace path {

/// The main preference file: the domain that the page resources name as `defaults`.
constexpr NSString *const preferences = @"/var/mobile/Library/Preferences/zelvora.plist";
constexpr NSString *const keypad = @"/var/mobile/Library/Preferences/zelvora.keypad.plist";
constexpr NSString *const recents = @"/var/mobile/Library/Preferences/zelvora.recents.plist";

/// The user document of a list, and the copy installed with the product that stands in until there is one.
constexpr NSString *const listDocument = @"/var/mobile/Library/Preferences/zelvora.%@.plist";
constexpr NSString *const defaultList = @"/Library/Zelvora/Default/zelvora.%@.plist";

/// Catalog folders: area files, text code tables, property-list code tables.
constexpr NSString *const areas = @"/Library/Zelvora/Area";
constexpr NSString *const textCodeTables = @"/Library/Zelvora/Table";
constexpr NSString *const plistCodeTables = @"/Library/Zelvora/T9";

constexpr NSString *const toolsImage = @"/Library/Zelvora/tools.png";
constexpr NSString *const checkedImage = @"/Library/Zelvora/checked.png";
constexpr NSString *const notCheckedImage = @"/Library/Zelvora/notchecked.png";

/// The helper that changes what the settings process has no right to.
constexpr NSString *const helperTool = @"/Library/Zelvora/zvtool";

/// Databases of the system; which call history is in use depends on the system's version.
constexpr NSString *const addressBook = @"/var/mobile/Library/AddressBook/AddressBook.sqlitedb";
constexpr NSString *const coreDataCallHistory = @"/var/mobile/Library/CallHistoryDB/CallHistory.storedata";
constexpr NSString *const keyValueCallHistory = @"/var/wireless/Library/CallHistory/call_history.db";

constexpr NSString *callHistory(CallHistorySchema schema) {
    return schema == CallHistorySchema::coreData ? coreDataCallHistory : keyValueCallHistory;
}

} // namespace path

/// Where a path of the phone lies for this process: on the phone the path itself, elsewhere below the folder
/// that stands for the phone's "/". Nil for nil, and for text that can be no path.
inline NSString *located(NSString *phonePath) {
#ifdef __APPLE__
    return phonePath;
#else
    const char *path = [phonePath UTF8String];
    return path ? [NSString stringWithUTF8String:host::devicePath(path).c_str()] : nil;
#endif
}

} // namespace zv
