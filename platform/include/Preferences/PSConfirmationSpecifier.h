// A row that asks before it acts.
#pragma once

#import <Preferences/PSSpecifier.h>

@interface PSConfirmationSpecifier : PSSpecifier {
@private
    NSString *_title;
    NSString *_prompt;
    NSString *_okButton;
    NSString *_cancelButton;
    BOOL _isDestructive;
}

/// The question's heading, its text, and the titles of its two buttons.
@property (nonatomic, retain) NSString *title;
@property (nonatomic, retain) NSString *prompt;
@property (nonatomic, retain) NSString *okButton;
@property (nonatomic, retain) NSString *cancelButton;
/// The OK button is red.
@property (nonatomic, assign) BOOL isDestructive;

/// Takes `title`, `prompt`, `okTitle`, `cancelTitle` and `isDestructive`; the texts are already localized.
- (void)setupWithDictionary:(NSDictionary *)dictionary;

@end
