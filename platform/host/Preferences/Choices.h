// The values of a multiple choice and their titles.
#pragma once

#import <Preferences/PSSpecifier.h>

namespace host {

/// Value -> title, pair by pair as far as both arrays reach; nil without values or titles.
[[nodiscard]] NSDictionary *titlesOfValues(NSArray *values, NSArray *titles);

/// The order of two texts in a list, by the rules of the phone's language and region; case does not matter.
[[nodiscard]] NSComparisonResult compareTexts(NSString *left, NSString *right);

/// The values in the order of their titles, as a person of this language expects it.
[[nodiscard]] NSArray *sortedByTitle(NSArray *values, NSDictionary *titles);

/// The array of property `fixed`; where there is none, what the data source named by property `source` gives.
[[nodiscard]] NSArray *choices(PSSpecifier *specifier, NSString *fixed, NSString *source);

} // namespace host
