// What the number pickers and the list editor show in a row.
#pragma once

#import <Foundation/Foundation.h>

/// A mutable dictionary with the keys of settings/RecordKeys.h: "number", and "name" and "type" where there
/// are any. The pickers hold one for every number in the address book and a list page one for every entry, so
/// these three have places of their own; a general dictionary takes several times the memory and most of the
/// time of a load. Other keys work as in any dictionary.
@interface ZVPickerRecord : NSMutableDictionary {
    NSString *_number;
    NSString *_name;
    NSString *_type;
    NSMutableDictionary *_others;
}

/// A record of what is given; nil leaves a key out.
- (instancetype)initWithNumber:(NSString *)number name:(NSString *)name type:(NSString *)type;

@end
