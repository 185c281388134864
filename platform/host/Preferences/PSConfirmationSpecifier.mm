// PSConfirmationSpecifier: the `confirmation` dictionary of the public format documentation.
#import <Preferences/PSConfirmationSpecifier.h>

#include "Preferences/Keys.h"
#include "Preferences/Messages.h"

namespace key = host::key;

static NSString *text(NSDictionary *dictionary, NSString *name) {
    return host::as<NSString>([NSString class], [dictionary objectForKey:name]);
}

@implementation PSConfirmationSpecifier

@synthesize title = _title, prompt = _prompt, okButton = _okButton, cancelButton = _cancelButton;
@synthesize isDestructive = _isDestructive;

- (void)dealloc {
    [_title release];
    [_prompt release];
    [_okButton release];
    [_cancelButton release];
    [super dealloc];
}

- (void)setupWithDictionary:(NSDictionary *)dictionary {
    [self setTitle:text(dictionary, key::title)];
    [self setPrompt:text(dictionary, key::prompt)];
    [self setOkButton:text(dictionary, key::okTitle)];
    [self setCancelButton:text(dictionary, key::cancelTitle)];
    NSNumber *destructive =
        host::as<NSNumber>([NSNumber class], [dictionary objectForKey:key::isDestructive]);
    [self setIsDestructive:[destructive boolValue]];
}

@end
