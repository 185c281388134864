// A row with a text field.
#pragma once

#import <Preferences/PSSpecifier.h>

@interface PSTextFieldSpecifier : PSSpecifier {
@private
    SEL bestGuess;
    NSString *_placeholder;
}

/// `- (NSString *)guess:(PSSpecifier *)specifier` of the target: the text of a row that has no value yet.
@property (nonatomic, assign) SEL bestGuess;
@property (nonatomic, retain) NSString *placeholder;

@end
