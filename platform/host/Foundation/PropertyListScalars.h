// The texts of numbers, dates and data in the XML form.
#pragma once

#import <Foundation/Foundation.h>

#include <string>
#include <string_view>

namespace host {

/// Objects that the caller owns; nil for a text that is none of the kind.
NSNumber *newIntegerOfText(std::string_view text);
NSNumber *newRealOfText(std::string_view text);
NSDate *newDateOfText(std::string_view text);
NSData *newDataOfBase64(std::string_view text);

/// The text of a number that is no boolean, without its element.
[[nodiscard]] std::string integerText(NSNumber *number);
[[nodiscard]] std::string realText(double number);
/// "2015-03-06T12:00:00Z"; empty for a date beyond the years 1 to 9999.
[[nodiscard]] std::string dateText(NSDate *date);
/// Base64, each line after `indent` and at most 76 columns with it (a tab is 8).
[[nodiscard]] std::string dataText(NSData *data, std::string_view indent);

/// Whether a number is a real (float, double, decimal) or a boolean; otherwise it is an integer.
[[nodiscard]] bool isReal(NSNumber *number);
[[nodiscard]] bool isBoolean(NSNumber *number);

} // namespace host
