// Keys of the dictionary that tells the entry editor what to show. All are optional; those that only mark
// something hold NSNull. The entry's own members are under zv::key::name and zv::key::number.
#pragma once

#import <Foundation/Foundation.h>

namespace zv::editinfo {

/// Marks an entry that has no name: the form shows the number alone.
constexpr NSString *const noName = @"NoName";
/// Marks an entry that is not in the list yet.
constexpr NSString *const isNew = @"New";
constexpr NSString *const namePlaceholder = @"NamePlaceholder";
constexpr NSString *const numberPlaceholder = @"NumberPlaceholder";
/// A number, the UIKeyboardType of the number field.
constexpr NSString *const numberKeyboardType = @"NumberKeyboardType";

} // namespace zv::editinfo
